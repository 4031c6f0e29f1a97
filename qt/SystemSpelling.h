// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spelling/HunspellSpelling.h"

namespace velor {

/// The system's folders of dictionaries, and the person's word list
/// (`$XDG_DATA_HOME/velor-web-creator/words.txt`).
SpellingPlaces SystemSpelling();

}  // namespace velor
