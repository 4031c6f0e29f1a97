// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"

#include <QString>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace velor {

/// The bar under a page that tells of pictures that were put in: whether they were copied into the
/// site, with the other choice as a button, and a box for the alternative text. It never takes the
/// keyboard by itself. Enter and Escape in the box give it back.
class PictureBar final : public NoticeBar {
  Q_OBJECT

 public:
  /// Hidden at first.
  explicit PictureBar(QWidget *parent);

  /// What the person can choose besides Undo.
  enum class Offer { Nothing, Copy, Link };
  /// Whether the alternative text is asked for: of one picture alone.
  enum class Asks { Nothing, ForText };
  void ShowArrival(const QString &text, Offer offer, Asks asks);

 Q_SIGNALS:
  void CopyChosen();
  void LinkChosen();
  void UndoChosen();
  /// The alternative text was typed; a null text where the picture has none any more. It is empty
  /// for a picture that only decorates.
  void TextGiven(const QString &text);
  /// The keyboard is to go back to the page.
  void Left();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void GiveText();

  QLineEdit *text_ = nullptr;
  QCheckBox *decorative_ = nullptr;
  QPushButton *copy_ = nullptr;
  QPushButton *link_ = nullptr;
  QString given_;  ///< null for none
};

}  // namespace velor
