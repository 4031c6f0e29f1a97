// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OpenPages.h"
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"

namespace velor {

namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString OtherFile = QStringLiteral("\\site\\other.htm");
const QString NewName = QStringLiteral("\\site\\new.htm");
constexpr bool AsBefore = false;
constexpr bool UnderNewName = true;
constexpr int Cancelled = 32755;

}  // namespace

class SaveTest : public EditorWorld {
 protected:
  std::int32_t Save(int number, bool saveAs) {
    return modWorkFlow::SavePage(context, Page(number), dialog, Record(number), saveAs);
  }
};

TEST_F(SaveTest, APlainSaveWritesTheFileAndAsksNothing) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>b</p>");
  EXPECT_EQ(log, Calls({"SaveDocument(\\site\\index.htm)", "DocumentHTML()"}));
}

TEST_F(SaveTest, APlainSaveRenewsTheBaselineAndTheRecord) {
  Open(IndexFile);
  Record(1).ReadOnly = True16;
  Record(1).Spare = True16;
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  Save(1, AsBefore);
  const PageRecord record = Record(1);
  EXPECT_EQ(record.SavedHTML, QStringLiteral("<p>b</p>"));
  EXPECT_EQ(record.ReadOnly, False16);
  EXPECT_EQ(record.HasFile, True16);
  EXPECT_EQ(record.Spare, False16);
  EXPECT_EQ(record.Path, IndexFile);
  EXPECT_EQ(record.TempPath, QStringLiteral("\\site\\indexTMP.htm"));
}

TEST_F(SaveTest, APlainSaveTakesItsPathFromTheDialogAfterWritingTheOldOne) {
  Open(IndexFile);
  Open(OtherFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>b</p>");
  EXPECT_EQ(Content(OtherFile), "<p>a</p>");
  EXPECT_EQ(Record(1).Path, OtherFile);
  EXPECT_EQ(Record(1).TempPath, QStringLiteral("\\site\\otherTMP.htm"));
}

TEST_F(SaveTest, APlainSaveThatFailsCountsAsSuccessAndTheStatusBarTellsWhy) {
  Open(IndexFile);
  files.MakeReadOnly(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
  EXPECT_EQ(Record(1).SavedHTML, QStringLiteral("<p>b</p>"));
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_TRUE(
      mainWindow.reports[0].startsWith(QStringLiteral("/site/index.htm could not be saved: ")))
      << mainWindow.reports[0].toStdString();
}

TEST_F(SaveTest, APlainSaveLeavesCaptionsAlone) {
  Open(IndexFile);
  Save(1, AsBefore);
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("index.htm"));
  EXPECT_EQ(mainWindow.tabs[0].caption, QStringLiteral("index.htm"));
}

TEST_F(SaveTest, ANewPageAsksForANameWithTheHtmlFilter) {
  New();
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(dialog.shownFilter, QStringLiteral("HTML File *.htm|*.htm"));
  EXPECT_EQ(dialog.shownFlags, 2);
  EXPECT_TRUE(Exists(NewName));
}

TEST_F(SaveTest, SavingUnderANewNameGoesInTheStatedOrder) {
  Open(IndexFile);
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, UnderNewName), 0);
  EXPECT_EQ(log, Calls({"ShowSave(HTML File *.htm|*.htm)", "SaveDocument(\\site\\new.htm)",
                        "DocumentHTML()", "SetTabCaption(key1, new.htm)",
                        "LoadDocument(\\site\\new.htm)", "SetSourceEditingEnabled(True)"}));
}

TEST_F(SaveTest, SavingUnderANewNameBringsTheRecordUpToDateInPlace) {
  New();
  Record(1).ReadOnly = True16;
  Record(1).Spare = True16;
  dialog.ExpectSave(NewName);
  Save(1, AsBefore);
  const PageRecord record = Record(1);
  EXPECT_EQ(record.HasFile, True16);
  EXPECT_EQ(record.ReadOnly, False16);
  EXPECT_EQ(record.Spare, False16);
  EXPECT_EQ(record.Path, NewName);
  EXPECT_EQ(record.TempPath, QStringLiteral("\\site\\newTMP.htm"));
  EXPECT_EQ(record.Caption, QStringLiteral("Untitled 1")) << "a save does not change it";
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("new.htm"));
}

TEST_F(SaveTest, ASecondSaveOfAPageSavedOnceAsksNothing) {
  New();
  dialog.ExpectSave(NewName);
  Save(1, AsBefore);
  Component(1).CompleteDocument();
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(NewName), "<p>b</p>");
}

