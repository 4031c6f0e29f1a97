// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PaperPages.h"

#include "platform/Words.h"

#include <QFontMetricsF>
#include <QPainter>

namespace velor {

namespace {

// All in points.
constexpr int LineSize = 8;
constexpr qreal LineHeight = 12;
constexpr qreal EdgeDistance = 18;
constexpr qreal SideDistance = 36;

/// Paints two texts at the ends of a line; the first one gives way.
void PaintEnds(QPainter &painter, const QRectF &line, const QString &start, const QString &end) {
  const QFontMetricsF metrics(painter.font());
  const qreal room = line.width() - metrics.horizontalAdvance(end) - LineHeight;
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                   metrics.elidedText(start, Qt::ElideMiddle, room));
  painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, end);
}

}  // namespace

void PaperPages::Load(const QByteArray &pdf) {
  document_.close();
  bytes_.close();
  bytes_.setData(pdf);
  bytes_.open(QIODevice::ReadOnly);
  document_.load(&bytes_);
}

void PaperPages::Paint(QPainter &painter, const QRectF &place, int page, qreal density) {
  const QSize dots = (SizeOf(page) * density).toSize();
  QImage sheet(dots, QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter(&sheet).drawImage(0, 0, document_.render(page, dots));
  painter.drawImage(place, sheet);
  if (lines_.areShown) PaintEdgeLines(painter, place, page);
}

void PaperPages::PaintEdgeLines(QPainter &painter, const QRectF &place, int page) const {
  const QSizeF size = SizeOf(page);
  painter.save();
  painter.translate(place.topLeft());
  painter.scale(place.width() / size.width(), place.height() / size.height());
  QFont font = painter.font();
  font.setPixelSize(LineSize);
  painter.setFont(font);
  painter.setPen(Qt::black);
  const QRectF top(SideDistance, EdgeDistance, size.width() - 2 * SideDistance, LineHeight);
  const QRectF bottom = top.translated(0, size.height() - 2 * EdgeDistance - LineHeight);
  PaintEnds(painter, top, lines_.title, lines_.date);
  PaintEnds(painter, bottom, lines_.place,
            Words::tr("%1 of %2").arg(QString::number(page + 1), QString::number(Count())));
  painter.restore();
}

}  // namespace velor
