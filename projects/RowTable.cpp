// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/RowTable.h"

#include "platform/RuntimeError.h"

namespace velor {

int RowTable::AppendRow() {
  values_.resize(values_.size() + columns_);
  return HighestRow();
}

int RowTable::HighestRow() const {
  return columns_ == 0 ? 0 : static_cast<int>(values_.size() / columns_);
}

qsizetype RowTable::Index(int row, int column) const {
  if (row < 1 || row > HighestRow() || column < 0 || column >= columns_) {
    throw RuntimeError::Of(ErrorNumber::SubscriptOutOfRange, QStringLiteral("RowTable"));
  }
  return qsizetype{row - 1} * columns_ + column;
}

}  // namespace velor
