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
namespace {

struct SourceColumn {
  int index;
  ColumnType type;
};

std::vector<SourceColumn> Find(const QStringList &names, const Recordset &records) {
  std::vector<SourceColumn> columns;
  for (const QString &name : names) {
    const int index = records.ColumnIndex(name);
    columns.push_back({index, records.TypeAt(index)});
  }
  return columns;
}

void Show(const RowTable &table, ListControl &list) {
  list.SetArray(table);
  list.ReBind();
  list.Refresh();
  list.Refresh();
}

}  // namespace

std::int16_t FillList(ListControl &list, RowTable &table, const QString &statement,
                      LeadingColumn leadingColumn, std::int32_t keyValue, const QString &keyColumn,
                      const QStringList &columnNames, DatabaseConnection &connection) {
  const int offset = leadingColumn == LeadingColumn::Reserved ? 1 : 0;
  std::int16_t found = 0;
  try {
    // A table of its own is filled, so that a list that shows `table` never sees half of the rows.
    RowTable fresh(static_cast<int>(columnNames.size()) - 1 + offset);
    const auto records = connection.CreateRecordset();
    OpenRecordset(*records, statement, connection);
    if (!records->EndOfFile()) {
      fresh.Reserve(records->RecordCount());
      const std::vector<SourceColumn> columns = Find(columnNames, *records);
      const std::vector<SourceColumn> keys =
          keyColumn.isEmpty() ? std::vector<SourceColumn>() : Find({keyColumn}, *records);
      for (; !records->EndOfFile(); records->MoveNext()) {
        const int row = fresh.AppendRow();
        fresh.At(row, 0) = 0.0;
        for (const SourceColumn &key : keys) {
          if (IsNumber(records->ValueAt(key.index), keyValue)) {
            found = CInt(static_cast<double>(row));
          }
        }
        int target = offset;
        for (const SourceColumn &column : columns) {
          fresh.At(row, target++) = NormalisedValue(records->ValueAt(column.index), column.type);
        }
      }
    }
    table = std::move(fresh);
    Show(table, list);
  } catch (const RuntimeError &error) {
    // Otherwise the rows of the last statement would remain and be taken for this one's.
    table = RowTable(static_cast<int>(columnNames.size()) - 1 + offset);
    Show(table, list);
    list.FillFailed(error.Description());
  }
  return found;
}

}  // namespace velor
