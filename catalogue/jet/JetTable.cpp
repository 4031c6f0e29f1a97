// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetTable.h"

#include <algorithm>

namespace velor {

int JetTable::ColumnIndex(const QString &columnName) const {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const JetColumn &column) {
    return column.name.compare(columnName, Qt::CaseInsensitive) == 0;
  });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

}  // namespace velor
