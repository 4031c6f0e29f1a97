// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtRuntime.h"
#include "tests/support/Checks.h"
#include "tests/support/Waiting.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTime>

namespace velor {
namespace {

class QtRuntimeTest : public ::testing::Test {
 protected:
  QtRuntimeTest() : path_(qgetenv("PATH")) {}
  ~QtRuntimeTest() override { qputenv("PATH", path_); }

  QTemporaryDir folder;
  QtRuntime runtime{0, nullptr};

 private:
  QByteArray path_;
};

TEST_F(QtRuntimeTest, OpensThroughTheDesktopsOpenerInTheGivenFolder) {
  QFile opener(folder.filePath(QStringLiteral("xdg-open")));
  ASSERT_TRUE(opener.open(QIODevice::WriteOnly));
  opener.write("#!/bin/sh\necho \"$1\" \"$PWD\" > opened.tmp\nmv opened.tmp opened\n");
  opener.close();
  opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  qputenv("PATH", folder.path().toLocal8Bit() + ":" + qgetenv("PATH"));
  runtime.ShellExecute(QStringLiteral("Open"), QStringLiteral("mailto:info@example.com"),
                       folder.path());
  QFile opened(folder.filePath(QStringLiteral("opened")));
  ASSERT_TRUE(WaitFor([&] { return opened.exists(); }));
  ASSERT_TRUE(opened.open(QIODevice::ReadOnly));
  EXPECT_EQ(opened.readAll(), "mailto:info@example.com " + folder.path().toLocal8Bit() + "\n");
}

TEST_F(QtRuntimeTest, ADesktopWithoutAnOpenerIsAnError) {
  qputenv("PATH", folder.path().toLocal8Bit());
  EXPECT_EQ(ErrorOf([&] {
              runtime.ShellExecute(QStringLiteral("Open"), QStringLiteral("mailto:a@example.com"),
                                   folder.path());
            }),
            ErrorNumber::FileNotFound);
}

TEST_F(QtRuntimeTest, KnowsTheTimeSinceMidnight) {
  const double before = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
  const double now = runtime.SecondsSinceMidnight();
  EXPECT_TRUE(now >= before || now < 1) << now << " after " << before;
  EXPECT_LT(now, 86400);
}

}  // namespace
}  // namespace velor
