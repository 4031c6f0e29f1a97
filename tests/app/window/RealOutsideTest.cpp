// SPDX-License-Identifier: GPL-3.0-or-later
// Another program changes the file of an open page, in the whole window on the real engine and
// disk.
#include "app/window/PageTabs.h"
#include "editor/OutsideChanges.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "files/QtFileWatches.h"
#include "files/ReplacedFiles.h"
#include "files/StateFolder.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

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

  bool IsMarkedUnsaved() {
    return Tabs().count() > 0 && Tabs().tabToolTip(0).contains(QStringLiteral("Unsaved changes"));
  }
  /// What the file held that a save replaced last.
  QByteArray NewestReplaced() const {
    const QDir kept(StateFolder() + QStringLiteral("/replaced"));
    const QStringList names = kept.entryList({QStringLiteral("*.htm")}, QDir::Files, QDir::Name);
    QFile file(names.isEmpty() ? QString() : kept.filePath(names.back()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

TEST_F(RealOutside, ABarThatIsLeftByKeyPutsTheKeyboardBackWhereTheCaretWas) {
  frmMain &page = Open(PageFile, "<p>one</p><p>two</p>");
  PutCaret(page, QStringLiteral("p + p"));
  Type(page, QStringLiteral("X"));
  ReplaceOutside("<p>theirs</p>");
  ASSERT_TRUE(WaitFor([&] { return page.Outside().isVisible(); }));
  auto *keep = page.Outside().findChild<QPushButton *>(QStringLiteral("cmdKeepMine"));
  ASSERT_NE(keep, nullptr);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  keep->setFocus(Qt::TabFocusReason);
  QTest::keyClick(keep, Qt::Key_Space);
  EXPECT_FALSE(page.Outside().isVisible());
  EXPECT_TRUE(page.isAncestorOf(QApplication::focusWidget()));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Y"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("tXYwo")); })) << Seen(page);
}

TEST_F(RealOutside, UndoOverTakeTheirsIsAnUnsavedPageAgainAndTheFileIsAskedAboutAgain) {
  // The second page cannot be exchanged in place: it is loaded anew.
  for (const QByteArray &head :
       {QByteArray(),
        QByteArray("<meta http-equiv=Content-Security-Policy content=\"img-src *\">")}) {
    const QByteArray theirs = head + "<p>theirs</p>";
    frmMain &page = Open(PageFile, head + "<p>one</p>");
    PutCaret(page, QStringLiteral("p"));
    Type(page, QStringLiteral("X"));
    ReplaceOutside(theirs);
    ASSERT_TRUE(WaitFor([&] { return page.Outside().isVisible(); }));
    page.Outside().findChild<QPushButton *>(QStringLiteral("cmdTakeTheirs"))->click();
    ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("theirs")); }));
    EXPECT_FALSE(IsMarkedUnsaved());
    Choose("mnuUndo");
    EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); })) << Seen(page);
    EXPECT_TRUE(WaitFor([&] { return IsMarkedUnsaved(); }));
    EXPECT_TRUE(WaitFor([&] { return page.Outside().isVisible(); }));
    Choose("mnuRedo");
    EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("theirs")); })) << Seen(page);
    EXPECT_TRUE(WaitFor([&] { return !page.Outside().isVisible(); }));
    EXPECT_TRUE(WaitFor([&] { return !IsMarkedUnsaved(); }));
    Choose("mnuUndo");
    ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); })) << Seen(page);
    ASSERT_TRUE(WaitFor([&] { return page.Outside().isVisible(); }));
    dialogs.ExpectMessage(
        QStringLiteral("You have made changes to this document. Do you want to save it?"),
        MessageAnswer::Yes);
    EXPECT_TRUE(page.close());
    EXPECT_EQ(Bytes(PageFile).toStdString(), (head + "<p>oXne</p>").toStdString());
    EXPECT_EQ(NewestReplaced().toStdString(), theirs.toStdString());
  }
}

TEST_F(RealOutside, AStyleSheetAndPicturesThatChangeAreShownAnewAndNothingElseChanges) {
  const auto picture = [](int width) {
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='") +
           QByteArray::number(width) + "' height='10'/>";
  };
  Write(QStringLiteral("a.css"), "p { text-indent: 1px; background: url(back.svg) }");
  for (const char *name : {"img.svg", "back.svg", "own.svg"})
    Write(QString::fromLatin1(name), picture(20));
  const QByteArray source =
      "<link rel=stylesheet href=a.css><p>one</p><div style='background: url(own.svg)'>two</div>"
      "<img src=img.svg>";
  frmMain &page = Open(PageFile, source);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("X"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXne")); }));
  const QString before = page.DHTML1().DocumentHTML();
  const auto value = [&](const char *expression) {
    return Evaluate(EngineOf(page), QString::fromLatin1(expression)).toString();
  };
  const auto becomes = [&](const char *expression, const QString &wanted) {
    return WaitFor([&] { return value(expression) == wanted; });
  };
  ASSERT_TRUE(becomes("String(document.images[0].width)", QStringLiteral("20")));
  const char *own = "getComputedStyle(document.querySelector('div')).backgroundImage";
  const QString ownBefore = value(own);
  for (int change = 1; change <= 2; ++change) {
    Write(QStringLiteral("own.svg"), picture(20 + change));
    EXPECT_TRUE(WaitFor([&] { return value(own) != ownBefore; }));
    Write(QStringLiteral("img.svg"), picture(30 + change));
    EXPECT_TRUE(becomes("String(document.images[0].width)", QString::number(30 + change)))
        << value("String(document.images[0].width)").toStdString();
    Write(QStringLiteral("a.css"), "p { text-indent: " + QByteArray::number(5 + change) + "px }");
    EXPECT_TRUE(becomes("getComputedStyle(document.querySelector('p')).textIndent",
                        QStringLiteral("%1px").arg(5 + change)));
  }
  EXPECT_EQ(page.DHTML1().DocumentHTML(), before);
  Type(page, QStringLiteral("Y"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("oXYne")); })) << Seen(page);
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("one")); })) << Seen(page);
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), source);
}

TEST_F(RealOutside, APreviewShowsAStyleSheetThatChangesAnew) {
  Write(QStringLiteral("a.css"), "p { text-indent: 1px }");
  frmMain &page = Open(PageFile, "<link rel=stylesheet href=a.css><p>one</p>");
  page.ChangeMode(4);
  const auto indent = [&] {
    return Evaluate(EngineOf(*window.Context().preview),
                    QStringLiteral("document.querySelector('p') ? getComputedStyle("
                                   "document.querySelector('p')).textIndent : ''"))
        .toString();
  };
  ASSERT_TRUE(WaitFor([&] { return indent() == QStringLiteral("1px"); }));
  Write(QStringLiteral("a.css"), "p { text-indent: 7px }");
  EXPECT_TRUE(WaitFor([&] { return indent() == QStringLiteral("7px"); })) << indent().toStdString();
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
