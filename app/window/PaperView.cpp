// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PaperView.h"

#include "app/window/PaperPages.h"
#include "chrome/Palette.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace velor {

namespace {

constexpr int Gap = 12;
constexpr QSize UsualSize(520, 640);
/// As many pages as are in sight at once, and some around them.
constexpr int MostPainted = 8;

}  // namespace

PaperView::PaperView(PaperPages &pages, QWidget *parent)
    : QAbstractScrollArea(parent), pages_(pages), painted_(MostPainted) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setFocusPolicy(Qt::StrongFocus);
}

QSize PaperView::sizeHint() const {
  return UsualSize;
}

void PaperView::Renew() {
  painted_.clear();
  LayOut();
  viewport()->update();
}

qreal PaperView::Scale() const {
  qreal widest = 1;
  for (int page = 0; page < pages_.Count(); ++page)
    widest = std::max(widest, pages_.SizeOf(page).width());
  return std::max(1, viewport()->width() - 2 * Gap) / widest;
}

int PaperView::HeightOf(int page) const {
  return qRound(pages_.SizeOf(page).height() * Scale());
}

void PaperView::LayOut() {
  int height = Gap;
  for (int page = 0; page < pages_.Count(); ++page) height += HeightOf(page) + Gap;
  QScrollBar &bar = *verticalScrollBar();
  bar.setRange(0, std::max(0, height - viewport()->height()));
  bar.setPageStep(viewport()->height());
  bar.setSingleStep(3 * Gap);
}

void PaperView::resizeEvent(QResizeEvent *) {
  Renew();
}

void PaperView::paintEvent(QPaintEvent *) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), Backdrop(palette()));
  const qreal density = Scale() * devicePixelRatioF();
  int top = Gap - verticalScrollBar()->value();
  for (int page = 0; page < pages_.Count(); ++page) {
    const QSize size(qRound(pages_.SizeOf(page).width() * Scale()), HeightOf(page));
    const QRect place(QPoint((viewport()->width() - size.width()) / 2, top), size);
    top += size.height() + Gap;
    if (!place.intersects(viewport()->rect())) continue;
    if (!painted_.contains(page)) {
      auto *sheet = new QPixmap(size * devicePixelRatioF());
      sheet->setDevicePixelRatio(devicePixelRatioF());
      QPainter onSheet(sheet);
      pages_.Paint(onSheet, QRectF(QPointF(), size), page, density);
      painted_.insert(page, sheet);
    }
    painter.drawPixmap(place.topLeft(), *painted_.object(page));
  }
}

}  // namespace velor
