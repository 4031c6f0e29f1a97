// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace velor {

/// Selects the whole text of a box.
void SelectAllText(QLineEdit &box);

/// A text box that selects its whole text when it gets the focus by key or mouse, and can replace a
/// text that is no number when it loses the focus. A focus that follows its window's activation
/// does neither.
class TextBox : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  /// A text that is no number becomes `replacement` when the box loses the focus.
  void RepairNumberTo(const QString &replacement) { replacement_ = replacement; }

 protected:
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

 private:
  QString replacement_;
  /// Set by the mouse press that gave the focus: its release selects, after the press placed the
  /// caret.
  bool selectOnRelease_ = false;
};

}  // namespace velor
