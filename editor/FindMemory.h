// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextSearch.h"

#include <QStringList>

namespace velor {

/// What was searched for last, in any window; the find bars begin with it. Lasts until the program
/// ends.
struct FindMemory {
  SearchQuery query;
  QString replacement;
  // The words and replacements that were used, the latest first.
  QStringList words;
  QStringList replacements;
};

}  // namespace velor
