// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"

#include <QString>

class QPushButton;

namespace velor {

/// The bar under a page that tells of pictures that were put in: whether they were copied into the
/// site, with the other choice as a button. It never takes the keyboard by itself.
class PictureBar final : public NoticeBar {
  Q_OBJECT

 public:
  /// Hidden at first.
  explicit PictureBar(QWidget *parent);

  /// What the person can choose besides Undo.
  enum class Offer { Nothing, Copy, Link };
  void ShowArrival(const QString &text, Offer offer);

 Q_SIGNALS:
  void CopyChosen();
  void LinkChosen();
  void UndoChosen();

 private:
  QPushButton *copy_ = nullptr;
  QPushButton *link_ = nullptr;
};

}  // namespace velor
