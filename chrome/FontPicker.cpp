// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FontPicker.h"

#include "chrome/FontFamilies.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace velor {
namespace {

constexpr int RowHeight = 30;
constexpr int ListWidth = 260;

/// Draws a family's name in its own face; in the program's where that face has no letters to read
/// it by.
/// Only rows that come into view load their font.
class FamilyDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override {
    return {ListWidth, RowHeight};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->font = FaceOf(option->text, option->font);
    option->fontMetrics = QFontMetrics(option->font);
  }

 private:
  QFont FaceOf(const QString &family, const QFont &own) const {
    const auto known = faces_.constFind(family);
    if (known != faces_.constEnd()) return *known;
    QFont face = own;
    face.setPointSizeF(own.pointSizeF() * 1.15);
    const auto systems = QFontDatabase::writingSystems(family);
    if (systems.contains(QFontDatabase::Latin) && !systems.contains(QFontDatabase::Symbol)) {
      face.setFamilies({family});
    }
    return *faces_.insert(family, face);
  }

  mutable QHash<QString, QFont> faces_;
};

}  // namespace

FontPicker::FontPicker(QWidget *parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(14);
  setMaxVisibleItems(16);
  auto *list = new QListView(this);
  list->setUniformItemSizes(true);
  setView(list);
  list->setItemDelegate(new FamilyDelegate(list));
  list->setMinimumWidth(ListWidth);
  completer()->setCompletionMode(QCompleter::InlineCompletion);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  connect(this, &QComboBox::activated, this, [this](int index) { Choose(itemText(index)); });
  connect(lineEdit(), &QLineEdit::returnPressed, this, [this] {
    Choose(currentText());
    Q_EMIT Done();
  });
}

void FontPicker::Initialise() {
  const QSignalBlocker silence(this);
  const QString name = shown_;
  clear();
  addItems(InstalledFamilies());
  SetFontName(name);
}

void FontPicker::SetFontName(const QString &name) {
  const QSignalBlocker silence(this);
  const int index = findText(name, Qt::MatchFixedString);
  // An installed font is shown as the list spells it: pages give names in any letter case.
  shown_ = index < 0 ? name : itemText(index);
  setCurrentIndex(index);
  setEditText(shown_);
  lineEdit()->setCursorPosition(0);
}

void FontPicker::Choose(const QString &name) {
  // Enter on a listed name arrives twice, from the list and from the line, which then shows
  // `shown_`.
  if (name.isEmpty() || name == shown_) return;
  // The page may refuse it: shown is what the page says afterwards.
  SetFontName(shown_);
  Q_EMIT FontChosen(name);
}

void FontPicker::hidePopup() {
  const bool wasOpen = view()->isVisible();
  QComboBox::hidePopup();
  if (wasOpen) Q_EMIT Done();
}

void FontPicker::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape) {
    SetFontName(shown_);
    Q_EMIT Done();
  } else {
    QComboBox::keyPressEvent(event);
  }
}

void FontPicker::wheelEvent(QWheelEvent *event) {
  event->ignore();
}

void FontPicker::focusOutEvent(QFocusEvent *event) {
  QComboBox::focusOutEvent(event);
  // A name typed but not entered was no choice.
  if (event->reason() != Qt::PopupFocusReason) SetFontName(shown_);
}

}  // namespace velor
