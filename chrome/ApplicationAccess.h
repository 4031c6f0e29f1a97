// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Tells assistive technology of the program's windows as people see them: menus and palettes that
/// are open are among them, windows that are never on the screen are not. To be called once, before
/// the first window.
void AnnounceSeenWindows();

}  // namespace velor
