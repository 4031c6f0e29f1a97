// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/HouseStyle.h"

#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "platform/WindowSystem.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>

namespace velor {
namespace {

/// Room left and right of a button's picture and text.
constexpr int BesideIconPadding = 6;
/// What the flat painter's rings take of a combo box and of a button, on every side.
constexpr int ComboRings = 2;
constexpr int ButtonRings = 3;
/// Between a group's title and its frame.
constexpr int TitleSpace = 3;
/// The line below the text of a flat combo box that has the keyboard.
constexpr int FocusLine = 2;

bool IsFlat(const QWidget *widget) {
  return widget && widget->property(HouseStyle::Flat).toBool();
}

bool HasThinEdge(const QWidget *widget) {
  return widget &&
         (widget->property(ExtendedStyleProperty).toInt() & WindowBits::ExtendedStaticEdge) != 0;
}

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

/// The field and edge of boxes and push buttons; the edge tells the keyboard's place.
void DrawBox(const QStyleOption *option, QPainter *painter, const QWidget *widget,
             const QColor &field) {
  const QPalette &palette = option->palette;
  const bool enabled = option->state & QStyle::State_Enabled;
  QColor edge = enabled && !HasThinEdge(widget) ? BoxEdge(palette) : Hairline(palette);
  if (enabled && (option->state & QStyle::State_HasFocus)) {
    edge = palette.color(QPalette::Highlight);
  } else if (enabled && (option->state & QStyle::State_MouseOver)) {
    edge = QuietText(palette);
  }
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(edge);
  painter->setBrush(field);
  painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), Rounding - 0.5,
                           Rounding - 0.5);
  painter->restore();
}

QColor EntryField(const QStyleOption *option) {
  const bool enabled = option->state & QStyle::State_Enabled;
  return option->palette.color(enabled ? QPalette::Base : QPalette::Window);
}

bool ShowsFocus(const QStyleOption *option) {
  return (option->state & QStyle::State_Enabled) && (option->state & QStyle::State_HasFocus);
}

/// A field that its flat painter frames; inside it the keyboard's place has a frame of its own.
void DrawFlatField(const QStyleOption *option, QPainter *painter, const QColor &field, int rings,
                   const QColor &innerEdge) {
  painter->fillRect(option->rect, field);
  if (!innerEdge.isValid()) return;
  painter->setPen(innerEdge);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(rings, rings, -rings - 1, -rings - 1));
}

void DrawEntryBox(const QStyleOption *option, QPainter *painter, const QWidget *widget) {
  if (IsFlat(widget)) {
    DrawFlatField(option, painter, EntryField(option), 0,
                  ShowsFocus(option) ? option->palette.color(QPalette::Highlight) : QColor());
    return;
  }
  DrawBox(option, painter, widget, EntryField(option));
}

void DrawPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) {
  const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
  QStyleOption box(*option);
  if (button && (button->features & QStyleOptionButton::DefaultButton)) {
    box.state |= QStyle::State_HasFocus;
  }
  QColor field = option->palette.color(QPalette::Button);
  if (option->state & (QStyle::State_Sunken | QStyle::State_On)) {
    field = PressedField(option->palette);
  } else if ((option->state & QStyle::State_MouseOver) && (option->state & QStyle::State_Enabled)) {
    field = HoverField(option->palette);
  }
  if (IsFlat(widget)) {
    QColor inner = ShowsFocus(&box) ? BoxEdge(option->palette) : QColor();
    if (ShowsFocus(option)) inner = option->palette.color(QPalette::Highlight);
    DrawFlatField(option, painter, field, ButtonRings, inner);
    return;
  }
  DrawBox(&box, painter, widget, field);
}

void DrawComboArrow(const QStyleOptionComplex *option, QPainter *painter, const QRect &place) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  const bool enabled = option->state & QStyle::State_Enabled;
  painter->setPen(QPen(enabled ? QuietText(option->palette)
                               : option->palette.color(QPalette::Disabled, QPalette::Text),
                       1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF tip = QRectF(place).center() + QPointF(0, 2);
  painter->drawPolyline(QPolygonF{{tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)}});
  painter->restore();
}

/// A combo box that its flat painter frames, with a button as wide as the painter has it.
void DrawFlatCombo(const QStyleOptionComplex *option, QPainter *painter, int buttonWidth) {
  const QRect inside = option->rect.adjusted(ComboRings, ComboRings, -ComboRings, -ComboRings);
  QRect button = inside;
  button.setLeft(inside.right() + 1 - buttonWidth);
  painter->fillRect(option->rect, EntryField(option));
  painter->fillRect(button, option->palette.button());
  if (ShowsFocus(option)) {
    painter->fillRect(QRect(inside.left(), inside.bottom() + 1 - FocusLine,
                            inside.width() - buttonWidth, FocusLine),
                      option->palette.highlight());
  }
  DrawComboArrow(option, painter, button);
}

