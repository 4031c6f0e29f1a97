// SPDX-License-Identifier: GPL-3.0-or-later
// A save keeps the version of a file that its page did not come from.
#include "tests/editor/PageJournalFixture.h"

namespace velor {
namespace {

class ReplacedVersionsTest : public EditorWorld {
 protected:
  ReplacedVersionsTest() { platform.replaced = &replaced; }
  void Save(int number) {
    modWorkFlow::SavePage(context, Page(number), dialog, Record(number), AsBefore);
  }
  static QStringList Versions(std::initializer_list<const char *> contents) {
    QStringList versions;
    for (const char *content : contents)
      versions << QStringLiteral("\\site\\index.htm: ") + QString::fromUtf8(content);
    return versions;
  }

  FakeReplacedVersions replaced;
};

TEST_F(ReplacedVersionsTest, SavingWhatWasLoadedAndSavedKeepsNothing) {
  Open(IndexFile);
  Component(1).Edit(Changed);
  Save(1);
  Component(1).Edit(QStringLiteral("<p>more</p>"));
  Save(1);
  EXPECT_EQ(replaced.kept, QStringList());
  EXPECT_TRUE(mainWindow.reports.isEmpty());
}

TEST_F(ReplacedVersionsTest, AFileThatAnotherProgramChangedIsKeptAndTheStatusBarSaysSo) {
  Open(IndexFile);
  files.AddFile(IndexFile, "<p>b</p>");
  Component(1).Edit(Changed);
  Save(1);
  EXPECT_EQ(replaced.kept, Versions({"<p>b</p>"}));
  EXPECT_EQ(Content(IndexFile), "<p>changed</p>");
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_EQ(mainWindow.reports[0],
            QStringLiteral("/site/index.htm held another version. It was replaced and is kept as "
                           "/kept/1"));
}

TEST_F(ReplacedVersionsTest, AFileThatThePlainSavesOwnRuleLeadsToIsKept) {
  Open(QStringLiteral("\\site\\first.htm"));
  Open(IndexFile, "<p>another page</p>");
  Save(1);
  EXPECT_EQ(replaced.kept, QStringList());
  Save(1);
  EXPECT_EQ(replaced.kept, Versions({"<p>another page</p>"}));
}

TEST_F(ReplacedVersionsTest, AFileChosenForANewPageIsKept) {
  files.AddFile(IndexFile, "<p>there before</p>");
  New();
  dialog.ExpectSave(IndexFile);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), UnderNewName);
  EXPECT_EQ(replaced.kept, Versions({"<p>there before</p>"}));
}

TEST_F(ReplacedVersionsTest, ARestoredPageKeepsOnlyWhatItDidNotComeFrom) {
  files.AddFile(IndexFile, "<p>a</p>");
  JournalledPage kept{
      IndexFile, {}, JournalledPage::Saving::ToItsFile, {"<p>a</p>", {}, Changed}, {}};
  modWorkFlow::RestorePage(context, kept);
  Save(1);
  EXPECT_EQ(replaced.kept, QStringList());
  files.AddFile(IndexFile, "<p>newer</p>");
  modWorkFlow::RestorePage(context, kept);
  Save(2);
  EXPECT_EQ(replaced.kept, Versions({"<p>newer</p>"}));
}

TEST_F(ReplacedVersionsTest, WhatCannotBeKeptIsNotReplaced) {
  Open(IndexFile);
  files.AddFile(IndexFile, "<p>b</p>");
  replaced.failure = ErrorNumber::DiskFull;
  Component(1).Edit(Changed);
  Save(1);
  EXPECT_EQ(Content(IndexFile), "<p>b</p>");
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_TRUE(mainWindow.reports[0].contains(QStringLiteral("could not be saved")));
}

}  // namespace
}  // namespace velor
