// SPDX-License-Identifier: GPL-3.0-or-later
// What is shown belongs to what is in front, at once.
#include "app/window/ChoiceBox.h"
#include "app/window/PageArea.h"
#include "app/window/PageTabs.h"
#include "chrome/FontPicker.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTest>
#include <QWebEnginePage>

namespace velor {
namespace {

const QByteArray Numbered = "<html><body><ol><li>one</li></ol></body></html>";
const QByteArray Title = "<html><body><h2 align=center>two</h2></body></html>";
const QByteArray Plain = "<html><body><p>One</p></body></html>";

class RealFront : public RealWindow {
 protected:
  QString Format() { return Find<ChoiceBox>("cobFormat")->Text(); }
  QString Tag() { return Find<QLabel>("Sta_1")->text(); }
  QString TextForm() { return Find<QLabel>("Sta_2")->text(); }
  bool IsOn(const char *action) { return Find<QAction>(action)->isEnabled(); }
  PageArea &Area() { return *Find<PageArea>("PageArea"); }
  frmCodeEditor &EditorOf(frmMain &page) {
    return *window.Context().pages.CodeEditor(page.Number());
  }
  void ClickTab(int index) {
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(index).center());
  }
  QStringList WindowEntries() {
    auto *menu = Find<QMenu>("mnuWindow");
    Q_EMIT menu->aboutToShow();
    QStringList entries;
    for (const QAction *action : menu->actions())
      if (action->text().startsWith(u'&')) entries << action->text();
    return entries;
  }
  /// Everything of the format row is off and shows nothing.
  void ExpectNothingToFormat() {
    for (const char *button :
         {"tbrEdit_bold", "tbrEdit_left", "tbrEdit_number", "tbrEdit_indent"}) {
      EXPECT_FALSE(Button(button).isEnabled()) << button;
      EXPECT_FALSE(Button(button).isChecked()) << button;
    }
    EXPECT_EQ(Format(), QString());
    EXPECT_EQ(Find<ChoiceBox>("cobSize")->Text(), QString());
    EXPECT_EQ(Find<FontPicker>("Font1")->FontName(), QString());
    for (const char *box : {"cobFormat", "cobSize", "Font1", "cpFore", "cpBack"})
      EXPECT_FALSE(Find<QWidget>(box)->isEnabled()) << box;
    EXPECT_EQ(Tag(), QString());
  }
};

TEST_F(RealFront, TheBarsShowThePageThatATabBringsToTheFrontAtOnce) {
  frmMain &list = Open(QStringLiteral("list.htm"), Numbered);
  PutCaret(list, QStringLiteral("li"));
  ASSERT_TRUE(WaitFor([&] { return Format() == QStringLiteral("Numbered List"); }));
  frmMain &title = Open(QStringLiteral("title.htm"), Title);
  PutCaret(title, QStringLiteral("h2"));
  ASSERT_TRUE(WaitFor([&] { return Format() == QStringLiteral("Heading 2"); }));
  ClickTab(0);
  EXPECT_EQ(Format(), QStringLiteral("Numbered List"));
  EXPECT_TRUE(Button("tbrEdit_number").isChecked());
  EXPECT_FALSE(Button("tbrEdit_center").isChecked());
  EXPECT_EQ(Tag(), QStringLiteral("LI"));
  ClickTab(1);
  EXPECT_EQ(Format(), QStringLiteral("Heading 2"));
  EXPECT_TRUE(Button("tbrEdit_center").isChecked());
  EXPECT_EQ(Tag(), QStringLiteral("H2"));
  title.close();
  EXPECT_EQ(Format(), QStringLiteral("Numbered List"));
}

TEST_F(RealFront, ThePageBehindDoesNotWriteIntoTheBars) {
  frmMain &list = Open(QStringLiteral("list.htm"), Numbered);
  frmMain &title = Open(QStringLiteral("title.htm"), Title);
  PutCaret(title, QStringLiteral("h2"));
  ASSERT_TRUE(WaitFor([&] { return Format() == QStringLiteral("Heading 2"); }));
  PutCaret(list, QStringLiteral("li"));
  ASSERT_TRUE(WaitFor([&] { return list.GetActiveElement().tagName == QStringLiteral("LI"); }));
  EXPECT_EQ(Format(), QStringLiteral("Heading 2"));
  EXPECT_EQ(Tag(), QStringLiteral("H2"));
}

TEST_F(RealFront, WithoutAPageAllThatNeedsOneIsOffAndEmpty) {
  ExpectNothingToFormat();
  frmMain &page = Open(QStringLiteral("list.htm"), Numbered);
  PutCaret(page, QStringLiteral("li"));
  ASSERT_TRUE(WaitFor([&] { return Format() == QStringLiteral("Numbered List"); }));
  EXPECT_FALSE(TextForm().isEmpty());
  page.close();
  ExpectNothingToFormat();
  EXPECT_EQ(TextForm(), QString());
  for (const char *button : {"tbrGeneral_cut", "tbrGeneral_table", "tbrGeneral_preview"})
    EXPECT_FALSE(Button(button).isEnabled()) << button;
}

TEST_F(RealFront, SavingWithoutAPageSaysThatThereIsNone) {
  for (const char *item : {"mnuSave", "mnuSaveAs"}) {
    Parts().status.Report({});
    Choose(item);
    EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
              QStringLiteral("There is no page to save"));
  }
}