void DrawHairlineFrame(const QStyleOption *option, QPainter *painter) {
  painter->save();
  painter->setPen(Hairline(option->palette));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

/// A tab on top of its pages: the one in front is open towards them and carries a coloured line,
/// the others are words alone.
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
  painter->fillRect(area.left(), area.top(), area.width(), FocusLine,
                    enabled ? tab->palette.highlight() : QBrush(line));
}

void DrawToolBar(const QStyleOption *option, QPainter *painter, const QWidget *widget) {
  painter->fillRect(option->rect, option->palette.window());
  if (widget && widget->property(HouseStyle::OnBand).toBool()) return;
  painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                    Hairline(option->palette));
}

void DrawSeparator(const QStyleOption *option, QPainter *painter) {
  const QRect area = option->rect;
  painter->fillRect(
      QRect(area.center().x(), area.top() + Rounding, 1, area.height() - 2 * Rounding),
      Hairline(option->palette));
}

/// The buttons of a maximised page window, at the end of the menu bar.
void DrawMdiButton(const QStyleOptionComplex *option, QPainter *painter, const QRect &place,
                   QStyle::SubControl button) {
  if (option->activeSubControls & button) {
    const bool down = option->state & QStyle::State_Sunken;
    FillRounded(painter, place, down ? PressedField(option->palette) : HoverField(option->palette));
  }
  const QRectF sign = QRectF(place).adjusted(5, 5, -5, -5);
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
    case PE_PanelLineEdit:
      // A box within a box (a combo box's, a spin box's) has no edge of its own.
      if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
          frame && frame->lineWidth > 0) {
        DrawEntryBox(option, painter, widget);
      }
      return;
    case PE_PanelButtonCommand:
      DrawPushButton(option, painter, widget);
      return;
    case PE_PanelButtonTool:
      DrawButtonField(option, painter);
      return;
    case PE_IndicatorToolBarSeparator:
      DrawSeparator(option, painter);
      return;
    case PE_FrameGroupBox: {
      QStyleOption belowTitle(*option);
      belowTitle.rect.adjust(0, option->fontMetrics.height() + TitleSpace, 0, 0);
      DrawHairlineFrame(&belowTitle, painter);
      return;
    }
    case PE_FrameTabWidget:
    case PE_Frame:
      DrawHairlineFrame(option, painter);
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
      DrawToolBar(option, painter, widget);
      return;
    case CE_ToolButtonLabel:
      if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
          button && button->toolButtonStyle == Qt::ToolButtonTextBesideIcon) {
        QStyleOptionToolButton inset(*button);
        inset.rect.adjust(BesideIconPadding, 0, -BesideIconPadding, 0);
        QProxyStyle::drawControl(element, &inset, painter, widget);
        return;
      }
      break;
    case CE_TabBarTabShape:
      if (const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
          tab && tab->shape == QTabBar::RoundedNorth) {
        DrawTab(tab, painter);
        return;
      }
      break;
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

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const {
  const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
  if (control == CC_ComboBox && combo && combo->frame) {
    if (IsFlat(widget)) {
      DrawFlatCombo(option, painter, pixelMetric(PM_ScrollBarExtent, option, widget));
      return;
    }
    DrawEntryBox(option, painter, widget);
    DrawComboArrow(option, painter, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget));
    return;
  }
  if (control == CC_MdiControls) {
    for (const SubControl button : {SC_MdiMinButton, SC_MdiNormalButton, SC_MdiCloseButton}) {
      if (!(option->subControls & button)) continue;
      DrawMdiButton(option, painter, subControlRect(control, option, button, widget), button);
    }
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const {
  switch (metric) {
    case PM_ToolBarIconSize:
      return ToolIconSize;
    case PM_ToolBarItemSpacing:
      return BarSpacing;
    case PM_ToolBarItemMargin:
      return BarMargin - BarSpacing;
    case PM_ToolBarFrameWidth:
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
      result += QSize(BarMargin, 0);
      result.setHeight(std::max(result.height(), BoxHeight));
      break;
    case CT_ToolButton:
      result.setHeight(std::max(result.height(), BoxHeight));
      if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option)) {
        const bool texted = button->toolButtonStyle == Qt::ToolButtonTextBesideIcon;
        result.setWidth(std::max(result.width(), BoxHeight) + (texted ? BesideIconPadding : 0));
      }
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