TEST_F(SaveTest, AProjectPageAsksThoughItCameFromAFile) {
  files.AddFile(IndexFile, "<p>a</p>");
  modWorkFlow::OpenProjectPage(context, IndexFile);
  dialog.ExpectCancelledSave();
  EXPECT_EQ(Save(1, AsBefore), Cancelled);
}

TEST_F(SaveTest, ACancelledDialogChangesNothing) {
  Open(IndexFile);
  for (const bool raises : {false, true}) {
    dialog.CancelError = raises;
    log.clear();
    dialog.ExpectCancelledSave();
    EXPECT_EQ(Save(1, UnderNewName), Cancelled);
    EXPECT_EQ(log, Calls({"ShowSave(HTML File *.htm|*.htm)"}));
    EXPECT_EQ(Record(1).Path, IndexFile);
    EXPECT_EQ(dialog.FileName, IndexFile);
  }
}

TEST_F(SaveTest, AFileThatCannotBeWrittenReturnsItsErrorNumber) {
  Open(IndexFile);
  files.AddFile(NewName, "old");
  files.MakeReadOnly(NewName);
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, UnderNewName), static_cast<int>(ErrorNumber::PathFileAccess));
  EXPECT_EQ(Record(1).Path, IndexFile);
  EXPECT_EQ(Content(NewName), "old");
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("index.htm"));
}

TEST_F(SaveTest, AfterAPageWasClosedTheOthersAreSavedUnderTheirOwnTabs) {
  New().close();
  New();
  New();
  Component(2).Edit(QStringLiteral("<p>b</p>"));
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(2, UnderNewName), 0);
  EXPECT_EQ(Content(NewName), "<p>b</p>");
  EXPECT_EQ(mainWindow.tabs[0].caption, QStringLiteral("new.htm"));
  EXPECT_EQ(mainWindow.tabs[1].caption, QStringLiteral("Untitled 3"));
}

TEST_F(SaveTest, AFileThatCannotBeReadBackReturnsItsErrorNumber) {
  Open(IndexFile);
  Component(1).nextLoadFailure =
      RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("LoadDocument"));
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, UnderNewName), static_cast<int>(ErrorNumber::DeviceIoError));
  EXPECT_EQ(Record(1).Path, NewName);
}

/// Saved as the Save and Save As commands do it.
class SaveCommandTest : public SaveTest {
 protected:
  modWorkFlow::SaveEnd Command(int number, modWorkFlow::SaveKind kind) {
    return modWorkFlow::SaveAndReport(context, Page(number), kind);
  }
  modWorkFlow::SaveEnd Plain(int number) { return Command(number, modWorkFlow::SaveKind::Save); }
};

TEST_F(SaveCommandTest, EveryPlainSaveGoesToThePagesOwnFileWhateverWasOpenedSince) {
  Open(IndexFile);
  Open(OtherFile);
  for (const char *text : {"<p>b</p>", "<p>c</p>"}) {
    dialog.FileName = OtherFile;
    Component(1).Edit(QString::fromLatin1(text));
    EXPECT_EQ(Plain(1), modWorkFlow::SaveEnd::Safe);
    EXPECT_EQ(Content(IndexFile), text);
    EXPECT_EQ(Content(OtherFile), "<p>a</p>");
    EXPECT_EQ(dialog.FileName, IndexFile);
  }
}

TEST_F(SaveCommandTest, AFailedSaveUnderANewNameLeavesThePageItsOwn) {
  Open(IndexFile);
  files.AddFile(NewName, "old");
  files.MakeReadOnly(NewName);
  dialog.ExpectSave(NewName);
  dialogs.ExpectMessage(QStringLiteral("File saving error: 75"));
  EXPECT_EQ(Command(1, modWorkFlow::SaveKind::SaveAs), modWorkFlow::SaveEnd::Failed);
  EXPECT_TRUE(dialogs.messages.at(0).details.contains(NewName))
      << dialogs.messages.at(0).details.toStdString();
  EXPECT_EQ(dialog.FileName, IndexFile);
  for (int times = 0; times < 2; ++times) Plain(1);
  EXPECT_EQ(Record(1).Path, IndexFile);
  EXPECT_EQ(Content(NewName), "old");
}

