// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/CodedPicture.h"

#include <QDialog>
#include <QImage>

#include <array>

class QCheckBox;
class QSpinBox;

namespace velor {

class CropView;

/// The window that cuts a part out of a picture and turns it: a rectangle to drag, and its place
/// and size in numbers. It changes nothing itself; OK leaves the choice in Cut().
class FrmCrop final : public QDialog {
  Q_OBJECT

 public:
  /// `picture` is upright; `name` is its file's.
  FrmCrop(const QImage &picture, const QString &name, QWidget *parent);

  /// What is to be done to the picture: at first nothing.
  PictureCut Cut() const { return {part_, quarterTurns_}; }

 private:
  void TurnBy(Turn turn);
  void TakeNumbers();
  void ShowPart(const QRect &part);
  void ShowRatio();

  QImage picture_;  ///< as it is turned
  QRect part_;
  int quarterTurns_ = 0;
  CropView *view_ = nullptr;
  std::array<QSpinBox *, 4> numbers_{};  ///< left, top, width, height
  QCheckBox *ratio_ = nullptr;
};

}  // namespace velor
