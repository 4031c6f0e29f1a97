// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QString>

namespace velor {

/// A list to choose from whose text may be one that is not in the list. Nothing is chosen without
/// the list: a key on the closed box opens it, letters pick in it.
class ChoiceBox final : public QComboBox {
  Q_OBJECT

 public:
  explicit ChoiceBox(QWidget *parent);

  QString Text() const { return text_; }
  /// Shows a text; tells nobody.
  void ShowText(const QString &text);

  void hidePopup() override;

 Q_SIGNALS:
  /// The person clicked an entry, the one already shown included.
  void Clicked(const QString &text);
  /// The person is done with the box: an entry was chosen, or Escape pressed.
  void Done();

 protected:
  /// A text that is not in the list looks like one that is.
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  /// The wheel scrolls what lies under the box, if anything.
  void wheelEvent(QWheelEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QString text_;
};

}  // namespace velor
