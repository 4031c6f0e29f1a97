// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace velor {

/// The offset of the end tag that closes a raw text element (SCRIPT, STYLE, TITLE, TEXTAREA ...)
/// whose content begins at `from`; the text's end where there is none. `name` is the element's, in
/// any letter case. Follows the standard's escaped states in scripts.
qsizetype EndOfRawText(QStringView html, qsizetype from, QStringView name);

}  // namespace velor
