// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>

namespace velor {

/// A page that no parser takes as it stands, always the same for a number: elements never closed
/// and closed in the wrong order, formatting around tables, foreign content, templates, selects,
/// remains of framesets, text that never ends, declarations and sections where none may be, NULs,
/// line ends of all forms, bytes of several charsets. Text with letters is always among it.
QByteArray NastyPage(std::uint32_t number);

}  // namespace velor
