// SPDX-License-Identifier: GPL-3.0-or-later
// Another program changes the file of an open page, in the whole window on the real engine and
// disk.
#include "editor/OutsideChanges.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "files/QtFileWatches.h"
#include "files/ReplacedFiles.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QStatusBar>

namespace velor {
namespace {

const QString PageFile = QStringLiteral("page.htm");

class RealOutside : public RealWindow {
 protected:
  RealOutside() {
    platform.replaced = &replaced_;
    platform.watches = &watches_;
  }

  /// As editors and version control put a new version in the place of the old.
  void ReplaceOutside(const QByteArray &content) const {
    Write(QStringLiteral("page.new"), content);
    ASSERT_EQ(rename(qPrintable(folder.FilePath(QStringLiteral("page.new"))),
                     qPrintable(folder.FilePath(PageFile))),
              0);
  }
  bool IsSaid(const QString &words) const {
    return WaitFor([&] { return window.statusBar()->currentMessage().contains(words); });
  }

 private:
  QtFileWatches watches_;
  ReplacedFiles replaced_;
};

TEST_F(RealOutside, APageWithoutChangesIsLoadedAgainWhereItStandsAndUndoBringsItBack) {
  frmMain &page = Open(PageFile, "<p>one</p><p>two</p>");
  PutCaret(page, QStringLiteral("p + p"));
  ReplaceOutside("<p>new</p><p>two</p><p>three</p>");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("new")); }));
  EXPECT_TRUE(IsSaid(QStringLiteral("is loaded again")));
  // The caret is where it was.
  Type(page, QStringLiteral("X"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("tXwo")); })) << Seen(page);
  Choose("mnuUndo");
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("one")); })) << Seen(page);
}

TEST_F(RealOutside, ASecondChangeAndOneAfterASaveAreSeenToo) {
  frmMain &page = Open(PageFile, "<p>one</p>");
  ReplaceOutside("<p>second</p>");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("second")); }));
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), "<p>sXecond</p>");
  ReplaceOutside("<p>third</p>");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("third")); }));
  EXPECT_TRUE(page.close());
}

TEST_F(RealOutside, APageWithChangesKeepsThemUntilTheirsIsTaken) {
  frmMain &page = Open(PageFile, "<p>one</p>");
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  ReplaceOutside("<p>theirs</p>");
  EXPECT_TRUE(WaitFor([&] { return page.Outside().isVisible(); }));
  EXPECT_TRUE(Holds(page, QStringLiteral("oXne")));
  EXPECT_EQ(Bytes(PageFile), "<p>theirs</p>");
  page.Outside().findChild<QPushButton *>(QStringLiteral("cmdTakeTheirs"))->click();
  EXPECT_TRUE(Holds(page, QStringLiteral("theirs")));
  EXPECT_FALSE(page.Outside().isVisible());
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); })) << Seen(page);
}

TEST_F(RealOutside, AFileThatIsRemovedIsSaidAndASaveWritesItAnew) {
  frmMain &page = Open(PageFile, "<p>one</p>");
  ASSERT_TRUE(QFile::remove(folder.FilePath(PageFile)));
  EXPECT_TRUE(IsSaid(QStringLiteral("page.htm is no longer there")));
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), "<p>oXne</p>");
}

}  // namespace
}  // namespace velor
