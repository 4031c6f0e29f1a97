// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace velor {

/// A box to choose a font by name. The list shows each family in its own face; a name may also be
/// typed, whether such a font is installed or not.
class FontPicker final : public QComboBox {
  Q_OBJECT

 public:
  explicit FontPicker(QWidget *parent);

  /// Fills the list with the installed families.
  void Initialise();

  QString FontName() const { return currentText(); }
  /// Shows a name without emitting FontChosen.
  void SetFontName(const QString &name);

  void hidePopup() override;

 Q_SIGNALS:
  /// The person chose a name from the list, or typed one and pressed Enter. The box goes on showing
  /// what it showed.
  void FontChosen(const QString &name);
  /// The person chose a name or pressed Escape: the focus can go back to the page.
  void Done();

 protected:
  void focusOutEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

 private:
  void Choose(const QString &name);

  QString shown_;
};

}  // namespace velor
