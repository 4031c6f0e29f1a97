// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/editor/EditorWorld.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QToolBar>

namespace velor {

namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString IndexCopy = QStringLiteral("\\site\\indexTMP.htm");
const QString ApplyQuestion = QStringLiteral("Do you want to apply the changes on this Document?");

}  // namespace

class CodeEditorTest : public EditorWorld {
 protected:
  frmCodeEditor &Edit() {
    Open(IndexFile);
    Page(1).ChangeMode(3);
    log.clear();
    return *pages.CodeEditor(1);
  }
  void FailNextLoad() {
    Component(1).nextLoadFailure =
        RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("LoadDocument"));
  }
};

TEST_F(CodeEditorTest, ApplyingWritesTheCopyAndLoadsThePageWithoutItsLastLineBreak) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_EQ(Content(IndexCopy), "<p>edited</p>\r\n");
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>edited</p>"));
  EXPECT_EQ(editor.AppliedText, QStringLiteral("<p>edited</p>"));
  EXPECT_EQ(log[0], QStringLiteral("LoadText(\\site\\index.htm)"));
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
}

TEST_F(CodeEditorTest, AChosenCharacterIsItselfWhereTheSourcesCharsetHasItElseAReference) {
  frmCodeEditor &editor = Edit();
  const auto insert = [&](const QString &source) {
    Code(1).text = source;
    Code(1).selectionStart = 0;
    Code(1).selectionEnd = 3;
    for (const char16_t character : u"\u00E9\u2603<&")
      if (character != 0) editor.InsertCharacter(QChar(character));
    return Code(1).text;
  };
  EXPECT_EQ(insert(QStringLiteral("one<p>")), QStringLiteral("\u00E9\u2603&lt;&amp;<p>"));
  const QString latin = QStringLiteral("<meta charset=iso-8859-1>");
  EXPECT_EQ(insert(QStringLiteral("one") + latin),
            QStringLiteral("\u00E9&#9731;&lt;&amp;") + latin);
}

TEST_F(CodeEditorTest, AppliedChangesAreUnsavedChangesOfThePage) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  editor.ApplyCode();
  Component(1).CompleteDocument();
  EXPECT_EQ(Record(1).SavedHTML, QStringLiteral("<p>a</p>"));
}

TEST_F(CodeEditorTest, WithoutATemporaryCopyThePageTakesTheTextItselfInItsOwnFolder) {
  frmCodeEditor &editor = Edit();
  files.Delete(IndexCopy);
  files.MakeFolderUnwritable(QStringLiteral("\\site"));
  Code(1).text = QStringLiteral("<p>edited</p>");
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_EQ(log[0], QStringLiteral("LoadText(\\site\\index.htm)"));
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>edited</p>"));
  EXPECT_FALSE(Exists(IndexCopy));
}

TEST_F(CodeEditorTest, AFailingWriteIsNoNumberButAnErrorAndNothingIsLoaded) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  files.FailNextWrite(ErrorNumber::DiskFull);
  EXPECT_EQ(ErrorOf([&] { editor.ApplyCode(); }), ErrorNumber::DiskFull);
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(editor.AppliedText, QStringLiteral("<p>a</p>"));
  EXPECT_EQ(Code(1).text, QStringLiteral("<p>edited</p>"));
}

TEST_F(CodeEditorTest, TheCopyIsWrittenInThePagesCharset) {
  Open(IndexFile, "<p>caf\xe9</p>");
  Page(1).ChangeMode(3);
  Code(1).text = QStringLiteral("<p>caf\u00e9 na\u00efve</p>");
  pages.CodeEditor(1)->ApplyCode();
  EXPECT_EQ(Content(IndexCopy), "<p>caf\xe9 na\xefve</p>\r\n");
}

TEST_F(CodeEditorTest, ACharsetThatTheSourceDeclaresIsTheCopys) {
  Open(IndexFile, "<meta charset=big5><p>\xa4\xa4</p>");
  Page(1).ChangeMode(3);
  Code(1).text = QStringLiteral("<meta charset=utf-8><p>\u4e2d</p>");
  pages.CodeEditor(1)->ApplyCode();
  EXPECT_EQ(Content(IndexCopy), "<meta charset=utf-8><p>\xe4\xb8\xad</p>\r\n");
  EXPECT_EQ(Component(1).Charset(), QStringLiteral("utf-8"));
}

