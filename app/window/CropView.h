// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QWidget>

namespace velor {

/// A picture, as large as there is room, with a rectangle over the part of it that stays. The mouse
/// drags the rectangle, or its edges and corners; the arrow keys move it by a pixel, with Ctrl by
/// ten, and with Shift change its size.
class CropView final : public QWidget {
  Q_OBJECT

 public:
  explicit CropView(QWidget *parent);

  /// The part is in the picture's pixels.
  void ShowPicture(const QImage &picture, const QRect &part);
  void ShowPart(const QRect &part);
  /// Width to height while the mouse or a key changes the size; 0 for any.
  void SetRatio(double ratio) { ratio_ = ratio; }

  QSize sizeHint() const override;

 Q_SIGNALS:
  void PartChosen(const QRect &part);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

 private:
  /// Where the picture is drawn.
  QRect Field() const;
  QRect PartInField() const;
  QPoint InPicture(QPoint point) const;
  int EdgesUnder(QPoint point) const;
  void Drag(const QRect &from, int edges, QPoint by);

  QImage picture_;
  QPixmap drawn_;  ///< the picture as large as the field
  QRect part_;
  double ratio_ = 0;
  int edges_ = 0;  ///< those that the mouse holds
  QPoint grip_;    ///< where it took hold, in the picture
  QRect partAtGrip_;
};

}  // namespace velor
