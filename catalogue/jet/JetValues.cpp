// SPDX-License-Identifier: GPL-3.0-or-later
// Values of the columns that are held in the row itself.
#include "catalogue/jet/JetRow.h"
#include "catalogue/jet/JetText.h"

#include <QDate>
#include <QTime>
#include <QUuid>

#include <cmath>

namespace velor {

namespace {

constexpr int SecondsPerDay = 24 * 60 * 60;
constexpr double CurrencyUnits = 10000.0;

/// Days since 1899-12-30; the time of day counts forward in negative dates too.
QVariant DateText(double days) {
  // The years 100 to 9999, which the format's own engine knows.
  constexpr double First = -657434.0;
  constexpr double Last = 2958466.0;
  if (!(days > First - 1 && days < Last)) return {};
  const double whole = std::trunc(days);
  const auto seconds = static_cast<int>(std::lround(std::abs(days - whole) * SecondsPerDay));
  const QDate date =
      QDate(1899, 12, 30).addDays(static_cast<qint64>(whole) + seconds / SecondsPerDay);
  QString text = date.toString(Qt::ISODate);
  const int time = seconds % SecondsPerDay;
  if (time != 0) {
    text += QLatin1Char(' ') + QTime::fromMSecsSinceStartOfDay(time * 1000).toString(Qt::ISODate);
  }
  return text;
}

/// Sign byte, then four u32 with the most significant one first.
QVariant NumericValue(JetBytes field, int scale) {
  constexpr std::size_t Words = 4;
  double value = 0;
  for (std::size_t word = 0; word < Words; ++word) {
    value = value * 4294967296.0 + jet::Get<quint32>(field.data() + 1 + word * sizeof(quint32));
  }
  value /= std::pow(10.0, scale);
  return field[0] & 0x80 ? -value : value;
}

QVariant GuidText(JetBytes field) {
  return QUuid(jet::Get<quint32>(field.data()), jet::Get<quint16>(field.data() + 4),
               jet::Get<quint16>(field.data() + 6), field[8], field[9], field[10], field[11],
               field[12], field[13], field[14], field[15])
      .toString()
      .toUpper();
}

/// Bytes that a value of the type needs; 0 where any number will do.
std::size_t Needed(JetType type) {
  switch (type) {
    case JetType::Byte:
      return 1;
    case JetType::Short:
      return 2;
    case JetType::Long:
    case JetType::Single:
      return 4;
    case JetType::Currency:
    case JetType::Double:
    case JetType::DateTime:
      return 8;
    case JetType::Guid:
      return 16;
    case JetType::Numeric:
      return 17;
    default:
      return 0;
  }
}

}  // namespace

QVariant JetFieldValue(const JetColumn &column, const JetRow &row) {
  if (column.type == JetType::Boolean) return row.Bit(column);
  if (row.IsNull(column)) return {};
  const JetBytes field = row.Field(column);
  if (field.size() < Needed(column.type)) return {};
  switch (column.type) {
    case JetType::Byte:
      return static_cast<int>(field[0]);
    case JetType::Short:
      return static_cast<int>(jet::Get<qint16>(field.data()));
    case JetType::Long:
      return jet::Get<qint32>(field.data());
    case JetType::Currency:
      return static_cast<double>(jet::Get<qint64>(field.data())) / CurrencyUnits;
    case JetType::Single:
      return static_cast<double>(std::bit_cast<float>(jet::Get<quint32>(field.data())));
    case JetType::Double:
      return jet::GetDouble(field.data());
    case JetType::DateTime:
      return DateText(jet::GetDouble(field.data()));
    case JetType::Numeric:
      return NumericValue(field, column.scale);
    case JetType::Guid:
      return GuidText(field);
    case JetType::Text:
      return DecodeJetText(field);
    case JetType::Binary:
      return QByteArray(reinterpret_cast<const char *>(field.data()),
                        static_cast<qsizetype>(field.size()));
    default:
      return {};
  }
}

}  // namespace velor