TEST_F(CodeEditorTest, AByteOrderMarkStays) {
  Open(IndexFile, "\xef\xbb\xbf<p>a</p>");
  Page(1).ChangeMode(3);
  Code(1).text = QStringLiteral("<p>b</p>");
  pages.CodeEditor(1)->ApplyCode();
  EXPECT_EQ(Content(IndexCopy), "\xef\xbb\xbf<p>b</p>\r\n");
}

TEST_F(CodeEditorTest, APageWindowThatIsGoneIsMadeAnew) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  frmMain *gone = &Page(1);
  std::erase(mainWindow.adopted, gone);
  delete gone;
  EXPECT_EQ(editor.ApplyCode(), 0);
  ASSERT_FALSE(pages.Page(1).isNull());
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>edited</p>"));
}

TEST_F(CodeEditorTest, AReadOnlyFileOfTheCopysNameStaysAndDoesNotKeepASourceFromBeingApplied) {
  files.AddFile(IndexCopy, "mine");
  files.MakeReadOnly(IndexCopy);
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>edited</p>"));
  EXPECT_EQ(Content(IndexCopy), "mine");
}

TEST_F(CodeEditorTest, AFailingLoadReturnsItsNumberAndKeepsSourceAndAppliedText) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  FailNextLoad();
  EXPECT_EQ(editor.ApplyCode(), 57);
  EXPECT_EQ(editor.AppliedText, QStringLiteral("<p>a</p>"));
  EXPECT_EQ(Code(1).text, QStringLiteral("<p>edited</p>"));
}

TEST_F(CodeEditorTest, AKeyOutsideThePageListIsAnErrorThatIsNotCaught) {
  frmCodeEditor &editor = Edit();
  for (const char *key : {"0", "2", "-1"}) {
    editor.Tag = QString::fromLatin1(key);
    EXPECT_EQ(ErrorOf([&] { editor.ApplyCode(); }), ErrorNumber::SubscriptOutOfRange) << key;
  }
}

TEST_F(CodeEditorTest, TheApplyButtonLetsPendingEventsRunFirst) {
  frmCodeEditor &editor = Edit();
  auto *apply = editor.findChild<QPushButton *>(QStringLiteral("cmdApply"));
  ASSERT_NE(apply, nullptr);
  EXPECT_EQ(apply->text(), QStringLiteral("Apply to Document"));
  apply->click();
  EXPECT_EQ(log[0], QStringLiteral("ProcessPendingEvents()"));
  EXPECT_EQ(log[1], QStringLiteral("LoadText(\\site\\index.htm)"));
}

TEST_F(CodeEditorTest, TheApplyButtonTellsAFailure) {
  frmCodeEditor &editor = Edit();
  FailNextLoad();
  dialogs.ExpectMessage(Description(57));
  editor.findChild<QPushButton *>(QStringLiteral("cmdApply"))->click();
  EXPECT_EQ(dialogs.messages.at(0).title, QStringLiteral("Error Number: 57"));
  EXPECT_EQ(dialogs.messages.at(0).icon, MessageIcon::Critical);
}

TEST_F(CodeEditorTest, ClosingWithoutChangesAsksNothingAndFreesThePage) {
  frmCodeEditor &editor = Edit();
  EXPECT_TRUE(editor.close());
  EXPECT_EQ(Record(1).EditorOpen, False16);
  EXPECT_TRUE(Page(1).close());
}

TEST_F(CodeEditorTest, LetterCaseAndOuterBlanksCloseUnasked) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("  <P>A</p> ");
  EXPECT_TRUE(editor.close());
}

TEST_F(CodeEditorTest, AnOuterLineBreakCountsAsAChange) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>a</p>\n");
  dialogs.ExpectMessage(ApplyQuestion, MessageAnswer::Cancel);
  EXPECT_FALSE(editor.close());
}

TEST_F(CodeEditorTest, CancelKeepsTheEditorWithItsText) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("edited");
  dialogs.ExpectMessage(ApplyQuestion, MessageAnswer::Cancel);
  EXPECT_FALSE(editor.close());
  EXPECT_EQ(Code(1).text, QStringLiteral("edited"));
  EXPECT_EQ(Record(1).EditorOpen, True16);
  EXPECT_EQ(dialogs.messages.at(0).buttons, MessageButtons::YesNoCancel);
  EXPECT_EQ(dialogs.messages.at(0).icon, MessageIcon::Question);
}

