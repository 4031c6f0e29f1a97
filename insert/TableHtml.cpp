// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TableHtml.h"

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

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

QString Attribute(QStringView name, const QString &value) {
  return value.isEmpty() ? QString() : u' ' + name + u"=\"" + value + u'"';
}

}  // namespace

QString TableHtml(const TableValues &values) {
  const int rows = Count(values.rows);
  const int columns = Count(values.columns);
  QString html = u"<Table" + Attribute(u"align", values.align) +
                 Attribute(u"cellspacing", values.cellSpacing) +
                 Attribute(u"cellpadding", values.cellPadding) +
                 Attribute(u"border", values.border) + u" width=75%>\r\n";
  const QString row =
      u"   <TR>\r\n" + QStringLiteral("      <TD></TD>\r\n").repeated(columns) + u"   </TR>\r\n";
  if (row.size() * rows <= LargestTableText) html += row.repeated(rows);
  return html + u"</Table>\r\n";
}

}  // namespace velor
