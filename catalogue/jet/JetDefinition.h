// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTable.h"

#include <optional>

namespace velor {

/// Reads a table's definition from its page and those it is chained to. Nothing when it is damaged.
std::optional<JetTable> ReadJetDefinition(JetPager &pager, jet::PageNumber page,
                                          const QString &name);

}  // namespace velor
