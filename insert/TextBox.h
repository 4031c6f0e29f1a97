// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace velor {

/// Selects the whole text of a box.
void SelectAllText(QLineEdit &box);

/// A text box that selects its whole text when the person comes to it, by key or by mouse, and can
/// put a number right when they leave it. Coming back from another window counts as neither.
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
  /// The press that brought the focus has placed the caret; its release selects.
  bool selectOnRelease_ = false;
};

}  // namespace velor
