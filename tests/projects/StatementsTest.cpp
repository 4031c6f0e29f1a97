// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/Statements.h"
#include "tests/support/Checks.h"

namespace velor {
namespace {

using namespace Statements;

const QString Folder = QStringLiteral("C:\\Sites\\Bob's Site");

TEST(QuoteSql, DoublesEveryApostrophe) {
  EXPECT_EQ(QuoteSql(QStringLiteral("Bob's 'Site'")), QStringLiteral("'Bob''s ''Site'''"));
  EXPECT_EQ(QuoteSql(QStringLiteral("'")), QStringLiteral("''''"));
  EXPECT_EQ(QuoteSql(QStringLiteral("plain \"text\"")), QStringLiteral("'plain \"text\"'"));
}

TEST(QuoteSql, WritesNullAsTheEmptyText) {
  EXPECT_EQ(QuoteSql(QVariant()), QStringLiteral("''"));
}

TEST(QuoteSql, WritesNumbersAsTheirUsualDecimalText) {
  EXPECT_EQ(QuoteSql(7), QStringLiteral("'7'"));
  EXPECT_EQ(QuoteSql(12.0), QStringLiteral("'12'"));
  EXPECT_EQ(QuoteSql(-2.5), QStringLiteral("'-2.5'"));
  EXPECT_EQ(QuoteSql(123456789.0), QStringLiteral("'123456789'"));
}

TEST(Statements, AreWrittenToTheLetter) {
  EXPECT_EQ(GeneratedProjects(), QStringLiteral("Select * from Project where Created = true"));
  EXPECT_EQ(GeneratedProjectsByDate(),
            QStringLiteral("Select * from Project where Created = true Order by DtModified"));
  EXPECT_EQ(ProjectById(12.0), QStringLiteral("Select * from Project where IdProject = '12'"));
  EXPECT_EQ(
      SetProjectFolder(Folder, 12.0),
      QStringLiteral("Update Project set Path = 'C:\\Sites\\Bob''s Site' where IdProject = '12'"));
  EXPECT_EQ(
      SetPageFolders(Folder, 12.0),
      QStringLiteral("Update Page set TPath = 'C:\\Sites\\Bob''s Site' where ProjectId = '12'"));
  EXPECT_EQ(SetCustomFolder(Folder, 12.0),
            QStringLiteral(
                "Update CustomCD set PPath = 'C:\\Sites\\Bob''s Site' where ProjectId = '12'"));
  EXPECT_EQ(PagesOfProject(12.0),
            QStringLiteral("Select * from Page where ProjectId = '12' Order by Pagename"));
  EXPECT_EQ(PageListOfProject(12.0),
            QStringLiteral("Select * from Page where ProjectId = '12' Order by PageName"));
  EXPECT_EQ(PageById(-3), QStringLiteral("Select * from Page where PageId = -3"));
}

}  // namespace
}  // namespace velor
