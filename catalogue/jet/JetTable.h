// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetFormat.h"

#include <QString>

#include <compare>
#include <vector>

namespace velor {

/// Column types with the file's own numbers.
enum class JetType : int {
  Boolean = 1,
  Byte = 2,
  Short = 3,
  Long = 4,
  Currency = 5,
  Single = 6,
  Double = 7,
  DateTime = 8,
  Binary = 9,
  Text = 10,
  Ole = 11,
  Memo = 12,
  Guid = 15,
  Numeric = 16,
};

enum class JetStorageKind { Fixed, Variable };
enum class JetIndexed { No, Yes };
enum class JetCompression { Never, WherePossible };

struct JetColumn {
  QString name;
  /// A number that is none of JetType's reads as null.
  JetType type = JetType::Text;
  /// Bytes; of Text two a character; 0 for long values.
  int length = 0;
  JetStorageKind storage = JetStorageKind::Variable;
  /// In a real index: its values cannot be changed.
  JetIndexed indexed = JetIndexed::No;
  JetCompression compression = JetCompression::Never;
  /// Bit in the null mask; gaps are columns that were deleted.
  int number = 0;
  /// Place among the variable columns.
  int variableIndex = 0;
  /// Bytes from the start of the row's fixed data.
  int fixedOffset = 0;
  /// Digits after the point of a Numeric.
  int scale = 0;

  bool operator==(const JetColumn &) const = default;
};

/// A row's place: its slot on a page.
struct JetPlace {
  jet::PageNumber page = 0;
  int slot = 0;

  auto operator<=>(const JetPlace &) const = default;
};

/// Names a row for as long as it exists: page * 256 + slot of its home slot, which stays when the
/// row itself moves.
using JetRowId = qint64;

inline JetRowId RowIdOf(const JetPlace &home) {
  return static_cast<JetRowId>(home.page) * 256 + home.slot;
}

inline JetPlace HomeOf(JetRowId row) {
  return {static_cast<jet::PageNumber>(row / 256), static_cast<int>(row % 256)};
}

/// A table's definition. Columns are in the order of their numbers.
struct JetTable {
  QString name;
  std::vector<JetColumn> columns;
  /// Number of rows by the definition; JetFile::Damage compares it with the rows found.
  quint32 storedRows = 0;
  jet::PageNumber definitionPage = 0;
  int maximumColumns = 0;
  int variableColumns = 0;
  JetPlace ownedMap;
  JetPlace freeMap;

  /// Index into columns, letter case ignored; -1 when there is none of that name.
  int ColumnIndex(const QString &columnName) const;
};

}  // namespace velor
