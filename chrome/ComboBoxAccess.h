// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Makes combo boxes report their label to assistive technology as their name, and the chosen text
/// as value and description. Qt reports the chosen text as the name, so that boxes without a
/// visible label cannot be told apart. Called once, before the first window.
void AnnounceComboBoxLabels();

}  // namespace velor
