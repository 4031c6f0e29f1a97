// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetFixture.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace velor::fixture {

namespace {

struct TextOf {
  QString operator()(std::monostate) const { return QStringLiteral("(null)"); }
  QString operator()(bool value) const { return QString::fromLatin1(value ? "true" : "false"); }
  QString operator()(qint32 value) const { return QString::number(value); }
  QString operator()(double value) const {
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
  }
  QString operator()(Days days) const {
    const QDateTime zero(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    return zero.addSecs(std::llround(days.value * 86400))
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
  }
  QString operator()(const QString &value) const { return u'"' + value + u'"'; }
};

}  // namespace

QString CellText(const Cell &cell) {
  return std::visit(TextOf(), cell);
}

}  // namespace velor::fixture
