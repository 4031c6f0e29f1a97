// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetFixture.h"

#include <random>

namespace velor::fixture {

/// The types of the three folder columns Project.Path, Page.TPath and CustomCD.PPath.
enum class FolderType { Text, Memo };

struct CatalogueShape {
  int projects = 3;
  int pages = 20;
  /// Long memo texts on every fifth page.
  bool remarks = true;
  FolderType folders = FolderType::Text;
  /// Deleted slots, moved rows and short rows among the ordinary ones.
  bool worn = false;
  quint32 seed = 1;
};

/// A web site catalogue: Project, Page and CustomCD with a row of each kind for every project, in
/// the real columns and some more (memos in all three places, a Double), with indexes on the
/// identifiers and on Page.PageName. Page.PageId is the row's number from 1.
FixtureFile CatalogueFixture(const CatalogueShape &shape);

/// Two tables: one whose definition takes several pages, one whose rows hold Latin-1, Chinese and
/// characters beyond the BMP in plain and compressed columns.
FixtureFile OddTablesFixture();

/// A folder or text of 0 to `longest` characters, of letters that readers may stumble over.
QString RandomText(std::mt19937 &random, int longest);

}  // namespace velor::fixture