TEST_F(RealFront, CharsetAndLineEndsAreThoseOfThePageThatCameToTheFront) {
  frmMain &old =
      Open(QStringLiteral("old.htm"),
           "<html><head><meta charset=windows-1252></head>\r\n<body>a</body></html>\r\n");
  frmMain &young = Open(QStringLiteral("young.htm"),
                        "<html><head><meta charset=utf-8></head>\n<body>b</body></html>\n");
  ASSERT_NE(old.DHTML1().TextForm(), young.DHTML1().TextForm());
  EXPECT_EQ(TextForm(), young.DHTML1().TextForm());
  ClickTab(0);
  EXPECT_EQ(TextForm(), old.DHTML1().TextForm());
  young.ChangeMode(3);
  EXPECT_EQ(TextForm(), young.DHTML1().TextForm());
  ClickTab(0);
  young.ChangeMode(4);
  EXPECT_EQ(TextForm(), young.DHTML1().TextForm());
}

TEST_F(RealFront, AFormatChosenForTheNextWordsIsOffWhereUndoTakesTheCaretAway) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  Key(page, Qt::Key_End, Qt::ControlModifier);
  Type(page, QStringLiteral("x"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Onex")); })) << Seen(page);
  Button("tbrEdit_bold").click();
  ASSERT_TRUE(WaitFor([this] { return Button("tbrEdit_bold").isChecked(); }));
  Choose("mnuUndo");
  ASSERT_TRUE(WaitFor([&] { return !Holds(page, QStringLiteral("Onex")); })) << Seen(page);
  EXPECT_TRUE(WaitFor([this] { return !Button("tbrEdit_bold").isChecked(); }));
}

TEST_F(RealFront, ASizeThatIsNoneOfTheSevenIsShownWithItsUnit) {
  frmMain &page =
      Open(QStringLiteral("a.htm"), "<html><body><p style='font-size: 15pt'>One</p></body></html>");
  PutCaret(page, QStringLiteral("p"));
  EXPECT_TRUE(WaitFor([this] {
    return Find<ChoiceBox>("cobSize")->Text() == QStringLiteral("15 pt");
  })) << Find<ChoiceBox>("cobSize")->Text().toStdString();
}

TEST_F(RealFront, WithTheSourceEditorInFrontTheEditCommandsActOnTheSource) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  page.ChangeMode(3);
  SourceControl &code = EditorOf(page).Code();
  const QString before = code.Text();
  ExpectNothingToFormat();
  EXPECT_FALSE(TextForm().isEmpty()) << "it is still that page's";
  for (const char *off : {"tbrGeneral_table", "tbrGeneral_image", "tbrGeneral_preview"})
    EXPECT_FALSE(Button(off).isEnabled()) << off;
  Choose("mnuSelectAll");
  EXPECT_EQ(code.SelectedText(), before);
  Button("tbrGeneral_cut").click();
  EXPECT_EQ(code.Text(), QString());
  EXPECT_EQ(QApplication::clipboard()->text(), before);
  Button("tbrGeneral_undo").click();
  EXPECT_EQ(code.Text(), before);
  Choose("mnuRedo");
  EXPECT_EQ(code.Text(), QString());
  Button("tbrGeneral_paste").click();
  EXPECT_EQ(code.Text(), before);
  EXPECT_TRUE(Holds(page, QStringLiteral("<p>One</p>"))) << "the page has no part in it";
}

