// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/SystemSpelling.h"

#include "platform/Paths.h"
#include "qt/ProgramFolder.h"

namespace velor {

SpellingPlaces SystemSpelling() {
  return {{QStringLiteral("/usr/share/hunspell"), QStringLiteral("/usr/share/myspell/dicts")},
          ToLogic(InstalledProgramFolder() + QStringLiteral("/words.txt"))};
}

}  // namespace velor
