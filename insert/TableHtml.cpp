// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TableHtml.h"

#include "platform/Conversions.h"
#include "platform/PasteLimit.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>

namespace velor {
namespace {

int Count(const QString &text) {
  try {
    return std::max<int>(CInt(text), 0);
  } catch (const RuntimeError &) {
    return 0;
  }
}

/// Two tags for the table, for each row and for each cell.
int MostRows(int columns) {
  return (MostPastedTags / 2 - 1) / (columns + 1);
}

QString Attribute(const QString &name, const QString &value) {
  return value.isEmpty() ? QString() : QStringLiteral(" ") + name + u'=' + u'"' + value + u'"';
}

}  // namespace

QString TableHtml(const TableValues &values) {
  const int rows = Count(values.rows);
  const int columns = Count(values.columns);
  const auto rowOf = [columns](const QString &cell) {
    return QStringLiteral("   <TR>\r\n") + cell.repeated(columns) + QStringLiteral("   </TR>\r\n");
  };
  const bool hasHeadings = values.firstRow == FirstRow::Headings && rows > 0;
  QString html = QStringLiteral("<Table");
  html += Attribute(QStringLiteral("align"), values.align);
  html += Attribute(QStringLiteral("cellspacing"), values.cellSpacing);
  html += Attribute(QStringLiteral("cellpadding"), values.cellPadding);
  html += Attribute(QStringLiteral("border"), values.border);
  html += QStringLiteral(" width=75%>\r\n");
  if (rows <= MostRows(columns)) {
    if (hasHeadings) html += rowOf(QStringLiteral("      <TH scope=\"col\"></TH>\r\n"));
    html += rowOf(QStringLiteral("      <TD></TD>\r\n")).repeated(hasHeadings ? rows - 1 : rows);
  }
  return html + QStringLiteral("</Table>\r\n");
}

QString TableRefusal(const TableValues &values) {
  const int columns = Count(values.columns);
  const int most = MostRows(columns);
  if (Count(values.rows) <= most) return {};
  return Words::tr("The table is too large: with %1 columns a page takes %2 rows at most.")
      .arg(columns)
      .arg(most);
}

}  // namespace velor
