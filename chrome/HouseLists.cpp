// SPDX-License-Identifier: GPL-3.0-or-later
// Lists: headers, backgrounds of items, scroll bars.
#include "chrome/HouseDrawing.h"
#include "chrome/Palette.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace velor {
namespace {

/// Pixels between a scroll bar's slider and the bar's long edges.
constexpr int SliderInset = 4;
/// Opacity of the outline around a selected item.
constexpr float FaintFocus = 0.35F;

/// Colour of the slider, darker than an edge to be found with the mouse.
QColor ScrollSlider(const QPalette &palette) {
  return palette.color(ShadeOf(palette) == Shade::Dark ? QPalette::Light : QPalette::Dark);
}

QPalette::ColorGroup GroupOf(const QStyleOption *option) {
  if (!(option->state & QStyle::State_Enabled)) return QPalette::Disabled;
  return option->state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

void DrawHeaderSection(const QStyleOptionHeader *header, QPainter *painter) {
  const QRect area = header->rect;
  const QColor line = Hairline(header->palette);
  painter->fillRect(area, header->palette.window());
  painter->fillRect(area.left(), area.bottom(), area.width(), 1, line);
  const bool isLast = header->position == QStyleOptionHeader::End ||
                      header->position == QStyleOptionHeader::OnlyOneSection;
  if (!isLast) {
    painter->fillRect(area.right(), area.top() + Rounding, 1, area.height() - 2 * Rounding, line);
  }
}

void DrawItemField(const QStyleOptionViewItem *item, QPainter *painter) {
  if (item->state & QStyle::State_Selected) {
    painter->fillRect(item->rect, item->palette.brush(GroupOf(item), QPalette::Highlight));
  } else if (item->backgroundBrush.style() != Qt::NoBrush) {
    painter->fillRect(item->rect, item->backgroundBrush);
  }
}

void DrawItemFocus(const QStyleOption *option, QPainter *painter) {
  const auto *focus = qstyleoption_cast<const QStyleOptionFocusRect *>(option);
  const bool selected = focus && focus->backgroundColor ==
                                     option->palette.color(GroupOf(option), QPalette::Highlight);
  QColor line = option->palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight);
  if (selected) line.setAlphaF(FaintFocus);
  painter->save();
  painter->setPen(line);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(1, 1, -2, -2));
  painter->restore();
}

QRect ScrollBarPart(const QStyleOptionSlider &bar, QStyle::SubControl part, int shortestSlider) {
  const bool lies = bar.orientation == Qt::Horizontal;
  const int length = lies ? bar.rect.width() : bar.rect.height();
  const qint64 range = qint64(bar.maximum) - bar.minimum;
  const qint64 share = range > 0 ? length * qint64(bar.pageStep) / (range + bar.pageStep) : length;
  const int slider = std::min(length, std::max(shortestSlider, int(share)));
  const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    length - slider, bar.upsideDown);
  const auto piece = [&](int from, int to) {
    const QRect place = lies ? QRect(from, 0, to - from, bar.rect.height())
                             : QRect(0, from, bar.rect.width(), to - from);
    return QStyle::visualRect(bar.direction, bar.rect, place);
  };
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return piece(start, start + slider);
    case QStyle::SC_ScrollBarSubPage:
      return piece(0, start);
    case QStyle::SC_ScrollBarAddPage:
      return piece(start + slider, length);
    case QStyle::SC_ScrollBarGroove:
      return bar.rect;
    default:
      return {};
  }
}

void DrawScrollBar(const QStyleOptionComplex *option, QPainter *painter, const QRect &slider) {
  painter->fillRect(option->rect, option->palette.window());
  if (!(option->state & QStyle::State_Enabled)) return;
  const bool pointed = (option->state & QStyle::State_MouseOver) &&
                       (option->activeSubControls & QStyle::SC_ScrollBarSlider);
  const bool lies = option->state & QStyle::State_Horizontal;
  const int across = lies ? 1 : SliderInset;
  const int along = lies ? SliderInset : 1;
  FillRounded(painter, slider.adjusted(across, along, -across, -along),
              pointed ? QuietText(option->palette) : ScrollSlider(option->palette));
}

}  // namespace velor
