// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QString>

namespace velor {

/// A drop-down list that can show a text which is not among its entries. Entries are chosen only in
/// the open list: a key on the closed box opens it, letters select in it.
class ChoiceBox final : public QComboBox {
  Q_OBJECT

 public:
  explicit ChoiceBox(QWidget *parent);

  QString Text() const { return text_; }
  /// Shows a text without emitting Clicked.
  void ShowText(const QString &text);

  void hidePopup() override;

 Q_SIGNALS:
  /// The person chose an entry, be it the one already shown. The box goes on showing what it
  /// showed.
  void Clicked(const QString &text);
  /// The person chose an entry or pressed Escape: the focus can go back to the page.
  void Done();

 protected:
  /// Draws a text that is not in the list like one that is.
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  /// Passes the wheel on to what is under the box.
  void wheelEvent(QWheelEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QString text_;
};

}  // namespace velor
