// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insert/MediaHtml.h"

#include <QString>

namespace velor {

/// Whether the cells of a table's first row are headings of its columns.
enum class FirstRow { Cells, Headings };

/// What the person entered for a table, as typed.
struct TableValues {
  QString align;
  QString cellSpacing;
  QString cellPadding;
  QString border;
  QString rows;
  QString columns;
  FirstRow firstRow = FirstRow::Cells;
  Dialect dialect = Dialect::Attributes;
};

/// The text of an empty table, lines ended by CR LF. In attributes values are written as typed,
/// without escaping, and an empty one leaves its attribute out; in styles what is no number of
/// pixels is left out, and so is the padding that cells have anyway. A count that is no 16-bit
/// number, or negative, is 0. The rows of a table that no page takes are left out altogether.
QString TableHtml(const TableValues &values);

/// Why no page takes a table of so many rows and columns (MostPastedTags), in words for the person;
/// empty where a page takes it.
QString TableRefusal(const TableValues &values);

}  // namespace velor