TEST_F(RealFront, SavingWithTheSourceEditorInFrontAppliesTheSourceAndSavesThePage) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  page.ChangeMode(3);
  const qsizetype word = EditorOf(page).Code().Text().indexOf(QStringLiteral("One"));
  EditorOf(page).Code().Select({word, word + 3});
  EditorOf(page).Code().ReplaceSelection(QStringLiteral("Two"));
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(QStringLiteral("a.htm")).contains("<p>Two</p>"));
  EXPECT_EQ(EditorOf(page).AppliedText, EditorOf(page).Code().Text());
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("The source was applied to the page. Saved %1")
                .arg(folder.FilePath(QStringLiteral("a.htm"))));
  EXPECT_EQ(Area().Current(), &EditorOf(page)) << "one goes on in the source";
  EditorOf(page).close();
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>One</p>")); })) << Seen(page);
}

TEST_F(RealFront, WithTheHtmlViewInFrontOnlyWhatReadsActsAndThatOnWhatIsSeen) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  page.ChangeMode(2);
  ExpectNothingToFormat();
  for (const char *off : {"tbrGeneral_cut", "tbrGeneral_paste", "tbrGeneral_delete",
                          "tbrGeneral_undo", "tbrGeneral_redo", "tbrGeneral_table"})
    EXPECT_FALSE(Button(off).isEnabled()) << off;
  for (const char *off : {"mnuCut", "mnuPaste", "mnuDelete", "mnuUndo", "mnuRedo"})
    EXPECT_FALSE(IsOn(off)) << off;
  Choose("mnuSelectAll");
  Button("tbrGeneral_copy").click();
  EXPECT_EQ(QApplication::clipboard()->text(), page.Code1().Text());
  page.ChangeMode(1);
  for (const char *on : {"mnuCut", "mnuPaste", "mnuDelete", "mnuUndo", "mnuRedo"})
    EXPECT_TRUE(IsOn(on)) << on;
  EXPECT_TRUE(Button("tbrEdit_bold").isEnabled());
}

TEST_F(RealFront, TheHtmlViewIsFreshAfterASourceWasApplied) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  page.ChangeMode(2);
  page.ChangeMode(3);
  EditorOf(page).Code().SetText(QStringLiteral("<html><body><p>Two</p></body></html>"));
  ASSERT_TRUE(EditorOf(page).Apply());
  EditorOf(page).close();
  EXPECT_TRUE(page.Code1().Text().contains(QStringLiteral("<p>Two</p>")));
}

TEST_F(RealFront, WithThePreviewInFrontSaveSavesItsPageAndTheRestIsOff) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Oxne")); }));
  page.ChangeMode(4);
  ExpectNothingToFormat();
  EXPECT_FALSE(Button("tbrGeneral_cut").isEnabled());
  EXPECT_TRUE(Button("tbrGeneral_preview").isEnabled());
  Choose("mnuSave");
  EXPECT_TRUE(Bytes(QStringLiteral("a.htm")).contains("<p>Oxne</p>"));
}

TEST_F(RealFront, WithThePreviewInFrontPreviewShowsThePageAnew) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  page.ChangeMode(4);
  QWebEnginePage &shown = EngineOf(*window.Context().preview);
  ASSERT_TRUE(WaitFor([&] { return !shown.isLoading(); }));
  int loads = 0;
  QObject::connect(&shown, &QWebEnginePage::loadFinished, &page, [&loads] { ++loads; });
  Button("tbrGeneral_preview").click();
  EXPECT_TRUE(WaitFor([&] { return loads == 1; }));
}

TEST_F(RealFront, ThePreviewClosesWithItsPage) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  Open(QStringLiteral("b.htm"), Plain);
  page.ChangeMode(4);
  page.close();
  EXPECT_FALSE(window.Context().preview->isVisible());
  EXPECT_EQ(Area().Current(), window.Context().pages.Page(2));
}

