// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/Values.h"

#include "platform/Conversions.h"

namespace velor {
namespace {

bool IsNumberType(const QVariant &value) {
  const int type = value.typeId();
  return type == QMetaType::Int || type == QMetaType::LongLong || type == QMetaType::Double;
}

}  // namespace

QString TextOf(const QVariant &value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return BoolText(value.toBool());
    case QMetaType::Float:
    case QMetaType::Double:
      return NumberText(value.toDouble());
    default:
      return value.toString();
  }
}

QVariant NormalisedValue(const QVariant &value, ColumnType type) {
  switch (type) {
    case ColumnType::VarChar:
    case ColumnType::LongVarChar:
    case ColumnType::VarWideChar:
    case ColumnType::LongVarWideChar:
    case ColumnType::Date:
      return TrimBlanks(TextOf(value));
    case ColumnType::Boolean:
      return QVariant::fromValue(!value.isNull() && CBool(TextOf(value)) ? True16 : False16);
    default:
      // Numbers are not converted to text and back: the result is the same.
      return IsNumberType(value) ? value.toDouble() : Val(TextOf(value));
  }
}

bool IsNumber(const QVariant &value, std::int32_t number) {
  if (value.typeId() == QMetaType::Bool) return (value.toBool() ? True16 : False16) == number;
  const QString text = TextOf(value);
  return IsNumeric(text) && Val(text) == number;
}

}  // namespace velor
