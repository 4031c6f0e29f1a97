// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetCheckedPages.h"

#include <optional>

namespace velor::fixture {

struct CheckedColumn {
  int type = 0;
  int number = 0;
  int variableIndex = 0;
  bool variable = false;
  int fixedOffset = 0;
  int length = 0;
};

struct CheckedIndex {
  /// Column numbers; descending order where the number after it says so.
  std::vector<int> columns;
  quint32 ownedMap = 0;
  quint32 root = 0;
};

struct CheckedDefinition {
  quint32 page = 0;
  quint32 rows = 0;
  int maximumColumns = 0;
  quint32 ownedMap = 0;
  quint32 freeMap = 0;
  std::vector<CheckedColumn> columns;
  std::vector<CheckedIndex> indexes;
  /// Column number to the addresses of its owned and free map.
  std::map<int, std::pair<quint32, quint32>> memoMaps;
};

/// Takes a definition apart; nothing, with a complaint, when it cannot be one.
std::optional<CheckedDefinition> ReadDefinition(JetCheckedPages &pages, quint32 page);

/// One row's columns; `fields` holds the bytes of those that are not null.
struct CheckedFields {
  std::map<int, QByteArray> fields;
};

/// A live row: its home slot and what it holds.
using CheckedRows = std::map<quint32, CheckedFields>;

/// Walks the pages of a table, complaining, and returns its live rows by home address.
CheckedRows CheckRows(JetCheckedPages &pages, const CheckedDefinition &table);

/// Follows the memo values of those rows.
void CheckMemos(JetCheckedPages &pages, const CheckedDefinition &table, const CheckedRows &rows);

/// Walks the trees of the table's indexes.
void CheckIndexes(JetCheckedPages &pages, const CheckedDefinition &table, const CheckedRows &rows);

}  // namespace velor::fixture
