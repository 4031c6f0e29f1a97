// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace velor {

class DatabaseConnection;
class RowTable;

/// A list that FillList can show a table in.
class ListControl {
 public:
  virtual ~ListControl() = default;
  /// Sets the table to show, which outlives the next ReBind.
  virtual void SetArray(const RowTable &table) = 0;
  /// Shows the table's present columns and rows.
  virtual void ReBind() = 0;
  virtual void Refresh() = 0;
  /// Told that the statement failed and the list is empty; `description` is for people.
  virtual void FillFailed(const QString &) {}
};

/// Whether column 0 is kept free for the list's own use; it then holds 0 in every row and the
/// copied columns begin at 1.
enum class LeadingColumn { None, Reserved };

/// Fills `table` anew with the named columns of the statement's rows and shows it in `list`, which
/// is rebuilt once. Values are normalised by column type (NormalisedValue). Returns the number of
/// the last row whose `keyColumn` holds `keyValue`; 0 without one or with an empty `keyColumn`.
///
/// Never raises for a failing statement: table and list are empty then, and FillFailed tells the
/// list.
std::int16_t FillList(ListControl &list, RowTable &table, const QString &statement,
                      LeadingColumn leadingColumn, std::int32_t keyValue, const QString &keyColumn,
                      const QStringList &columnNames, DatabaseConnection &connection);

}  // namespace velor
