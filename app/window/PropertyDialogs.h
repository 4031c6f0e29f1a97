// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

namespace velor {

class frmMain;

/// Shows the properties dialog for something in the page, and writes what the person changes there.
/// False where the page has nothing of that kind.
bool ShowProperties(frmMain &page, PropertyOwner owner);

/// The properties of the element at the caret or of the selected object, whatever it is, with its
/// path.
void ShowCaretElement(frmMain &page);

}  // namespace velor
