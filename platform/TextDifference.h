// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// The one stretch by which a text differs from the one before it, in UTF-16 units. It never cuts a
/// character in two, so that it can leave this process in any encoding.
struct TextDifference {
  qsizetype start = 0;
  qsizetype removed = 0;
  qsizetype inserted = 0;

  static TextDifference Between(QStringView before, QStringView after);

  QStringView InsertedIn(QStringView after) const { return after.sliced(start, inserted); }
};

}  // namespace velor
