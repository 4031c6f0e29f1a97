// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

namespace velor {

/// The collation's name in declarations.
inline constexpr const char *TextCollationName = "CATALOGUE";

/// Adds the collation by which texts of a Jet catalogue are ordered and compared: dictionary order
/// of all scripts, ignoring letter case but not accents.
void AddTextCollation(sqlite3 *database);

}  // namespace velor
