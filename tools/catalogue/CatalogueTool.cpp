// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/catalogue/CatalogueTool.h"

#include "catalogue/SqliteConnection.h"
#include "platform/Conversions.h"
#include "platform/Paths.h"

#include <QTextStream>

namespace velor {

namespace {

QString Printed(const QVariant &value) {
  QString text =
      value.typeId() == QMetaType::Double ? NumberText(value.toDouble()) : value.toString();
  for (QChar &character : text) {
    if (character == u'\t' || character == u'\n' || character == u'\r') character = u' ';
  }
  return text;
}

void Print(Recordset &rows, QTextStream &out) {
  const QStringList names = rows.ColumnNames();
  if (names.isEmpty()) return;
  out << names.join(u'\t') << '\n';
  for (; !rows.EndOfFile(); rows.MoveNext()) {
    for (int column = 0; column < names.size(); ++column) {
      if (column > 0) out << '\t';
      out << Printed(rows.ValueAt(column));
    }
    out << '\n';
  }
}

}  // namespace

void RunStatements(const QString &file, const QStringList &statements, QTextStream &out,
                   QTextStream &notices) {
  SqliteConnection connection;
  connection.Open(QStringLiteral("Data Source=") + ToLogic(file), {}, {}, CommandTypeUnspecified);
  if (!connection.Notice().isEmpty()) notices << connection.Notice() << '\n';
  // Taken back by the connection's end where a statement fails.
  connection.Execute(QStringLiteral("Begin"), CommandTypeUnspecified);
  for (const QString &statement : statements) {
    const auto rows = connection.CreateRecordset();
    rows->SetCursorLocation(CursorLocation::Client);
    rows->Open(statement, connection, CursorType::Static, LockType::ReadOnly,
               CommandTypeUnspecified);
    Print(*rows, out);
  }
  connection.Execute(QStringLiteral("Commit"), CommandTypeUnspecified);
}

}  // namespace velor
