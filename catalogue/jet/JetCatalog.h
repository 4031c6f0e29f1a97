// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTable.h"

#include <vector>

namespace velor {

/// The user tables that the file's own table of objects lists, in its order. A table whose
/// definition is damaged is left out and noted in the pager. Raises DeviceIoError when the table of
/// objects itself cannot be read; `path` is named then.
std::vector<JetTable> ReadJetTables(JetPager &pager, const QString &path);

}  // namespace velor
