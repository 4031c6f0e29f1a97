// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/HouseStyle.h"

#include "chrome/Icons.h"
#include "chrome/Palette.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace velor {
namespace {

void FillRounded(QPainter *painter, const QRect &rect, const QColor &color) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(color);
  painter->drawRoundedRect(rect, Rounding, Rounding);
  painter->restore();
}

/// The field behind a flat button; nothing at rest.
void DrawButtonField(const QStyleOption *option, QPainter *painter) {
  const bool enabled = option->state & QStyle::State_Enabled;
  const bool down = option->state & (QStyle::State_Sunken | QStyle::State_On);
  if (down) {
    FillRounded(painter, option->rect,
                enabled ? PressedField(option->palette) : Hairline(option->palette));
  } else if (enabled && (option->state & QStyle::State_MouseOver)) {
    FillRounded(painter, option->rect, HoverField(option->palette));
  }
}

void DrawSeparator(const QStyleOption *option, QPainter *painter) {
  const QRect area = option->rect;
  painter->fillRect(
      QRect(area.center().x(), area.top() + Rounding, 1, area.height() - 2 * Rounding),
      Hairline(option->palette));
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

}  // namespace

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
  switch (element) {
    case PE_PanelButtonTool:
      DrawButtonField(option, painter);
      return;
    case PE_IndicatorToolBarSeparator:
      DrawSeparator(option, painter);
      return;
    case PE_FrameStatusBarItem:
    case PE_PanelMenuBar:
      return;
    case PE_PanelStatusBar:
      painter->fillRect(option->rect, option->palette.window());
      painter->fillRect(QRect(option->rect.topLeft(), QSize(option->rect.width(), 1)),
                        Hairline(option->palette));
      return;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const {
  switch (element) {
    case CE_ToolBar:
    case CE_MenuBarEmptyArea:
      painter->fillRect(option->rect, option->palette.window());
      return;
    case CE_MenuBarItem:
      if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
        DrawMenuBarItem(item, painter, proxy());
        return;
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const {
  switch (metric) {
    case PM_ToolBarIconSize:
      return ToolIconSize;
    case PM_ToolBarItemSpacing:
      return BarSpacing;
    case PM_ToolBarFrameWidth:
    case PM_ToolBarItemMargin:
    case PM_MenuBarPanelWidth:
      return 0;
    case PM_ToolBarSeparatorExtent:
      return 2 * BarMargin;
    case PM_MenuBarVMargin:
      return 3;
    case PM_MenuBarHMargin:
      return BarMargin;
    case PM_MenuBarItemSpacing:
      return BarSpacing;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                   const QWidget *widget) const {
  QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
  switch (type) {
    case CT_ComboBox:
    case CT_LineEdit:
    case CT_PushButton:
      result.setHeight(std::max(result.height(), BoxHeight));
      break;
    case CT_MenuBarItem:
      result.setHeight(std::max(result.height(), BoxHeight));
      break;
    default:
      break;
  }
  return result;
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const {
  // Words suffice on the buttons of a dialog.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon HouseStyle::standardIcon(StandardPixmap picture, const QStyleOption *option,
                               const QWidget *widget) const {
  switch (picture) {
    case SP_MessageBoxQuestion:
      return IconFor(QStringLiteral("help"));
    case SP_MessageBoxInformation:
      return IconFor(QStringLiteral("about"));
    case SP_MessageBoxCritical:
      return IconFor(QStringLiteral("critical"));
    default:
      return QProxyStyle::standardIcon(picture, option, widget);
  }
}

}  // namespace velor
