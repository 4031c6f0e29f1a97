// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

namespace velor {

/// What a person reads. `Words::tr` gives it in the language of the program, or as it stands here
/// where that language has no translation of it; numbers of things go in by `%n`. A text of a table
/// is marked by `Words::Mark` and goes through `tr` where it is shown. What goes into pages, files
/// and settings is never translated.
class Words {
  Q_DECLARE_TR_FUNCTIONS(velor::Words)

 public:
  static constexpr const char *Mark(const char *text) { return text; }
};

}  // namespace velor
