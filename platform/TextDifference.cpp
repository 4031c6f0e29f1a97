// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TextDifference.h"

#include <algorithm>
#include <cstring>

namespace velor {

namespace {

/// Code units compared at once: texts of many megabytes differ in few places.
constexpr qsizetype Block = 2048;

bool IsSame(QStringView one, qsizetype oneAt, QStringView other, qsizetype otherAt) {
  return std::memcmp(one.data() + oneAt, other.data() + otherAt, Block * sizeof(QChar)) == 0;
}

qsizetype SameStart(QStringView one, QStringView other) {
  const qsizetype most = std::min(one.size(), other.size());
  qsizetype same = 0;
  while (same + Block <= most && IsSame(one, same, other, same)) same += Block;
  while (same < most && one[same] == other[same]) ++same;
  return same;
}

qsizetype SameEnd(QStringView one, QStringView other, qsizetype most) {
  qsizetype same = 0;
  while (same + Block <= most &&
         IsSame(one, one.size() - same - Block, other, other.size() - same - Block))
    same += Block;
  while (same < most && one[one.size() - 1 - same] == other[other.size() - 1 - same]) ++same;
  return same;
}

}  // namespace

TextDifference TextDifference::Between(QStringView before, QStringView after) {
  qsizetype start = SameStart(before, after);
  if (start > 0 && before[start - 1].isHighSurrogate()) --start;
  qsizetype end = SameEnd(before, after, std::min(before.size(), after.size()) - start);
  if (end > 0 && before[before.size() - end].isLowSurrogate()) --end;
  return {start, before.size() - start - end, after.size() - start - end};
}

std::optional<TextReplacement> CarriedChange(const QString &before, const QString &after,
                                             const QString &other) {
  const TextDifference change = TextDifference::Between(before, after);
  const TextDifference beside = TextDifference::Between(before, other);
  TextStretch place{change.start, change.start + change.removed};
  const bool isSame = beside.removed == 0 && beside.inserted == 0;
  if (!isSame && place.start > beside.start + beside.removed) {
    const qsizetype moved = beside.inserted - beside.removed;
    place = {place.start + moved, place.end + moved};
  } else if (!isSame && place.end >= beside.start) {
    return std::nullopt;
  }
  return TextReplacement{place, change.InsertedIn(after).toString()};
}

}  // namespace velor
