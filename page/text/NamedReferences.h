// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// The HTML standard's named character references: texts with "name=code[,code]" parted by blanks,
/// hexadecimal; a name that must end in ";" has it. Sorted by name; a null pointer ends the list.
extern const char *const NamedReferences[];

}  // namespace velor
