// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextStretch.h"

#include <QString>

#include <optional>

namespace velor {

/// Two texts' difference as one replacement: `removed` UTF-16 code units at `start` of the first
/// became `inserted` ones of the second; surrogate pairs are never split.
struct TextDifference {
  qsizetype start = 0;
  qsizetype removed = 0;
  qsizetype inserted = 0;

  /// The shortest such replacement.
  static TextDifference Between(QStringView before, QStringView after);

  QStringView InsertedIn(QStringView after) const { return after.sliced(start, inserted); }
};

/// What made `after` of `before`, as a replacement in `other`, which was made of `before` too.
/// nullopt where the two changes overlap or touch.
std::optional<TextReplacement> CarriedChange(const QString &before, const QString &after,
                                             const QString &other);

}  // namespace velor
