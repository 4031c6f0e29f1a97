// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Tells assistive technology of every tab bar's tabs which one is selected, which are switched off
/// and which are not shown, and names and describes them by their texts and tips. Qt 6.4 tells
/// neither. To be called once, before the first window.
void AnnounceTabStates();

}  // namespace velor
