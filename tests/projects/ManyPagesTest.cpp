// SPDX-License-Identifier: GPL-3.0-or-later
// A project with very many pages must not make the window wait.
#include "catalogue/SqliteConnection.h"
#include "platform/Paths.h"
#include "projects/FillList.h"
#include "projects/RecordList.h"
#include "projects/RowTable.h"
#include "projects/Statements.h"
#include "tests/support/CatalogueFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/jet/JetCatalogues.h"

#include <QSignalSpy>
#include <QTemporaryDir>

namespace velor {
namespace {

constexpr int Pages = 200'000;

/// Made once: it takes longer than listing it.
const fixture::FixtureFile &BigCatalogue() {
  static const fixture::FixtureFile content =
      fixture::CatalogueFixture({.projects = 1, .pages = Pages, .remarks = false});
  return content;
}

class ManyPages : public testing::TestWithParam<CatalogueFormat> {};

TEST_P(ManyPages, AreListedByOneRebuildOfTheList) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("eThumbs.mdb"));
  WriteCatalogue(file, GetParam(), BigCatalogue());
  SqliteConnection connection;
  connection.Open(QStringLiteral("Data Source=") + ToLogic(file), {}, {}, -1);
  RecordList list({QStringLiteral("PageId"), QStringLiteral("PageName")}, 1);
  RowTable table;
  QSignalSpy rebuilt(list.model(), &QAbstractItemModel::modelReset);
  FillList(list, table, Statements::PageListOfProject(1), LeadingColumn::None, 0, {},
           {QStringLiteral("PageId"), QStringLiteral("PageName")}, connection);
  EXPECT_EQ(list.model()->rowCount(), Pages);
  EXPECT_EQ(rebuilt.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(Catalogues, ManyPages,
                         testing::Values(CatalogueFormat::Sqlite, CatalogueFormat::Jet),
                         [](const auto &format) {
                           return format.param == CatalogueFormat::Jet ? "Jet" : "Sqlite";
                         });

}  // namespace
}  // namespace velor