TEST_F(CodeEditorTest, NoClosesWithoutApplying) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("edited");
  dialogs.ExpectMessage(ApplyQuestion, MessageAnswer::No);
  EXPECT_TRUE(editor.close());
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>a</p>"));
  EXPECT_EQ(Record(1).EditorOpen, False16);
}

TEST_F(CodeEditorTest, YesAppliesAndCloses) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("edited");
  dialogs.ExpectMessage(ApplyQuestion, MessageAnswer::Yes);
  EXPECT_TRUE(editor.close());
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("edited"));
}

TEST_F(CodeEditorTest, YesThatFailsTellsWhyAndKeepsTheEditor) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("edited");
  FailNextLoad();
  dialogs.ExpectMessage(ApplyQuestion, MessageAnswer::Yes);
  dialogs.ExpectMessage(Description(57));
  EXPECT_FALSE(editor.close());
  EXPECT_EQ(dialogs.messages.at(1).icon, MessageIcon::None);
  EXPECT_EQ(Record(1).EditorOpen, True16);
}

TEST_F(CodeEditorTest, AfterApplyingItClosesUnasked) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("edited");
  editor.ApplyCode();
  EXPECT_TRUE(editor.close());
}

TEST_F(CodeEditorTest, MarkedKillItClosesUnaskedAndFreesThePage) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("edited");
  editor.MarkKill();
  EXPECT_TRUE(editor.close());
  EXPECT_EQ(Record(1).EditorOpen, False16);
  DeleteClosedWindows();
  EXPECT_TRUE(pages.CodeEditor(1).isNull());
}

TEST_F(CodeEditorTest, ItsPartsLieAsStated) {
  frmCodeEditor &editor = Edit();
  editor.resize(1000, 700);
  editor.show();
  QCoreApplication::sendPostedEvents();
  const auto part = [&editor](const char *name) {
    return editor.findChild<QWidget *>(QString::fromLatin1(name));
  };
  EXPECT_TRUE(part("CoolBar")->isAncestorOf(part("tbrGeneral")));
  EXPECT_TRUE(part("CoolBar")->isAncestorOf(part("cmdApply")));
  EXPECT_TRUE(part("picTop")->isAncestorOf(part("tabCode")));
  EXPECT_EQ(part("Code")->parentWidget(), part("picMain"));
  EXPECT_EQ(part("picTop")->height(), part("CoolBar")->height());
  EXPECT_EQ(part("CoolBar")->width(), editor.width());
  EXPECT_EQ(part("picMain")->width(), editor.width() - part("picTools")->width());
  EXPECT_EQ(part("Code")->size(), part("picMain")->size());
  EXPECT_EQ(part("staMain")->geometry().bottom(), editor.rect().bottom());
}

TEST_F(CodeEditorTest, TheToolbarHasItsTwelveImagesAndTheTabsTheirSevenNames) {
  frmCodeEditor &editor = Edit();
  QStringList keys;
  for (const QAction *button :
       editor.findChild<QToolBar *>(QStringLiteral("tbrGeneral"))->actions()) {
    keys << button->data().toString();
    EXPECT_FALSE(button->icon().isNull()) << qPrintable(keys.last());
    EXPECT_FALSE(button->toolTip().isEmpty()) << qPrintable(keys.last());
  }
  EXPECT_EQ(keys, (QStringList{"copy", "cut", "find next", "find", "goto line number", "indent",
                               "mark all found", "outdent", "paste", "redo", "replace", "undo"}));
  const auto *tabs = editor.findChild<QTabBar *>(QStringLiteral("tabCode"));
  QStringList names;
  for (int tab = 0; tab < tabs->count(); ++tab) names << tabs->tabText(tab);
  EXPECT_EQ(names,
            (QStringList{"Standard", "Forms", "Fonts", "Lists", "Scripts", "Frames", "Advance"}));
}

