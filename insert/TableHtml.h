// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// What the person entered for a table, as typed.
struct TableValues {
  QString align;
  QString cellSpacing;
  QString cellPadding;
  QString border;
  QString rows;
  QString columns;
};

/// Characters that the rows of one table may take. A table of that size is beyond every browser;
/// the bound keeps a slip of the keyboard (30000 rows, 30000 columns) from taking all memory.
inline constexpr qsizetype LargestTableText = qsizetype{64} * 1024 * 1024;

/// The text of an empty table, lines ended by CR LF. Values are written as typed, without escaping;
/// an empty one leaves its attribute out. A count that is no 16-bit number, or negative, is 0; rows
/// beyond LargestTableText are left out altogether.
QString TableHtml(const TableValues &values);

}  // namespace velor
