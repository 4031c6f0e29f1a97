// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// The text of a tool tip that shows `text` letter by letter. Tool tips take what looks like markup
/// for markup; names and texts from files, catalogues and pages are none.
QString PlainTip(const QString &text);

}  // namespace velor