TEST_F(CodeEditorTest, ItsButtonsDoWhatTheySayAndItsEmptyTabsAreOff) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("one\ntwo\nthree");
  const auto press = [&](const char *button) {
    editor.findChild<QAction *>(QString::fromLatin1(button))->trigger();
  };
  const std::pair<const char *, EditingCommand> commands[] = {
      {"copy", EditingCommand::Copy},      {"cut", EditingCommand::Cut},
      {"paste", EditingCommand::Paste},    {"undo", EditingCommand::Undo},
      {"redo", EditingCommand::Redo},      {"indent", EditingCommand::Indent},
      {"outdent", EditingCommand::Outdent}};
  for (const auto &[button, command] : commands) {
    log.clear();
    press(button);
    EXPECT_EQ(log, CallLog({QStringLiteral("Source.Edit(%1)").arg(Number(command))})) << button;
  }
  dialogs.ExpectQuestion(QStringLiteral("Line:"), QStringLiteral("2"));
  press("goto line number");
  EXPECT_EQ(Code(1).CaretLine(), 1);
  dialogs.ExpectQuestion(QStringLiteral("Line:"), QStringLiteral("99"));
  press("goto line number");
  EXPECT_EQ(Code(1).CaretLine(), 2);
  for (const char *button : {"find", "replace", "mark all found", "find next"}) {
    auto *bar = editor.findChild<QWidget *>(QStringLiteral("picFind"));
    bar->hide();
    press(button);
    EXPECT_TRUE(bar->isVisibleTo(&editor)) << button;
  }
  EXPECT_FALSE(editor.findChild<QTabBar *>(QStringLiteral("tabCode"))->isEnabled());
}

TEST_F(CodeEditorTest, ByThePublishedBehaviourItsButtonsAndTabsDoNothing) {
  context.hasAdditions = false;
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("one two");
  Code(1).selectionEnd = 3;
  for (QAction *button : editor.findChild<QToolBar *>(QStringLiteral("tbrGeneral"))->actions())
    button->trigger();
  auto *tabs = editor.findChild<QTabBar *>(QStringLiteral("tabCode"));
  for (int tab = 0; tab < tabs->count(); ++tab) tabs->setCurrentIndex(tab);
  EXPECT_EQ(Code(1).text, QStringLiteral("one two"));
  EXPECT_EQ(Code(1).SelectedText(), QStringLiteral("one"));
  EXPECT_FALSE(editor.findChild<QWidget *>(QStringLiteral("picFind"))->isVisibleTo(&editor));
  EXPECT_TRUE(log.empty());
}

TEST_F(CodeEditorTest, ByThePublishedBehaviourItHasNeitherKeysNorAMenuOfOurs) {
  context.hasAdditions = false;
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>typed</p>");
  EXPECT_TRUE(editor.findChildren<QShortcut *>().empty());
  const QList<QMenu *> before = editor.findChildren<QMenu *>();
  Q_EMIT Code(1).Widget()->customContextMenuRequested({});
  EXPECT_EQ(editor.findChildren<QMenu *>(), before);
  EXPECT_EQ(Code(1).Widget()->contextMenuPolicy(), Qt::PreventContextMenu);
  EXPECT_EQ(editor.findChild<QPushButton *>(QStringLiteral("cmdApply"))->toolTip(), QString());
}

TEST_F(CodeEditorTest, TheSourcesMenuActsOnTheSourceAppliesItAndTurnsWrappingOnAndOff) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>typed</p>");
  const auto open = [&]() -> QMenu & {
    Q_EMIT Code(1).Widget()->customContextMenuRequested({});
    return *editor.findChildren<QMenu *>().constLast();
  };
  const auto choose = [&](const char *caption) {
    QMenu &menu = open();
    for (QAction *item : menu.actions())
      if (item->text() == QString::fromLatin1(caption)) item->trigger();
    menu.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  QStringList captions;
  QMenu &menu = open();
  for (const QAction *item : menu.actions()) captions << item->text();
  EXPECT_EQ(captions.join(u'|').toStdString(),
            "&Undo|&Redo||Cu&t|&Copy|&Paste|&Delete||Select &All||Apply to Document|&Wrap Lines");
  menu.close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  choose("Select &All");
  EXPECT_EQ(Code(1).SelectedText(), QStringLiteral("<p>typed</p>"));
  EXPECT_TRUE(editor.UnappliedText().has_value());
  choose("Apply to Document");
  EXPECT_FALSE(editor.UnappliedText().has_value());
  EXPECT_EQ(Code(1).wrap, LineWrap::On);
  choose("&Wrap Lines");
  EXPECT_EQ(Code(1).wrap, LineWrap::Off);
  QMenu &after = open();
  EXPECT_FALSE(after.actions().constLast()->isChecked());
  after.close();
}

