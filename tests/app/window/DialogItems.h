// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// The menu items that open a dialog over a page, whatever is selected in it.
inline constexpr const char *DialogItems[] = {
    "mnuNewFromTemplate", "mnuCharacter", "mnuAbout",           "mnuPrint",    "mnuFindCommand",
    "mnuSettings",        "mnuDrives",    "mnuTBLnew",          "mnuISTimage", "mnuISTlink",
    "mnuBookmark",        "mnuVideo",     "mnuView_ProjectMan", "extInHTML",   "mnuShortcuts"};

}  // namespace velor
