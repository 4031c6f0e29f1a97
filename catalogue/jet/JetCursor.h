// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetRow.h"
#include "catalogue/jet/JetTable.h"

#include <QVariant>

#include <memory>
#include <optional>
#include <vector>

namespace velor {

class JetPager;

/// Walks a table's rows in the file's order and reads a value only when it is asked for. A row that
/// is changed during the walk is read as it was when its page was reached. Damaged rows are left
/// out and noted in the pager; the walk always ends.
class JetCursor {
 public:
  JetCursor(JetPager &pager, const JetTable &table, std::vector<jet::PageNumber> pages);

  /// Goes to the next row; false past the last one.
  bool Next();
  JetRowId RowId() const;

  bool IsNull(int column) const;
  /// The value of a Boolean (1 or 0), Byte, Short or Long column; nothing for null and other types.
  std::optional<qint64> Integer(int column) const;
  /// Null: invalid. Boolean: bool. Byte, Short, Long: int. Currency, Single, Double, Numeric:
  /// double. DateTime: "yyyy-MM-dd", with " HH:mm:ss" where the time is not midnight. Text, Memo,
  /// Guid: QString. Binary, Ole: QByteArray. What cannot be read is null.
  QVariant Value(int column) const;
  /// Whether every value of the row can be read, long values to their last part.
  bool IsWhole() const;

 private:
  /// Goes to the next sound page of the table; false past the last one.
  bool NextPage();
  bool HasLongValue(const JetColumn &column) const;

  JetPager *pager_;
  const JetTable *table_;
  std::vector<jet::PageNumber> pages_;
  std::size_t nextPage_ = 0;
  std::shared_ptr<const jet::Page> page_;
  /// Keeps the page of a row that has moved.
  std::shared_ptr<const jet::Page> movedPage_;
  JetPlace home_;
  JetRow row_;
};

}  // namespace velor