TEST_F(SaveCommandTest, AReadOnlyFileIsSaidToBeSoAndAnotherNameIsOffered) {
  Open(IndexFile);
  files.MakeReadOnly(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  const QString question = QStringLiteral(
      "index.htm is read-only. Do you want to save your changes under another name?");
  dialogs.ExpectMessage(question, MessageAnswer::No);
  EXPECT_EQ(Plain(1), modWorkFlow::SaveEnd::Cancelled);
  EXPECT_NE(Record(1).SavedHTML, QStringLiteral("<p>b</p>"));
  dialogs.ExpectMessage(question, MessageAnswer::Yes);
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Plain(1), modWorkFlow::SaveEnd::Safe);
  EXPECT_EQ(Content(NewName), "<p>b</p>");
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
}

TEST_F(SaveCommandTest, APlainSaveThatFailsWithNoJournalToHoldThePageIsTold) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  files.FailNextWrite(ErrorNumber::DiskFull);
  dialogs.ExpectMessage(QStringLiteral("File saving error: 61"));
  EXPECT_EQ(Plain(1), modWorkFlow::SaveEnd::Failed);
  EXPECT_EQ(dialogs.messages.at(0).icon, MessageIcon::Critical);
  EXPECT_TRUE(dialogs.messages.at(0).details.startsWith(QStringLiteral("Disk full")))
      << dialogs.messages.at(0).details.toStdString();
}

TEST_F(SaveCommandTest, IntoAnotherFolderLinksAreAdaptedTakenAlongOrLeft) {
  const QString question = QStringLiteral(
      "From the new folder one link and one picture of this page would lead nowhere.");
  const QByteArray page = "<a href=other.htm>x</a><img src=a.png>";
  files.AddFile(OtherFile, "other");
  files.AddFile(QStringLiteral("\\site\\a.png"), "picture");
  files.AddFolder(QStringLiteral("\\new"));
  const QString target = QStringLiteral("\\new\\page.htm");
  struct Case {
    const char *caption;
    QByteArray written;
  };
  for (const Case &choice :
       {Case{"Leave", page},
        Case{"Adapt", "<a href=../site/other.htm>x</a><img src=../site/a.png>"},
        Case{"Take Pictures Along", "<a href=../site/other.htm>x</a><img src=a.png>"}}) {
    Open(IndexFile, page);
    const int number = pages.PageCount();
    dialog.ExpectSave(target);
    dialogs.ExpectChoice(question, QString::fromLatin1(choice.caption));
    EXPECT_EQ(Command(number, modWorkFlow::SaveKind::SaveAs), modWorkFlow::SaveEnd::Safe);
    EXPECT_EQ(Content(target), choice.written) << choice.caption;
    Component(number).CompleteDocument();
    Page(number).close();
  }
  EXPECT_EQ(Content(QStringLiteral("\\new\\a.png")), "picture");
  EXPECT_EQ(Content(IndexFile), page);
}

TEST(ProposedFileTest, IsThePagesOwnFileElseANameFromItsTitleOrCaption) {
  const QString folder = QStringLiteral("\\site");
  const auto proposed = [&](const char *html) {
    PageRecord record;
    record.Caption = QStringLiteral("Untitled 3");
    return ProposedFile(record, QString::fromUtf8(html), folder).toStdString();
  };
  PageRecord project;
  project.Path = QStringLiteral("\\shop\\Home.htm");
  EXPECT_EQ(ProposedFile(project, {}, folder), project.Path);
  EXPECT_EQ(proposed(""), "\\site\\Untitled 3.htm");
  EXPECT_EQ(proposed("<TITLE>Untitled New Page</TITLE>"), "\\site\\Untitled 3.htm");
  EXPECT_EQ(proposed("<title>Bread &amp; rolls\n from Anna</title>"),
            "\\site\\Bread & rolls from Anna.htm");
  EXPECT_EQ(proposed("<title> a/b\\c: \"d\"? </title>"), "\\site\\abc d.htm");
  EXPECT_EQ(proposed("<title>...</title>"), "\\site\\Untitled 3.htm");
  EXPECT_EQ(proposed("<title>never closed"), "\\site\\Untitled 3.htm");
}

TEST(UnsavedChangesTest, LetterCaseAndOuterWhiteSpaceDoNotCount) {
  EXPECT_FALSE(modWorkFlow::HasUnsavedChanges(QStringLiteral("<P>Text</P>"),
                                              QStringLiteral("\r\n\t <p>text</p> \n")));
  EXPECT_TRUE(modWorkFlow::HasUnsavedChanges(QStringLiteral("<p>text</p>"),
                                             QStringLiteral("<p>te xt</p>")));
  EXPECT_TRUE(modWorkFlow::HasUnsavedChanges(QString(), QStringLiteral("<p>")));
  EXPECT_FALSE(modWorkFlow::HasUnsavedChanges(QString(), QStringLiteral(" \n")));
}

}  // namespace velor
