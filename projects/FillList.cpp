// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/FillList.h"

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"
#include "projects/RecordsetReader.h"
#include "projects/RowTable.h"
#include "projects/Values.h"

#include <utility>
#include <vector>

namespace velor {

std::int16_t FillList(ListControl &list, RowTable &table, const QString &statement,
                      LeadingColumn leadingColumn, std::int32_t keyValue, const QString &keyColumn,
                      const QStringList &columnNames, DatabaseConnection &connection) {
  std::int16_t found = 0;
  try {
    const int offset = leadingColumn == LeadingColumn::Reserved ? 1 : 0;
    const int names = static_cast<int>(columnNames.size());
    // Filled aside, so that a list that shows `table` never sees it half full.
    RowTable fresh(names - 1 + offset);
    const auto records = connection.CreateRecordset();
    OpenRecordset(*records, statement, connection);
    std::vector<ColumnType> types;
    for (const QString &name : columnNames) types.push_back(records->Type(name));
    for (; !records->EndOfFile(); records->MoveNext()) {
      const int row = fresh.AppendRow();
      fresh.At(row, 0) = 0.0;
      if (!keyColumn.isEmpty() && IsNumber(records->Value(keyColumn), keyValue)) {
        found = CInt(static_cast<double>(row));
      }
      for (int c = 0; c < names; ++c) {
        fresh.At(row, c + offset) =
            NormalisedValue(records->Value(columnNames[c]), types[static_cast<std::size_t>(c)]);
      }
    }
    table = std::move(fresh);
    list.SetArray(table);
    list.ReBind();
    list.Refresh();
    list.Refresh();
  } catch (const RuntimeError &) {
    // The caller learns of it by the row number alone.
  }
  return found;
}

}  // namespace velor
