// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/ChoiceBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace velor {
namespace {

bool OpensList(const QKeyEvent &event) {
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F4:
      return true;
    default:
      return false;
  }
}

bool IsLetter(const QKeyEvent &event) {
  return !event.text().isEmpty() && event.text().at(0).isPrint() &&
         (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

}  // namespace

ChoiceBox::ChoiceBox(QWidget *parent) : QComboBox(parent) {
  setMaxVisibleItems(20);
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  view()->installEventFilter(this);
  connect(this, &QComboBox::activated, this, [this](int index) {
    const QString chosen = itemText(index);
    // The page may refuse it: shown is what the page says afterwards.
    ShowText(text_);
    Q_EMIT Clicked(chosen);
    Q_EMIT Done();
  });
}

void ChoiceBox::ShowText(const QString &text) {
  const QSignalBlocker silence(this);
  text_ = text;
  setPlaceholderText(text);
  setCurrentIndex(findText(text));
}

void ChoiceBox::hidePopup() {
  const bool wasOpen = view()->isVisible();
  QComboBox::hidePopup();
  if (wasOpen) Q_EMIT Done();
}

void ChoiceBox::paintEvent(QPaintEvent *) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = text_;
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ChoiceBox::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape) {
    Q_EMIT Done();
  } else if (OpensList(*event)) {
    showPopup();
  } else if (IsLetter(*event)) {
    showPopup();
    view()->keyboardSearch(event->text());
  } else {
    event->ignore();
  }
}

void ChoiceBox::wheelEvent(QWheelEvent *event) {
  event->ignore();
}

bool ChoiceBox::eventFilter(QObject *watched, QEvent *event) {
  if (watched == view() && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
      QComboBox::hidePopup();
      setFocus();
      focusNextPrevChild(key == Qt::Key_Tab);
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

}  // namespace velor
