// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetTrial.h"

#include <QDir>
#include <QFileInfo>

namespace velor::fixture {

QString FolderInMemory() {
  const QString memory = QStringLiteral("/dev/shm");
  return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
         QStringLiteral("/velor-jet-XXXXXX");
}

void JetTrial::Update(JetFile &file, const CellPlace &place, const std::optional<QString> &text) {
  FixtureTable &table = meant_.tables[place.table];
  file.UpdateRow(*file.FindTable(table.name), RowIdOf(file, place.table, place.row),
                 {{place.column, text ? QVariant(*text) : QVariant()}});
  table.rows[place.row].cells[place.column] = text ? Cell(*text) : Cell();
}

void JetTrial::UpdateWhere(JetFile &file, int table, int keyColumn, int key, int column,
                           const QString &text) {
  const std::vector<FixtureRow> &rows = meant_.tables[table].rows;
  file.Begin();
  for (int row = 0; row < static_cast<int>(rows.size()); ++row)
    if (rows[row].cells[keyColumn] == Cell(qint32{key})) Update(file, {table, row, column}, text);
  file.Commit();
}

JetRowId JetTrial::RowIdOf(JetFile &file, int table, int row) {
  std::map<qint64, JetRowId> &ids = rowIds_[table];
  if (ids.empty())
    for (JetCursor cursor = file.Scan(*file.FindTable(meant_.tables[table].name)); cursor.Next();)
      ids[cursor.Integer(0).value_or(0)] = cursor.RowId();
  return ids.at(std::get<qint32>(meant_.tables[table].rows[row].cells[0]));
}

}  // namespace velor::fixture
