// SPDX-License-Identifier: GPL-3.0-or-later
// A person at the whole window: pages typed into, formatted and looked at from every side.
#include "app/window/ChoiceBox.h"
#include "app/window/FormattingBar.h"
#include "app/window/PageTabs.h"
#include "chrome/ColorPalette.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace velor {
namespace {

const QByteArray Plain = "<html><head></head><body><p>One</p></body></html>";
const QString PageFile = QStringLiteral("page.htm");

class RealEditing : public RealWindow {
 protected:
  bool BecomesPressed(const char *button, bool pressed = true) {
    return WaitFor([&] { return Button(button).isChecked() == pressed; });
  }
  bool BecomesDocument(frmMain &page, const QString &text) {
    return WaitFor([&] { return Holds(page, text); });
  }
  void Pick(const char *box, const QString &text) {
    auto *choices = Find<ChoiceBox>(box);
    const int index = choices->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    choices->setCurrentIndex(index);
    Q_EMIT choices->activated(index);
  }
  QString StatusText() { return Find<QLabel>("Sta_1")->text(); }
};

TEST_F(RealEditing, APictureDroppedOnASavedPageBecomesAnImageWithARelativeLink) {
  frmMain &page = Open(PageFile, "<html><head></head><body><p>One</p><p>Two</p></body></html>");
  DropFiles(ViewOf(page), {folder.FilePath(QStringLiteral("img/a b.gif"))}, {790, 12});
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<p>One<img src=\"img/a%20b.gif\"></p>")))
      << Seen(page);
  Choose("mnuUndo");
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<p>One</p>"))) << Seen(page);
}

TEST_F(RealEditing, APictureDroppedOnANewPageBecomesAnImageWithAFullLink) {
  frmMain &page = NewPage();
  const QString file = folder.FilePath(QStringLiteral("a.png"));
  DropFiles(ViewOf(page), {file}, {20, 20});
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<img src=\"file:///")));
}

TEST_F(RealEditing, PagesDroppedOnThePageOrTheWindowOpen) {
  frmMain &page = Open(PageFile, Plain);
  Write(QStringLiteral("other.html"), "<p>Other</p>");
  Write(QStringLiteral("third.HTM"), "<p>Third</p>");
  DropFiles(ViewOf(page), {folder.FilePath(QStringLiteral("other.html"))}, {20, 20});
  EXPECT_TRUE(WaitFor([&] { return Tabs().count() == 2; }));
  DropFiles(window, {folder.FilePath(QStringLiteral("third.HTM"))}, {20, 20});
  EXPECT_TRUE(WaitFor([&] { return Tabs().count() == 3; }));
  EXPECT_TRUE(Holds(page, QStringLiteral("<p>One</p>"))) << Seen(page);
}

TEST_F(RealEditing, ClosingPagesThatWereDroppedTogetherAsksNothing) {
  frmMain &page = Open(PageFile, Plain);
  QStringList dropped;
  for (const char *name : {"a.htm", "b.htm", "c.htm"}) {
    Write(QString::fromLatin1(name), QByteArray("<p>") + name + "</p>");
    dropped << folder.FilePath(QString::fromLatin1(name));
  }
  DropFiles(ViewOf(page), dropped, {20, 20});
  ASSERT_TRUE(WaitFor([&] { return Tabs().count() == 4; }));
  for (std::int16_t number = 4; number >= 1; --number) {
    frmMain &closed = modWorkFlow::PageWindow(window.Context(), number);
    EXPECT_TRUE(WaitFor([&] { return closed.PendingAction.isEmpty(); }));
    EXPECT_TRUE(closed.close()) << number;
  }
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RealEditing, PagesDroppedOnASourceOrThePreviewOpenAndLeaveThoseAsTheyAre) {
  frmMain &page = Open(PageFile, Plain);
  Write(QStringLiteral("other.html"), "<p>Other</p>");
  Write(QStringLiteral("third.html"), "<p>Third</p>");
  page.ChangeMode(3);
  auto &source = *window.findChild<frmCodeEditor *>();
  auto *text = source.findChild<QAbstractScrollArea *>();
  DropFiles(*text->viewport(), {folder.FilePath(QStringLiteral("other.html"))}, {20, 20});
  EXPECT_TRUE(WaitFor([&] { return Tabs().count() == 2; }));
  EXPECT_FALSE(source.Code().Text().contains(QStringLiteral("other.html")));
  page.ChangeMode(4);
  const frmBrowser &preview = *window.findChild<frmBrowser *>();
  DropFiles(*preview.findChild<QWebEngineView *>(), {folder.FilePath(QStringLiteral("third.html"))},
            {20, 20});
  EXPECT_TRUE(WaitFor([&] { return Tabs().count() == 3; }));
}

