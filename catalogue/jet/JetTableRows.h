// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTable.h"

#include <memory>
#include <vector>

namespace velor {

// Finding a table's rows. Damage is noted in the pager, and what is damaged left out.

/// The pages that the table owns, in rising order.
std::vector<jet::PageNumber> JetTablePages(JetPager &pager, const JetTable &table);

/// A sound data page of that table, or nullptr.
std::shared_ptr<const jet::Page> ReadJetTablePage(JetPager &pager, const JetTable &table,
                                                  jet::PageNumber number);

/// The body of a row that has moved; `home` are the bytes in its home slot. `page` is null where
/// they point to no row.
JetFoundRow FollowJetPointer(JetPager &pager, const JetTable &table, JetBytes home);

void NoteDamagedRow(JetPager &pager, const JetTable &table, const JetPlace &home);

/// Walks all rows of a table and notes what is damaged: a wrong count of rows, rows that have moved
/// without a pointer to them, and the maps that an update relies on too. Indexes are not looked at,
/// since updates neither read nor touch them.
void CheckJetTable(JetPager &pager, const JetTable &table);

}  // namespace velor
