// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// A stretch of a text, in UTF-16 code units; `end` is behind its last one.
struct TextStretch {
  qsizetype start = 0;
  qsizetype end = 0;

  bool operator==(const TextStretch &) const = default;
};

/// A stretch of a text, and what is to stand in its place.
struct TextReplacement {
  TextStretch place;
  QString text;

  bool operator==(const TextReplacement &) const = default;
};

}  // namespace velor
