// SPDX-License-Identifier: GPL-3.0-or-later
// Figures about speed and memory, each beside the same work done by a bare engine in the same run,
// one line of JSON a figure. Usage: velor-bench [FIGURE...]; without names, all of them.
#include "bench/Figures.h"
#include "engine/PageScheme.h"

#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <unistd.h>

int main(int argc, char **argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Chromium's sandbox refuses to start for the superuser, as benchmarks in containers run.
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  QTemporaryDir scratch;
  for (const char *variable :
       {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
    qputenv(variable, scratch.path().toLocal8Bit());
  velor::RegisterSchemes();
  int one = 1;
  QApplication application(one, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QStringList names;
  for (int i = 1; i < argc; ++i) names << QString::fromLocal8Bit(argv[i]);
  return velor::bench::RunFigures(names);
}
