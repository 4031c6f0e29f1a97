// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetPageSet.h"

#include <map>
#include <vector>

namespace velor::fixture {

/// Addresses of the two usage maps that a table, an index or a memo column has.
struct UsageMaps {
  quint32 owned = 0;
  quint32 free = 0;
};

/// What a table definition says beside the columns.
struct DefinitionParts {
  enum class Kind : quint8 { System = 'S', User = 'N' };
  Kind kind = Kind::User;
  quint32 rows = 0;
  UsageMaps maps;
  std::vector<UsageMaps> indexMaps;
  std::vector<quint32> indexRoots;
  std::map<int, UsageMaps> memoMaps;
};

/// Writes the definition to its page, and to continuation pages where it is longer than one.
void WriteDefinition(JetPageSet &pages, quint32 page, const FixtureTable &table,
                     const DefinitionParts &parts);

}  // namespace velor::fixture
