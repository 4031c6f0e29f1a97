// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace velor {

class DatabaseConnection;
class RowTable;

/// What a filled list must be able to do.
class ListControl {
 public:
  virtual ~ListControl() = default;
  /// The table to show. A change of it shows after ReBind, to whose end it must live.
  virtual void SetArray(const RowTable &table) = 0;
  /// Reads the table's shape and content anew.
  virtual void ReBind() = 0;
  virtual void Refresh() = 0;
  /// Filling it failed, and it is empty now; `description` for people.
  virtual void FillFailed(const QString &) {}
};

/// Whether column 0 is kept free for the list's own use; it then holds 0 in every row and the
/// copied columns begin at 1.
enum class LeadingColumn { None, Reserved };

/// Fills `table` anew with the named columns of the statement's rows and shows it in `list`, which
/// is rebuilt once. Values are normalised by column type (NormalisedValue). Returns the number of
/// the last row whose `keyColumn` holds `keyValue`; 0 without one or with an empty `keyColumn`.
///
/// A failure is not raised: table and list are empty then, and the list is told why.
std::int16_t FillList(ListControl &list, RowTable &table, const QString &statement,
                      LeadingColumn leadingColumn, std::int32_t keyValue, const QString &keyColumn,
                      const QStringList &columnNames, DatabaseConnection &connection);

}  // namespace velor