TEST_F(RealFront, SourceEditorAndPreviewAreNamedByTheirPageAndKind) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  page.ChangeMode(3);
  EXPECT_EQ(WindowEntries(),
            QStringList({QStringLiteral("&1 a.htm"), QStringLiteral("&2 a.htm, HTML source")}));
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [a.htm, HTML source]"));
  EditorOf(page).close();
  page.ChangeMode(4);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [a.htm, Preview]"));
  window.Context().preview->close();
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [a.htm]"));
  page.ChangeMode(3);
  SharedDialog().ExpectSave(Logic(QStringLiteral("other.htm")));
  Choose("mnuSaveAs");
  EXPECT_TRUE(WaitFor([&] {
    return window.windowTitle() == QStringLiteral("Velor Web Creator - [other.htm, HTML source]");
  })) << window.windowTitle().toStdString();
}

TEST_F(RealFront, AMinimisedPageComesUpWhenItIsChosen) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  Open(QStringLiteral("b.htm"), Plain);
  auto *frame = qobject_cast<QMdiSubWindow *>(page.parentWidget());
  const auto chooseInMenu = [this] {
    Q_EMIT Find<QMenu>("mnuWindow")->aboutToShow();
    for (QAction *action : Find<QMenu>("mnuWindow")->actions())
      if (action->text() == QStringLiteral("&1 a.htm")) action->trigger();
  };
  for (const std::function<void()> &choose :
       std::initializer_list<std::function<void()>>{[this] { ClickTab(0); }, chooseInMenu}) {
    ClickTab(1);
    frame->showMinimized();
    choose();
    EXPECT_FALSE(frame->isMinimized());
    EXPECT_EQ(Area().Current(), &page);
  }
}

TEST_F(RealFront, ANoticeGoesWhenAnotherPageComesToTheFront) {
  Open(QStringLiteral("a.htm"), Plain);
  Open(QStringLiteral("b.htm"), Plain);
  Parts().status.Report(QStringLiteral("about b"));
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(), QStringLiteral("about b"));
  ClickTab(0);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(), QString());
  Parts().status.ReportOn(2, QStringLiteral("about b again"));
  ClickTab(1);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(), QStringLiteral("about b again"));
}

TEST_F(RealFront, TheButtonOfTheModeIsPressed) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  const auto isPressed = [&](const char *key) {
    return page.findChild<QAction *>(QString::fromLatin1(key))->isChecked();
  };
  EXPECT_TRUE(isPressed("design"));
  page.ChangeMode(2);
  EXPECT_FALSE(isPressed("design"));
  EXPECT_TRUE(isPressed("viewcode"));
  page.findChild<QAction *>(QStringLiteral("viewcode"))->trigger();
  EXPECT_TRUE(isPressed("viewcode"));
  page.ChangeMode(1);
  EXPECT_TRUE(isPressed("design"));
}

TEST_F(RealFront, AnInstalledFontIsShownAsTheListSpellsIt) {
  auto *font = Find<FontPicker>("Font1");
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  PutCaret(page, QStringLiteral("p"));
  ASSERT_GT(font->count(), 0);
  const QString listed = font->itemText(0);
  Parts().formats.ShowFontName(listed.toUpper());
  EXPECT_EQ(font->FontName(), listed);
}

TEST_F(RealFront, TwoPagesOfOneNameAreToldApartByTheirPaths) {
  Open(QStringLiteral("a.htm"), Plain);
  ASSERT_TRUE(QDir(folder.FilePath({})).mkdir(QStringLiteral("sub")));
  Open(QStringLiteral("sub/a.htm"), Plain);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [a.htm (%1)]")
                                      .arg(folder.FilePath(QStringLiteral("sub/a.htm"))));
  EXPECT_EQ(Tabs().tabToolTip(0), folder.FilePath(QStringLiteral("a.htm")));
}

TEST_F(RealFront, ATabShowsUnsavedChangesUntilTheyAreSaved) {
  frmMain &page = Open(QStringLiteral("a.htm"), Plain);
  const auto isMarked = [this] { return Tabs().tabToolTip(0).contains(u'\n'); };
  EXPECT_FALSE(isMarked());
  PutCaret(page, QStringLiteral("p"));
  Type(page, QStringLiteral("x"));
  EXPECT_TRUE(WaitFor(isMarked));
  Choose("mnuSave");
  EXPECT_FALSE(isMarked());
  page.ChangeMode(3);
  EditorOf(page).Code().ReplaceSelection(QStringLiteral("<!--a-->"));
  EXPECT_TRUE(isMarked()) << "the source is not applied";
  Choose("mnuSave");
  EXPECT_FALSE(isMarked());
}

}  // namespace
}  // namespace velor
