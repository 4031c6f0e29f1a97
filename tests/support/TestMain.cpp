// SPDX-License-Identifier: GPL-3.0-or-later
// Every test program: a QApplication under the offscreen platform, and scratch folders in place of
// the person's own settings.
#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

int main(int argc, char **argv) {
  QTemporaryDir scratch;
  for (const char *variable :
       {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
    const QString folder = scratch.filePath(QString::fromLatin1(variable));
    QDir().mkpath(folder);
    qputenv(variable, folder.toLocal8Bit());
  }
  qunsetenv("VELOR_PROGRAM_FOLDER");
  qputenv("VELOR_NO_ERROR_BOX", "1");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Chromium's sandbox refuses to start for the superuser, as tests in containers run.
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  ::testing::InitGoogleMock(&argc, argv);
  int one = 1;
  QApplication application(one, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  return RUN_ALL_TESTS();
}
