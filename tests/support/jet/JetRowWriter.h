// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetPageSet.h"

#include <map>
#include <optional>

namespace velor::fixture {

/// Whether values lie outside the rows, on pages of their own.
bool IsLongValue(CellType type);

/// Where a column's values lie in its table's rows.
struct ColumnPlace {
  int fixedOffset = 0;    ///< of a fixed column, from the end of the column count
  int fixedLength = 0;    ///< 0 for a Boolean, whose value is its bit of the null mask
  int variableIndex = 0;  ///< of a variable column; of a fixed one, how many stand before it
  bool variable = false;
};

std::vector<ColumnPlace> PlacesOf(const std::vector<FixtureColumn> &columns);

/// The pages that hold one column's memo texts.
struct MemoPages {
  std::set<quint32> owned;
  std::optional<quint32> current;
};

/// UTF-16, or the compressed form where the column and the text allow it.
QByteArray TextBytes(const QString &text, TextForm form);

/// Makes the bytes of a table's rows, and places the memo texts they refer to.
class JetRowWriter {
 public:
  JetRowWriter(JetPageSet &pages, const FixtureTable &table);
  QByteArray Bytes(const FixtureRow &row);
  const std::map<int, MemoPages> &Memos() const { return memos_; }

 private:
  QByteArray VariableBytes(int column, const Cell &cell);
  QByteArray MemoBytes(int column, const QString &text);
  quint32 AddMemoRow(MemoPages &memo, const QByteArray &bytes);

  JetPageSet &pages_;
  const FixtureTable &table_;
  std::vector<ColumnPlace> places_;
  std::map<int, MemoPages> memos_;
};

}  // namespace velor::fixture
