// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "projects/FillList.h"

#include <QStringList>
#include <QTreeView>
#include <QVariant>

namespace velor {

class RowTableModel;

/// A multi-column list that shows a RowTable: read only, one row current, in the table's order. A
/// ReBind with rows makes the first one current.
class RecordList : public QTreeView, public ListControl {
  Q_OBJECT

 public:
  /// One heading a column; the column `nameColumn` takes the width that the others leave, and an
  /// empty name in it is shown as "(no name)".
  RecordList(const QStringList &headings, int nameColumn);

  void SetArray(const RowTable &table) override;
  void ReBind() override;
  void Refresh() override;
  void FillFailed(const QString &description) override { Q_EMIT Failed(description); }

  /// The current row's value in column 0; null without a current row.
  QVariant CurrentValue() const;

 Q_SIGNALS:
  /// The list is empty because it could not be filled.
  void Failed(const QString &description);

 private:
  RowTableModel *model_;
};

}  // namespace velor
