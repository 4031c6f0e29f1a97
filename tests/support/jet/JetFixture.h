// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <variant>
#include <vector>

// What a test wants a Jet 4 file to hold, as plain values. WriteJetFile() (JetWriter.h) makes the
// bytes; the comparators (JetReaders.h) say whether a reader sees the same.

namespace velor::fixture {

/// The column types that fixtures use, with the file format's numbers.
enum class CellType : quint8 {
  Boolean = 1,
  Short = 3,
  Long = 4,
  Double = 7,
  DateTime = 8,
  Text = 10,
  Ole = 11,  ///< always null here
  Memo = 12,
};

/// Days since 30 December 1899.
struct Days {
  double value = 0;
  bool operator==(const Days &) const = default;
};

/// Null, Boolean, Short or Long, Double, DateTime, Text or Memo.
using Cell = std::variant<std::monostate, bool, qint32, double, Days, QString>;

enum class TextForm { Plain, Compressed };

/// Where a memo's text lies: by its length as the format's own writers choose, or forced.
enum class MemoPlace { ByLength, Inline, OneRow, Chain };

struct FixtureColumn {
  QString name;
  CellType type;
  /// Of a Text column, in characters.
  int length = 255;
  TextForm form = TextForm::Compressed;
  MemoPlace place = MemoPlace::ByLength;
};

/// An index with real entries on one column of the table.
struct FixtureIndex {
  QString name;
  int column;
};

/// Where a row's bytes lie: in its home slot, or on another page with a pointer left at home, which
/// may be followed by the rest of the row's old bytes.
enum class RowPlace { Home, Moved, MovedLeavingTail };

struct FixtureRow {
  std::vector<Cell> cells;
  RowPlace place = RowPlace::Home;
  /// Slots of deleted rows before this one.
  int deletedBefore = 0;
  /// A row written before columns were added holds fewer; the missing cells must be null or false.
  std::optional<int> storedColumns = std::nullopt;
};

struct FixtureTable {
  QString name;
  std::vector<FixtureColumn> columns;
  std::vector<FixtureIndex> indexes;
  std::vector<FixtureRow> rows;
};

/// The form of the usage maps: a bitmap where it reaches, or pointers to bitmap pages always.
enum class MapForm { BitmapWhereItReaches, BitmapPages };

struct FixtureFile {
  std::vector<FixtureTable> tables;
  /// Not 0: the pages are encoded with this key.
  quint32 fileKey = 0;
  /// At most 20 characters; empty for a file that anybody may open.
  QString password = {};
  MapForm maps = MapForm::BitmapWhereItReaches;
  /// Bytes that the writer leaves free on every data page.
  int pageReserve = 0;
};

/// One cell as text on which readers can agree: letter for letter, numbers in their shortest exact
/// form, dates to the second.
QString CellText(const Cell &cell);

}  // namespace velor::fixture
