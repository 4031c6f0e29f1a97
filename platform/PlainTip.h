// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// `text` in a form that a tool tip shows letter by letter. For names and texts from files,
/// catalogues and pages: tool tips would interpret markup in them.
QString PlainTip(const QString &text);

}  // namespace velor
