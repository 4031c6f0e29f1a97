// SPDX-License-Identifier: GPL-3.0-or-later
// Toolbars, tabs, the menu bar and the status bar.
#include "chrome/HouseDrawing.h"
#include "chrome/HouseStyle.h"
#include "chrome/Palette.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace velor {
namespace {

/// Height of the line above the tab in front.
constexpr int FrontLine = 2;
/// Side of the signs on the buttons of page windows.
constexpr int SignSize = 10;

}  // namespace

/// Background of a flat button; draws nothing in its normal state.
void DrawToolField(const QStyleOption *option, QPainter *painter) {
  const bool enabled = option->state & QStyle::State_Enabled;
  const bool down = option->state & (QStyle::State_Sunken | QStyle::State_On);
  if (down) {
    FillRounded(painter, option->rect,
                enabled ? PressedField(option->palette) : Hairline(option->palette));
  } else if (enabled && (option->state & QStyle::State_MouseOver)) {
    FillRounded(painter, option->rect, HoverField(option->palette));
  }
  // Who needs high contrast does not tell the fields apart.
  if (down && enabled && IsHighContrast(option->palette)) DrawHairlineFrame(option, painter);
}

void DrawToolLabel(const QStyleOptionToolButton *button, QPainter *painter, const QStyle *style) {
  const bool enabled = button->state & QStyle::State_Enabled;
  const QSize icon = button->iconSize;
  const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
  const int words = button->fontMetrics.size(Qt::TextShowMnemonic, button->text).width();
  const int left =
      button->rect.left() + (button->rect.width() - icon.width() - ToolLabelGap - words) / 2;
  const QRect picture(QPoint(left, button->rect.center().y() + 1 - icon.height() / 2), icon);
  const QRect text(picture.right() + 1 + ToolLabelGap, button->rect.top(), words,
                   button->rect.height());
  button->icon.paint(painter, picture, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled,
                     button->state & QStyle::State_On ? QIcon::On : QIcon::Off);
  style->drawItemText(painter, text, flags, button->palette, enabled, button->text,
                      QPalette::ButtonText);
}

void DrawToolBar(const QStyleOption *option, QPainter *painter, const QWidget *widget) {
  painter->fillRect(option->rect, option->palette.window());
  if (widget && widget->property(HouseStyle::OnBand).toBool()) return;
  painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                    Hairline(option->palette));
}

/// A tab above its pages. The one in front has no lower edge and a coloured line above; the others
/// are only captions.
void DrawTab(const QStyleOptionTab *tab, QPainter *painter) {
  const bool inFront = tab->state & QStyle::State_Selected;
  const bool enabled = tab->state & QStyle::State_Enabled;
  const QRect area = tab->rect;
  if (!inFront) {
    if (enabled && (tab->state & QStyle::State_MouseOver)) {
      FillRounded(painter, area.adjusted(2, 3, -2, -3), HoverField(tab->palette));
    }
    return;
  }
  painter->fillRect(area, tab->palette.window());
  const QColor line = Hairline(tab->palette);
  painter->fillRect(area.left(), area.top(), 1, area.height(), line);
  painter->fillRect(area.right(), area.top(), 1, area.height(), line);
  painter->fillRect(area.left(), area.top(), area.width(), FrontLine,
                    enabled ? tab->palette.highlight() : QBrush(line));
}

void DrawMenuBarItem(const QStyleOptionMenuItem *item, QPainter *painter, const QStyle *style) {
  painter->fillRect(item->rect, item->palette.window());
  const bool enabled = item->state & QStyle::State_Enabled;
  if (enabled && (item->state & QStyle::State_Selected)) {
    FillRounded(painter, item->rect.adjusted(0, 1, 0, -1),
                (item->state & QStyle::State_Sunken) ? PressedField(item->palette)
                                                     : HoverField(item->palette));
  }
  int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
  if (!style->styleHint(QStyle::SH_UnderlineShortcut, item)) flags |= Qt::TextHideMnemonic;
  style->drawItemText(painter, item->rect, flags, item->palette, enabled, item->text,
                      QPalette::ButtonText);
}

/// The buttons of a maximised page window, at the end of the menu bar.
void DrawMdiButton(const QStyleOptionComplex *option, QPainter *painter, const QRect &place,
                   QStyle::SubControl button) {
  if (option->activeSubControls & button) {
    const bool down = option->state & QStyle::State_Sunken;
    FillRounded(painter, place, down ? PressedField(option->palette) : HoverField(option->palette));
  }
  QRectF sign(0, 0, SignSize, SignSize);
  sign.moveCenter(QRectF(place).center());
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(option->palette.color(QPalette::ButtonText), 1.4, Qt::SolidLine,
                       Qt::RoundCap, Qt::RoundJoin));
  if (button == QStyle::SC_MdiCloseButton) {
    painter->drawLine(sign.topLeft(), sign.bottomRight());
    painter->drawLine(sign.bottomLeft(), sign.topRight());
  } else if (button == QStyle::SC_MdiNormalButton) {
    painter->drawRect(sign);
  } else {
    painter->drawLine(sign.bottomLeft(), sign.bottomRight());
  }
  painter->restore();
}

void DrawToolSeparator(const QStyleOption *option, QPainter *painter) {
  const QRect area = option->rect;
  painter->fillRect(
      QRect(area.center().x(), area.top() + Rounding, 1, area.height() - 2 * Rounding),
      Hairline(option->palette));
}

void DrawStatusBar(const QStyleOption *option, QPainter *painter) {
  painter->fillRect(option->rect, option->palette.window());
  painter->fillRect(QRect(option->rect.topLeft(), QSize(option->rect.width(), 1)),
                    Hairline(option->palette));
}

}  // namespace velor
