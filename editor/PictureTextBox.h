// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"

#include <QRect>
#include <QString>

class QCheckBox;
class QLineEdit;

namespace velor {

/// Where a box of that size stands beside a picture in a view: below it, above it, at its right,
/// and over it where there is no room; within the view. Nothing for a picture that is out of sight.
QRect PlaceBeside(const QRect &picture, QSize box, const QRect &view);

/// The small box beside a picture that was put in: it asks for the alternative text. It lies over
/// the page's view and never takes the keyboard by itself. Enter and Escape in it put it away and
/// give the keyboard back.
class PictureTextBox final : public NoticeBar {
  Q_OBJECT

 public:
  /// Hidden at first. `view` shows the page.
  explicit PictureTextBox(QWidget &view);

  /// Asks anew; nothing is shown before there is a place.
  void Begin();
  /// The picture is there now, in the view's pixels; empty while it is not in sight.
  void PlaceAt(const QRect &picture);
  void End();

 Q_SIGNALS:
  /// The alternative text was typed; a null text where the picture has none any more. It is empty
  /// for a picture that only decorates.
  void TextGiven(const QString &text);
  /// The keyboard is to go back to the page.
  void Left();

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void GiveText();

  QLineEdit *text_ = nullptr;
  QCheckBox *decorative_ = nullptr;
  QString given_;  ///< null for none
  bool isAsking_ = false;
};

}  // namespace velor
