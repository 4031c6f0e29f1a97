// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/RecordList.h"

#include "platform/PlainTip.h"
#include "platform/Words.h"
#include "projects/RowTable.h"
#include "projects/Values.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include <utility>

namespace velor {

/// The item model of a RowTable.
class RowTableModel : public QAbstractTableModel {
 public:
  RowTableModel(QStringList headings, int nameColumn, QObject *parent)
      : QAbstractTableModel(parent), headings_(std::move(headings)), nameColumn_(nameColumn) {}

  void SetTable(const RowTable &table) { source_ = &table; }

  void Rebuild() {
    beginResetModel();
    table_ = *source_;
    endResetModel();
  }

  QVariant Value(int row, int column) const { return table_.At(row + 1, column); }

  int rowCount(const QModelIndex &parent) const override {
    return parent.isValid() ? 0 : table_.HighestRow();
  }
  int columnCount(const QModelIndex &parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
  }
  QVariant data(const QModelIndex &index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const QString text = TextOf(Value(index.row(), index.column()));
    if (text.isEmpty() && index.column() == nameColumn_) return Words::tr("(no name)");
    // A text that a narrow column cuts off is shown whole as a tool tip.
    return role == Qt::ToolTipRole ? PlainTip(text) : text;
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    const bool named = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return named ? QVariant(headings_.at(section)) : QVariant();
  }

 private:
  const QStringList headings_;
  const int nameColumn_;
  const RowTable *source_ = &table_;
  /// A copy made by the last Rebuild: the source may change or go before the view is told.
  RowTable table_;
};

namespace {

/// Draws the columns with room beside their texts.
class RoomyDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
    constexpr QSize Room(14, 0);
    return QStyledItemDelegate::sizeHint(option, index) + Room;
  }
};

}  // namespace

RecordList::RecordList(const QStringList &headings, int nameColumn)
    : model_(new RowTableModel(headings, nameColumn, this)) {
  setModel(model_);
  setItemDelegate(new RoomyDelegate(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int column = 0; column < headings.size(); ++column) {
    header()->setSectionResizeMode(
        column, column == nameColumn ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
  }
}

void RecordList::SetArray(const RowTable &table) {
  model_->SetTable(table);
}

void RecordList::ReBind() {
  model_->Rebuild();
  if (model_->rowCount({}) > 0) setCurrentIndex(model_->index(0, 0));
}

void RecordList::Refresh() {
  viewport()->update();
}

QVariant RecordList::CurrentValue() const {
  const QModelIndex current = currentIndex();
  return current.isValid() ? model_->Value(current.row(), 0) : QVariant();
}

}  // namespace velor
