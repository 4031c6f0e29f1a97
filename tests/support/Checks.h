// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RuntimeError.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>
#include <ostream>

/// How GoogleTest shows Qt's texts and bytes when a comparison fails.
inline void PrintTo(const QString &text, std::ostream *out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray &bytes, std::ostream *out) {
  *out << '"' << bytes.left(200).toPercentEncoding(" <>=;&/\"").toStdString() << '"';
}

namespace velor {

inline void PrintTo(ErrorNumber number, std::ostream *out) {
  *out << static_cast<int>(number);
}

/// The number of the error that `action` raises; None when it raises nothing.
template <typename Action>
ErrorNumber ErrorOf(Action action) {
  try {
    action();
  } catch (const RuntimeError &error) {
    return error.Number();
  }
  return ErrorNumber::None;
}

}  // namespace velor
