// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TextBox.h"

#include "platform/Conversions.h"

#include <QFocusEvent>
#include <QMouseEvent>

#include <utility>

namespace velor {
namespace {

/// Whether the focus moves between controls, not with the window's activation or to a menu and
/// back.
bool MovesBetweenControls(const QFocusEvent &event) {
  return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

}  // namespace

void SelectAllText(QLineEdit &box) {
  box.setSelection(0, static_cast<int>(box.text().size()));
}

void TextBox::focusInEvent(QFocusEvent *event) {
  QLineEdit::focusInEvent(event);
  if (!MovesBetweenControls(*event)) return;
  SelectAllText(*this);
  selectOnRelease_ = event->reason() == Qt::MouseFocusReason;
}

void TextBox::focusOutEvent(QFocusEvent *event) {
  QLineEdit::focusOutEvent(event);
  if (MovesBetweenControls(*event) && !replacement_.isEmpty() && !IsNumeric(text())) {
    setText(replacement_);
  }
}

void TextBox::mouseReleaseEvent(QMouseEvent *event) {
  QLineEdit::mouseReleaseEvent(event);
  // A drag with the mouse has made a selection: keep it.
  if (std::exchange(selectOnRelease_, false) && !hasSelectedText()) SelectAllText(*this);
}

}  // namespace velor
