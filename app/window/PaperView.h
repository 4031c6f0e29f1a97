// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

namespace velor {

class PaperPages;

/// Shows pages of paper one below the other, as wide as it is. Only pages in sight are painted.
class PaperView final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  /// `pages` outlives it.
  PaperView(PaperPages &pages, QWidget *parent);

  /// The pages have changed; the place in them stays where it can.
  void Renew();

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  /// Pixels a point.
  qreal Scale() const;
  int HeightOf(int page) const;
  void LayOut();

  PaperPages &pages_;
  QCache<int, QPixmap> painted_;
};

}  // namespace velor
