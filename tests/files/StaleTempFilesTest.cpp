// SPDX-License-Identifier: GPL-3.0-or-later
// Temporary files that killed processes left beside pages are removed, and no other file is.
#include "tests/files/FileFaultsFixture.h"

#include <QDateTime>

#include <sys/file.h>
#include <unistd.h>

namespace velor {
namespace {

/// What a killed process left beside a page.
class StaleTempFiles : public FileFaults {
 protected:
  const QString Left = ".velor-0123456789abcdef.tmp";

  void Leave(const QString &name, qint64 secondsAgo = 3600) const {
    Write(name, "half");
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo),
                                 QFileDevice::FileModificationTime));
  }
  bool IsThere(const QString &name) const { return Names().contains(name); }
};

TEST_F(StaleTempFiles, GoWithTheNextSaveInTheirFolder) {
  Leave(Left);
  Leave(".velor-1.tmp");
  Replace();
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(StaleTempFiles, OfAProcessKilledInTheMiddleOfASaveGo) {
  int step = 1;
  while (DiesAt(calls_, step, [this] { Replace(); }) && Names().size() == 1) ++step;
  ASSERT_EQ(Names().size(), 2);
  const QString left = Names()[0];
  Leave(left);
  Replace();
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(StaleTempFiles, StayWhileTheirProcessIsAtWork) {
  Leave(Left);
  QFile working(folder_.filePath(Left));
  ASSERT_TRUE(working.open(QIODevice::ReadOnly));
  ASSERT_EQ(flock(working.handle(), LOCK_EX | LOCK_NB), 0);
  Replace();
  EXPECT_TRUE(IsThere(Left));
  working.close();
  Replace();
  EXPECT_FALSE(IsThere(Left));
}

TEST_F(StaleTempFiles, StayWhileTheyAreSoNewThatTheyMayBeAboutToBeClaimed) {
  Leave(Left, 5);
  Replace();
  EXPECT_TRUE(IsThere(Left));
}

TEST_F(StaleTempFiles, OfStrangersStay) {
  QStringList strangers{
      ".velor-.tmp",       ".velor-notes.tmp", ".velor-0123456789ABCDEF.tmp", "velor-12.tmp",
      ".velor-12.tmp.bak", ".velor-12.htm",    ".velor-00123456789abcdef.tmp"};
  for (const QString &name : strangers) Leave(name);
  ASSERT_TRUE(QFile::link(folder_.filePath("a.htm"), folder_.filePath(".velor-2.tmp")));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(".velor-3.tmp"));
  Leave(".velor-4.tmp");
  GiveASecondName();
  ASSERT_EQ(link(Name(".velor-4.tmp").constData(), Name("also.txt").constData()), 0);
  if (geteuid() == 0) {
    Leave(".velor-5.tmp");
    ASSERT_EQ(chown(Name(".velor-5.tmp").constData(), 65534, 65534), 0);
    strangers << ".velor-5.tmp";
  }
  ASSERT_TRUE(QFile::remove(folder_.filePath("b.htm")));
  Replace();
  for (const QString &name : strangers) EXPECT_TRUE(IsThere(name)) << name.toStdString();
  EXPECT_TRUE(IsThere(".velor-2.tmp"));
  EXPECT_TRUE(IsThere(".velor-4.tmp"));
  EXPECT_TRUE(QDir(folder_.filePath(".velor-3.tmp")).exists());
}

}  // namespace
}  // namespace velor
