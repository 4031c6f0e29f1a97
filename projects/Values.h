// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <QString>
#include <QVariant>

/// Conversions of values of result sets: a null QVariant, texts, numbers and truth values.
namespace velor {

/// The value as text: null is empty, numbers are shortest decimal text, truth values "True" and
/// "False".
QString TextOf(const QVariant &value);

/// The value as a RowTable keeps it, by the type of its column: texts and dates as text without
/// outer blanks, truth values as the 16-bit -1 and 0, everything else as the number that its text
/// begins with (Val).
QVariant NormalisedValue(const QVariant &value, ColumnType type);

/// Whether the value equals `number`; false for null and for texts that are no number.
bool IsNumber(const QVariant &value, std::int32_t number);

}  // namespace velor