TEST_F(RealEditing, OtherFilesDroppedChangeNothing) {
  frmMain &page = Open(PageFile, Plain);
  Write(QStringLiteral("notes.txt"), "notes");
  DropFiles(ViewOf(page), {folder.FilePath(QStringLiteral("notes.txt"))}, {20, 20});
  Write(QStringLiteral("other.html"), "<p>Other</p>");
  DropFiles(ViewOf(page), {folder.FilePath(QStringLiteral("other.html"))}, {20, 20});
  ASSERT_TRUE(WaitFor([&] { return Tabs().count() == 2; }));
  EXPECT_TRUE(Holds(page, QStringLiteral("<body><p>One</p></body>"))) << Seen(page);
}

TEST_F(RealEditing, TheTitleIsTheProgramsName) {
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator"));
}

TEST_F(RealEditing, TheButtonsFollowTheCaret) {
  frmMain &page = Open(PageFile,
                       "<p id=plain>plain</p><p id=mixed>x <b>bold</b> <i>slanted</i> <u>lined</u>"
                       "</p><ol><li id=first>one</ol><ul><li id=point>two</ul>"
                       "<h1 align=center>title</h1><p align=right>right</p>");
  PutCaret(page, QStringLiteral("b"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_bold"));
  EXPECT_TRUE(Button("tbrEdit_bold").isEnabled());
  PutCaret(page, QStringLiteral("i"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_italic"));
  EXPECT_FALSE(Button("tbrEdit_bold").isChecked());
  PutCaret(page, QStringLiteral("u"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_underline"));
  PutCaret(page, QStringLiteral("#first"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_number"));
  EXPECT_FALSE(Button("tbrEdit_bullet").isChecked());
  PutCaret(page, QStringLiteral("#point"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_bullet"));
  EXPECT_FALSE(Button("tbrEdit_number").isChecked());
  PutCaret(page, QStringLiteral("h1"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_center"));
  PutCaret(page, QStringLiteral("[align=right]"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_right"));
  EXPECT_FALSE(Button("tbrEdit_center").isChecked());
}

TEST_F(RealEditing, ThePartlyBoldIsEnabledAndNotPressed) {
  frmMain &page = Open(PageFile, "<p>x <b>bold</b></p>");
  PutCaret(page, QStringLiteral("b"));
  ASSERT_TRUE(BecomesPressed("tbrEdit_bold"));
  Select(page, QStringLiteral("p"));
  EXPECT_TRUE(BecomesPressed("tbrEdit_bold", false));
  EXPECT_TRUE(Button("tbrEdit_bold").isEnabled());
}

TEST_F(RealEditing, TheBoxesFollowTheCaretAndSendNothingBack) {
  frmMain &page = Open(PageFile,
                       "<p>plain</p><h2><font face=\"Courier New\" size=5 color=#ff0000>title"
                       "</font></h2>");
  const QString before = page.DHTML1().DocumentHTML();
  for (const char *selector : {"font", "p", "font"}) {
    PutCaret(page, QString::fromLatin1(selector));
    const QString format =
        *selector == 'f' ? QStringLiteral("Heading 2") : QStringLiteral("Normal");
    EXPECT_TRUE(WaitFor([&] { return Find<ChoiceBox>("cobFormat")->Text() == format; }))
        << selector << ": " << Find<ChoiceBox>("cobFormat")->Text().toStdString();
  }
  EXPECT_EQ(Find<FontPicker>("Font1")->FontName(), QStringLiteral("Courier New"));
  EXPECT_EQ(Find<ChoiceBox>("cobSize")->Text(), QStringLiteral("18"));
  EXPECT_EQ(Find<ColorPicker>("cpFore")->Color(), 0x0000FF);
  EXPECT_EQ(Find<ColorPicker>("cpBack")->Color(), 0xFFFFFF);
  EXPECT_EQ(page.DHTML1().DocumentHTML(), before);
  EXPECT_TRUE(page.close());
}

TEST_F(RealEditing, EachEditButtonChangesThePageAndIsUndone) {
  frmMain &page = Open(PageFile, Plain);
  const QString before = page.DHTML1().DocumentHTML();
  for (const char *button :
       {"tbrEdit_bold", "tbrEdit_italic", "tbrEdit_underline", "tbrEdit_center", "tbrEdit_right",
        "tbrEdit_number", "tbrEdit_bullet", "tbrEdit_indent"}) {
    Choose("mnuSelectAll");
    Button(button).click();
    EXPECT_NE(page.DHTML1().DocumentHTML(), before) << button;
    Button("tbrGeneral_undo").click();
    EXPECT_EQ(page.DHTML1().DocumentHTML(), before) << button;
  }
}

TEST_F(RealEditing, AlignLeftAndOutdentTakeBackWhatIsThere) {
  frmMain &page = Open(PageFile, Plain);
  const QString before = page.DHTML1().DocumentHTML();
  for (const auto &pair : {std::pair("tbrEdit_indent", "tbrEdit_outdent"),
                           std::pair("tbrEdit_right", "tbrEdit_left")}) {
    const char *const there = pair.first;
    const char *const back = pair.second;
    Button(there).click();
    ASSERT_NE(page.DHTML1().DocumentHTML(), before) << there;
    ASSERT_TRUE(WaitFor([&] { return Button(back).isEnabled(); })) << back;
    const QString changed = page.DHTML1().DocumentHTML();
    Button(back).click();
    EXPECT_NE(page.DHTML1().DocumentHTML(), changed) << back;
  }
}

TEST_F(RealEditing, TheBoxesChangeThePage) {
  frmMain &page = Open(PageFile, Plain);
  Choose("mnuSelectAll");
  Pick("cobFormat", QStringLiteral("Heading 1"));
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<h1>One</h1>"))) << Seen(page);
  Pick("cobSize", QStringLiteral("10"));
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("size=\"2\""))) << Seen(page);
  auto *font = Find<FontPicker>("Font1");
  font->lineEdit()->setText(QStringLiteral("Some Face"));
  QTest::keyClick(font->lineEdit(), Qt::Key_Return);
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("face=\"Some Face\""))) << Seen(page);
  font->lineEdit()->setFocus();
  Q_EMIT Find<ColorPicker>("cpFore")->Panel().Chosen(QColor(0x10, 0x20, 0x30));
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("#102030"))) << Seen(page);
  EXPECT_TRUE(InputOf(page)->hasFocus());
  Q_EMIT Find<ColorPicker>("cpBack")->Panel().Chosen(QColor(0xA0, 0xB0, 0xC0));
  EXPECT_TRUE(WaitFor([&] {
    return page.DHTML1().ExecCommand(EditingCommand::GetBackColor).toString().toUpper() ==
           QStringLiteral("#A0B0C0");
  })) << Seen(page);
}

TEST_F(RealEditing, CommandsGoToThePageWhoseTabWasChosen) {
  frmMain &first = Open(PageFile, Plain);
  frmMain &second = Open(QStringLiteral("other.htm"), Plain);
  QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(0).center());
  Choose("mnuSelectAll");
  Button("tbrEdit_bold").click();
  EXPECT_TRUE(Holds(first, QStringLiteral("<b>One</b>"))) << Seen(first);
  EXPECT_TRUE(Holds(second, QStringLiteral("<p>One</p>"))) << Seen(second);
}

TEST_F(RealEditing, TheStatusBarNamesTheElementAndALinkItsTarget) {
  frmMain &page =
      Open(PageFile, "<p>text <a href=\"next.htm\">link <b id=inner>strong</b></a></p>");
  QWidget *design = page.DHTML1().Widget();
  PutCaret(page, QStringLiteral("a"));
  EXPECT_TRUE(WaitFor([&] { return StatusText() == QStringLiteral("A"); }))
      << StatusText().toStdString();
  EXPECT_EQ(design->toolTip(), QStringLiteral("Link to : next.htm"));
  PutCaret(page, QStringLiteral("#inner"));
  EXPECT_TRUE(WaitFor([&] { return StatusText() == QStringLiteral("B"); }));
  EXPECT_TRUE(design->toolTip().isEmpty());
  PutCaret(page, QStringLiteral("p"));
  EXPECT_TRUE(WaitFor([&] { return StatusText() == QStringLiteral("P"); }));
}

TEST_F(RealEditing, OfASelectionTheElementAtItsStartCounts) {
  frmMain &page = Open(PageFile, "<p><i>slanted</i> and <b>bold</b></p>");
  Evaluate(EngineOf(page), QStringLiteral("getSelection().setBaseAndExtent(document.querySelector("
                                          "'i').firstChild, 2, document.querySelector('b')"
                                          ".firstChild, 2)"));
  EXPECT_TRUE(WaitFor([&] { return page.GetActiveElement().tagName == QStringLiteral("I"); }))
      << page.GetActiveElement().tagName.toStdString();
  EXPECT_EQ(StatusText(), QStringLiteral("I"));
}

TEST_F(RealEditing, ThePointersPlaceInThePageIsKept) {
  frmMain &page = Open(PageFile, Plain);
  QTest::mouseClick(InputOf(page), Qt::LeftButton, {}, {120, 77});
  EXPECT_TRUE(WaitFor([&] { return page.ClientX == 120 && page.ClientY == 77; }));
}

TEST_F(RealEditing, TheContextMenuComesAtThePointerAndEscapeChangesNothing) {
  frmMain &page = Open(PageFile, Plain);
  QApplication::clipboard()->setText(QStringLiteral("kept"));
  Choose("mnuSelectAll");
  const QString before = page.DHTML1().DocumentHTML();
  const QPoint place(80, 60);
  auto *menu = Find<QMenu>("mnuExt");
  QTest::mouseClick(InputOf(page), Qt::RightButton, {}, place);
  ASSERT_TRUE(WaitFor([&] { return menu->isVisible(); }));
  EXPECT_EQ(menu->pos(), InputOf(page)->mapToGlobal(place));
  EXPECT_EQ(QApplication::activePopupWidget(), menu);
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Escape);
  EXPECT_FALSE(menu->isVisible());
  EXPECT_EQ(page.DHTML1().DocumentHTML(), before);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("kept"));
}

TEST_F(RealEditing, TheSourceViewIsForReadingAndThePageIsAsItWas) {
  frmMain &page = Open(PageFile, Plain);
  Type(page, QStringLiteral("x"));
  const QString before = page.DHTML1().DocumentHTML();
  page.ChangeMode(2);
  EXPECT_TRUE(page.Code1().Text().contains(QStringLiteral("xOne")));
  QWidget *source = page.Code1().Widget();
  EXPECT_TRUE(source->isVisible());
  const QString shown = page.Code1().Text();
  QTest::keyClicks(source, QStringLiteral("typed"));
  EXPECT_EQ(page.Code1().Text(), shown);
  page.ChangeMode(1);
  EXPECT_FALSE(source->isVisible());
  EXPECT_EQ(page.DHTML1().DocumentHTML(), before);
  EXPECT_TRUE(WaitFor([&] { return InputOf(page)->hasFocus(); }));
}

TEST_F(RealEditing, AppliedSourceIsInThePage) {
  frmMain &page = Open(PageFile, Plain);
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(1);
  EXPECT_TRUE(editor.Code().Text().contains(QStringLiteral("<p>One</p>")));
  editor.Code().SetText(QStringLiteral("<html><head></head><body><p>Two</p></body></html>"));
  editor.findChild<QPushButton *>(QStringLiteral("cmdApply"))->click();
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<p>Two</p>"))) << Seen(page);
  EXPECT_EQ(Bytes(PageFile), Plain);
  EXPECT_TRUE(editor.close());
  CloseUnsaved(page);
}

TEST_F(RealEditing, AnAppliedSourceIsTakenBackInDesignView) {
  frmMain &page = Open(PageFile, Plain);
  Type(page, QStringLiteral("x"));
  ASSERT_TRUE(BecomesDocument(page, QStringLiteral("<p>xOne</p>"))) << Seen(page);
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(1);
  editor.Code().SetText(QStringLiteral("<html><head></head><body><p>Two</p></body></html>"));
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_TRUE(editor.close());
  Button("tbrGeneral_undo").click();
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<p>xOne</p>"))) << Seen(page);
  Button("tbrGeneral_undo").click();
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<p>One</p>"))) << Seen(page);
  EXPECT_TRUE(page.close()) << "it is as it was opened";
}

TEST_F(RealEditing, TheCaretIsKeptBetweenDesignAndSource) {
  frmMain &page = Open(PageFile, "<html><body>\r\n<p>One</p>\r\n<h2>Two</h2>\r\n</body></html>");
  PutCaret(page, QStringLiteral("h2"));
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(1);
  EXPECT_EQ(editor.Code().CaretLine(), 2);
  EXPECT_EQ(editor.Code().CaretColumn(), 5);
  editor.Code().SetCaret(1, 5);
  EXPECT_TRUE(editor.close());
  EXPECT_EQ(page.DHTML1().CaretPlaces().at(0), (ElementPlace{QStringLiteral("p"), 0, 2}));
}

TEST_F(RealEditing, APageClosedByTheProgramWhileItsSourceIsAppliedIsNoHarm) {
  frmMain &page = Open(PageFile, Plain);
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(1);
  editor.Code().SetText(QStringLiteral("<html><head></head><body><p>Two</p></body></html>"));
  QTimer::singleShot(0, &window, [&page] {
    page.MarkKill();
    page.close();
  });
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_TRUE(WaitFor([&] { return window.Context().pages.Page(1).isNull(); }));
  EXPECT_TRUE(window.Context().pages.CodeEditor(1).isNull());
}

TEST_F(RealEditing, AnInsertedTableIsInThePageAtTheCaret) {
  frmMain &page = Open(PageFile, Plain);
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
  });
  Choose("mnuTBLnew");
  EXPECT_TRUE(BecomesDocument(page, QStringLiteral("<table"))) << Seen(page);
  // Once more what the dialog left, though it is cancelled.
  dialogs.ExpectModal([](QWidget &) {});
  Choose("mnuTBLnew");
  EXPECT_EQ(page.DHTML1().DocumentHTML().count(QStringLiteral("<table")), 2) << Seen(page);
}

}  // namespace
}  // namespace velor
