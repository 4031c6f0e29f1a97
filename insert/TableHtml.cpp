// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TableHtml.h"

#include "platform/Conversions.h"
#include "platform/PasteLimit.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QRegularExpression>
#include <QStringList>

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

/// A style property of so many pixels; the empty text where `text` is no number of them.
QString Pixels(const QString &property, const QString &text, const QString &tail = {}) {
  static const QRegularExpression number(QStringLiteral("^\\s*\\d{1,4}\\s*$"));
  if (!number.match(text).hasMatch()) return {};
  return QStringLiteral("%1: %2px%3").arg(property, QString::number(text.toInt()), tail);
}

QString StyleAttribute(QStringList declarations) {
  declarations.removeAll(QString());
  return Attribute(QStringLiteral("style"), declarations.join(QStringLiteral("; ")));
}

bool IsZero(const QString &text) {
  return text.trimmed().toInt() == 0;
}

QString TableStyle(const TableValues &values) {
  const auto isAligned = [&](const char16_t *side) {
    return values.align.compare(QStringView(side), Qt::CaseInsensitive) == 0;
  };
  QString place;
  if (isAligned(u"Left")) place = QStringLiteral("float: left");
  if (isAligned(u"Right")) place = QStringLiteral("float: right");
  if (isAligned(u"Center")) place = QStringLiteral("margin-left: auto; margin-right: auto");
  QString gaps = Pixels(QStringLiteral("border-spacing"), values.cellSpacing);
  if (!gaps.isEmpty() && IsZero(values.cellSpacing))
    gaps = QStringLiteral("border-collapse: collapse");
  const QString border = Pixels(QStringLiteral("border"), values.border, QStringLiteral(" solid"));
  return StyleAttribute(
      {IsZero(values.border) ? QString() : border, gaps, place, QStringLiteral("width: 75%")});
}

QString CellStyle(const TableValues &values) {
  const QString one = QStringLiteral("1");
  QString border;
  if (!IsZero(values.border))
    border = Pixels(QStringLiteral("border"), one, QStringLiteral(" solid"));
  // Browsers give every cell a padding of one.
  QString padding;
  if (values.cellPadding.trimmed() != one)
    padding = Pixels(QStringLiteral("padding"), values.cellPadding);
  return StyleAttribute({border, padding});
}

/// The TABLE's attributes.
QString Looks(const TableValues &values) {
  if (values.dialect == Dialect::Styles) return TableStyle(values);
  return Attribute(QStringLiteral("align"), values.align) +
         Attribute(QStringLiteral("cellspacing"), values.cellSpacing) +
         Attribute(QStringLiteral("cellpadding"), values.cellPadding) +
         Attribute(QStringLiteral("border"), values.border) + QStringLiteral(" width=75%");
}

}  // namespace

QString TableHtml(const TableValues &values) {
  const int rows = Count(values.rows);
  const int columns = Count(values.columns);
  const auto rowOf = [columns](const QString &cell) {
    return QStringLiteral("   <TR>\r\n") + cell.repeated(columns) + QStringLiteral("   </TR>\r\n");
  };
  const bool hasHeadings = values.firstRow == FirstRow::Headings && rows > 0;
  QString html = QStringLiteral("<Table") + Looks(values) + QStringLiteral(">\r\n");
  if (rows <= MostRows(columns)) {
    const QString look = values.dialect == Dialect::Styles ? CellStyle(values) : QString();
    if (hasHeadings) html += rowOf(QStringLiteral("      <TH scope=\"col\"%1></TH>\r\n").arg(look));
    html += rowOf(QStringLiteral("      <TD%1></TD>\r\n").arg(look))
                .repeated(hasHeadings ? rows - 1 : rows);
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
