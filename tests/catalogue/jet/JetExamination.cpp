// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/catalogue/jet/JetExamination.h"

#include "catalogue/jet/JetFile.h"
#include "platform/RuntimeError.h"
#include "tests/support/jet/JetChecker.h"
#include "tests/support/jet/MemoryJetStorage.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace velor::fixture {

namespace {

/// Table, row, column.
using CellName = std::tuple<QString, JetRowId, int>;
using Content = std::map<CellName, QVariant>;

Content ReadAll(JetFile &file) {
  Content content;
  for (const QString &name : file.TableNames()) {
    const JetTable &table = *file.FindTable(name);
    for (JetCursor cursor = file.Scan(table); cursor.Next();)
      for (int column = 0; column < static_cast<int>(table.columns.size()); ++column)
        content[{name, cursor.RowId(), column}] = cursor.Value(column);
  }
  return content;
}

/// Sets the first cell of each text or memo column to a text that makes the row longer; returns the
/// cells that were set. Refusals are in order.
std::set<CellName> UpdateEveryColumn(JetFile &file, const QString &text) {
  std::set<CellName> changed;
  for (const QString &name : file.TableNames()) {
    const JetTable &table = *file.FindTable(name);
    JetCursor cursor = file.Scan(table);
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column) {
      const JetType type = table.columns[column].type;
      if ((type != JetType::Text && type != JetType::Memo) || !cursor.Next()) continue;
      try {
        file.UpdateRow(table, cursor.RowId(), {{column, text}});
        changed.insert({name, cursor.RowId(), column});
      } catch (const RuntimeError &) {
        continue;
      }
    }
  }
  return changed;
}

QString NameOf(const CellName &cell) {
  return QStringLiteral("%1, row %2, column %3")
      .arg(std::get<0>(cell))
      .arg(std::get<1>(cell))
      .arg(std::get<2>(cell));
}

/// Cells that are not what they were, or for those that were set, not what they were set to.
QStringList Differences(const Content &before, const Content &after,
                        const std::set<CellName> &changed, const QString &text) {
  QStringList differences;
  if (before.size() != after.size())
    differences << QStringLiteral("%1 cells became %2").arg(before.size()).arg(after.size());
  for (const auto &[cell, value] : after) {
    const auto old = before.find(cell);
    const QVariant expected =
        changed.count(cell) || old == before.end() ? QVariant(text) : old->second;
    if (value != expected) differences << NameOf(cell);
  }
  return differences;
}

/// Complaints about what an update relies on: the rows and maps of the tables that the file shows,
/// and the global map. Indexes, the maps of long values and pages that no map names it neither
/// reads nor touches, so that a file is written though those are damaged.
QStringList ComplaintsAboutRows(const QStringList &complaints, const JetFile &file) {
  QStringList starts = {QStringLiteral("the global map")};
  for (const QString &name : file.TableNames())
    for (const char *end : {"'", ":", " counts"})
      starts << QStringLiteral("table %1%2")
                    .arg(file.FindTable(name)->definitionPage)
                    .arg(QString::fromLatin1(end));
  QStringList about;
  for (const QString &complaint : complaints)
    for (const QString &start : starts)
      if (complaint.startsWith(start) && !complaint.endsWith(QStringLiteral("is not in its map")))
        about << complaint;
  return about;
}

}  // namespace

JetExamination ExamineJetFile(const QByteArray &file) {
  JetExamination result;
  JetMemory memory;
  memory.file = file;
  try {
    const std::unique_ptr<JetFile> opened =
        JetFile::Open(std::make_unique<MemoryJetStorage>(memory));
    result.opened = true;
    const Content before = ReadAll(*opened);
    const JetAccessMode mode = opened->Access().mode;
    const QString text = QString(120, QChar(0x6587));
    const std::set<CellName> changed = UpdateEveryColumn(*opened, text);
    result.written = memory.writes > 0;
    if (!result.written) {
      if (memory.file != file) result.broken << QStringLiteral("the bytes changed");
      return result;
    }
    if (mode == JetAccessMode::ReadOnly)
      result.broken << QStringLiteral("a read-only file was written");
    result.broken << Differences(before, ReadAll(*opened), changed, text);
    const QStringList complaints = JetComplaints(file);
    const QStringList now = JetComplaints(memory.file);
    for (const QString &complaint : ComplaintsAboutRows(complaints, *opened))
      result.broken << QStringLiteral("written though ") + complaint;
    if (now.size() > complaints.size()) result.broken << now;
  } catch (const RuntimeError &) {
    if (memory.file != file) result.broken << QStringLiteral("the bytes changed before an error");
  }
  return result;
}

}  // namespace velor::fixture
