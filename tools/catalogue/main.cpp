// SPDX-License-Identifier: GPL-3.0-or-later
// velor-catalogue FILE STATEMENT...: runs statements on a catalogue and prints their rows.
#include "tools/catalogue/CatalogueTool.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>
#include <exception>

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 3) {
    std::fputs("usage: velor-catalogue FILE STATEMENT...\n", stderr);
    return 2;
  }
  QTextStream out(stdout);
  QTextStream notices(stderr);
  try {
    velor::RunStatements(arguments[1], arguments.mid(2), out, notices);
  } catch (const std::exception &error) {
    out.flush();
    std::fprintf(stderr, "velor-catalogue: %s\n", error.what());
    return 1;
  }
  return 0;
}
