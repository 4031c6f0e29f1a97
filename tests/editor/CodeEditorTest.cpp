// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/editor/EditorWorld.h"

#include <QPushButton>

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

TEST_F(CodeEditorTest, ApplyingWritesTheCopyAndLoadsThePageFromIt) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_EQ(Content(IndexCopy), "<p>edited</p>\r\n");
  EXPECT_EQ(Component(1).DocumentHTML().trimmed(), QStringLiteral("<p>edited</p>"));
  EXPECT_EQ(editor.AppliedText, QStringLiteral("<p>edited</p>"));
  EXPECT_EQ(log[0], QStringLiteral("LoadDocument(\\site\\indexTMP.htm)"));
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
}

TEST_F(CodeEditorTest, AppliedChangesAreUnsavedChangesOfThePage) {
  frmCodeEditor &editor = Edit();
  Code(1).text = QStringLiteral("<p>edited</p>");
  editor.ApplyCode();
  Component(1).CompleteDocument();
  EXPECT_EQ(Record(1).SavedHTML, QStringLiteral("<p>a</p>"));
}

TEST_F(CodeEditorTest, WithoutATemporaryCopyThePageTakesTheTextItself) {
  frmCodeEditor &editor = Edit();
  files.Delete(IndexCopy);
  files.MakeFolderUnwritable(QStringLiteral("\\site"));
  Code(1).text = QStringLiteral("<p>edited</p>");
  EXPECT_EQ(editor.ApplyCode(), 0);
  EXPECT_EQ(Component(1).DocumentHTML(), QStringLiteral("<p>edited</p>"));
  EXPECT_FALSE(Exists(IndexCopy));
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
  EXPECT_EQ(log[1], QStringLiteral("LoadDocument(\\site\\indexTMP.htm)"));
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
  EXPECT_EQ(Component(1).DocumentHTML().trimmed(), QStringLiteral("edited"));
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

TEST_F(CodeEditorTest, ItsMarginsGetTheirColoursAndItsTextMayBeTyped) {
  Edit();
  EXPECT_EQ(Code(1).colors.at(1), 8421504);
  EXPECT_EQ(Code(1).colors.at(27), 8421504);
  EXPECT_EQ(Code(1).colors.at(26), 16777215);
  EXPECT_EQ(Code(1).access, SourceAccess::Edit);
}

}  // namespace velor