TEST_F(CodeEditorTest, TheMarkedLineIsTheFirstAtLoadAndThenTheCarets) {
  Open(IndexFile, "<p>a</p>\n<p>b</p>");
  EXPECT_EQ(Code(1).markedLine, 0);
  Page(1).ChangeMode(3);
  Code(1).SetCaret(1, 2);
  EXPECT_EQ(Code(1).markedLine, 1);
}

TEST_F(CodeEditorTest, ACaretBeyondItsLineGoesBackToTheLinesEnd) {
  Edit();
  Code(1).strayColumn = 99;
  Code(1).selectionListener();
  EXPECT_EQ(Code(1).CaretColumn(), 8);
}

TEST_F(CodeEditorTest, ASelectionThatReachesBeyondItsLineStays) {
  Edit();
  Code(1).selectionStart = 2;
  Code(1).selectionEnd = 4;
  Code(1).strayColumn = 99;
  Code(1).selectionListener();
  EXPECT_EQ(Code(1).strayColumn, 99);
  EXPECT_EQ(Code(1).SelectedText().size(), 2);
}

TEST_F(CodeEditorTest, TheStatusBarTellsPlaceAndLineEnds) {
  Open(IndexFile, "<p>a</p>\r\n<p>b</p>");
  Page(1).ChangeMode(3);
  Code(1).SetCaret(1, 2);
  const auto text = [this](const char *name) {
    return pages.CodeEditor(1)->findChild<QLabel *>(QString::fromLatin1(name))->text();
  };
  EXPECT_EQ(text("lblPlace"), QStringLiteral("Line 2, Column 3"));
  EXPECT_EQ(text("lblLineEnds"), QStringLiteral("CR LF"));
}

TEST_F(CodeEditorTest, ItOpensAtTheElementThatThePagesCaretStandsIn) {
  Open(IndexFile, "<p>One</p>\r\n<p>Two</p>");
  Component(1).caretPlaces = {{QStringLiteral("p"), 1, 2}};
  Page(1).ChangeMode(3);
  EXPECT_EQ(Code(1).CaretLine(), 1);
  EXPECT_EQ(Code(1).CaretColumn(), 5);
}

TEST_F(CodeEditorTest, ApplyingTakesThePagesCaretAlong) {
  Open(IndexFile, "<p>One</p>\r\n<p>Two</p>");
  Page(1).ChangeMode(3);
  Code(1).SetCaret(1, 4);
  pages.CodeEditor(1)->ApplyCode();
  ASSERT_FALSE(Component(1).caretPlaces.empty());
  EXPECT_EQ(Component(1).caretPlaces.front(), (ElementPlace{QStringLiteral("p"), 1, 1}));
}

TEST_F(CodeEditorTest, ClosingTakesThePagesCaretAlongOnlyWhereItWasMoved) {
  Open(IndexFile, "<p>One</p>\r\n<p>Two</p>");
  Component(1).caretPlaces = {{QStringLiteral("p"), 0, 2}};
  Page(1).ChangeMode(3);
  pages.CodeEditor(1)->close();
  EXPECT_EQ(Component(1).caretPlaces.size(), 1u) << "told as it was";
  Page(1).ChangeMode(3);
  Code(1).SetCaret(1, 4);
  pages.CodeEditor(1)->close();
  EXPECT_EQ(Component(1).caretPlaces.front(), (ElementPlace{QStringLiteral("p"), 1, 1}));
}

TEST_F(CodeEditorTest, ItsMarginsGetTheirColoursAndItsTextMayBeTyped) {
  Edit();
  EXPECT_EQ(Code(1).colors.at(1), 8421504);
  EXPECT_EQ(Code(1).colors.at(27), 8421504);
  EXPECT_EQ(Code(1).colors.at(26), 16777215);
  EXPECT_EQ(Code(1).access, SourceAccess::Edit);
}

}  // namespace velor
