// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// From now on combo boxes tell the accessibility bus their label as their name and the text that
/// is chosen as their value and description. Of themselves they tell the chosen text as their name,
/// and a box without a visible label could not be told from another.
void AnnounceComboBoxLabels();

}  // namespace velor
