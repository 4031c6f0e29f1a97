// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/HouseStyle.h"

#include "chrome/HouseDrawing.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>

#include <algorithm>
#include <bit>

namespace velor {
namespace {

/// Pixels left and right of icon and caption of a tool button, and of the caption of a push button.
constexpr int BesideToolLabel = 9;
constexpr int BesideButtonText = 12;
/// Pixels between a group's title and its frame.
constexpr int TitleSpace = 3;
/// Pixels between a box's text and its edge, in addition to Fusion's.
constexpr int TextInset = 3;
/// Pixels between the texts of lists and headers and the edges of their cells.
constexpr int CellInset = 6;
constexpr int RowHeight = 24;
constexpr int HeaderHeight = 26;
constexpr int MessageIconSize = 32;

const QStyleOptionToolButton *TextedToolButton(const QStyleOption *option) {
  const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
  return button && button->toolButtonStyle == Qt::ToolButtonTextBesideIcon ? button : nullptr;
}

}  // namespace

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HouseStyle::polish(QWidget *widget) {
  QProxyStyle::polish(widget);
  // The frame has filled the box; the text's own field would lie over its corners.
  if (auto *lines = qobject_cast<QPlainTextEdit *>(widget))
    lines->viewport()->setAutoFillBackground(false);
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
  switch (element) {
    case PE_PanelLineEdit:
      // The text box inside a combo box or spin box has no edge of its own.
      if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
          frame && frame->lineWidth > 0) {
        DrawEntryBox(option, painter, widget);
      }
      return;
    case PE_PanelButtonCommand:
      DrawPushButton(option, painter, widget);
      return;
    case PE_PanelButtonTool:
      DrawToolField(option, painter);
      return;
    case PE_IndicatorToolBarSeparator:
      DrawToolSeparator(option, painter);
      return;
    case PE_FrameGroupBox: {
      QStyleOption belowTitle(*option);
      belowTitle.rect.adjust(0, option->fontMetrics.height() + TitleSpace, 0, 0);
      DrawHairlineFrame(&belowTitle, painter);
      return;
    }
    case PE_Frame:
      if (qobject_cast<const QPlainTextEdit *>(widget)) {
        DrawEntryBox(option, painter, widget);
        return;
      }
      [[fallthrough]];
    case PE_FrameTabWidget:
      DrawHairlineFrame(option, painter);
      return;
    case PE_FrameStatusBarItem:
    case PE_PanelMenuBar:
      return;
    case PE_PanelStatusBar:
      DrawStatusBar(option, painter);
      return;
    case PE_IndicatorCheckBox:
      DrawCheckBox(option, painter, widget);
      return;
    case PE_FrameFocusRect:
      // Trees do not say for whom the mark of a whole row is drawn.
      if (widget && !qobject_cast<const QAbstractItemView *>(widget)) break;
      DrawItemFocus(option, painter);
      return;
    case PE_PanelItemViewItem:
      if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
        DrawItemField(item, painter);
      }
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const {
  switch (element) {
    case CE_ToolBar:
      DrawToolBar(option, painter, widget);
      return;
    case CE_ToolButtonLabel:
      if (const QStyleOptionToolButton *button = TextedToolButton(option)) {
        DrawToolLabel(button, painter, proxy());
        return;
      }
      break;
    case CE_HeaderSection:
      if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
        DrawHeaderSection(header, painter);
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
    case CE_HeaderEmptyArea:
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
    DrawComboBox(option, painter, widget,
                 subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget),
                 pixelMetric(PM_ScrollBarExtent, option, widget));
    return;
  }
  if (control == CC_ScrollBar && !IsFlat(widget)) {
    DrawScrollBar(option, painter, subControlRect(control, option, SC_ScrollBarSlider, widget));
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

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                 SubControl part, const QWidget *widget) const {
  if (control == CC_ScrollBar && !IsFlat(widget)) {
    if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option)) {
      return ScrollBarPart(*bar, part, pixelMetric(PM_ScrollBarSliderMin, option, widget));
    }
  }
  QRect place = QProxyStyle::subControlRect(control, option, part, widget);
  if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
    place = visualRect(option->direction, option->rect, place).adjusted(TextInset, 0, 0, 0);
    place = visualRect(option->direction, option->rect, place);
  }
  return place;
}

QRect HouseStyle::subElementRect(SubElement element, const QStyleOption *option,
                                 const QWidget *widget) const {
  const QRect place = QProxyStyle::subElementRect(element, option, widget);
  const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
  if (element != SE_LineEditContents || !frame || frame->lineWidth == 0) return place;
  return place.adjusted(TextInset, 0, -TextInset, 0);
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
    case PM_MessageBoxIconSize:
      return MessageIconSize;
    case PM_TabBarTabShiftVertical:
      return 0;
    case PM_HeaderMargin:
      return CellInset;
    case PM_FocusFrameHMargin:
      // Lists add one pixel of their own.
      if (qobject_cast<const QAbstractItemView *>(widget)) return CellInset - 1;
      return QProxyStyle::pixelMetric(metric, option, widget);
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
      result.setHeight(std::max(result.height(), BoxHeight));
      break;
    case CT_PushButton:
      result.setWidth(std::max(result.width(), size.width() + 2 * BesideButtonText));
      result.setHeight(std::max(result.height(), BoxHeight));
      break;
    case CT_ItemViewItem:
      result.setHeight(std::max(result.height(), RowHeight));
      break;
    case CT_HeaderSection:
      result.setHeight(std::max(result.height(), HeaderHeight));
      break;
    case CT_MdiControls:
      if (const auto *controls = qstyleoption_cast<const QStyleOptionComplex *>(option)) {
        const int buttons = std::popcount(static_cast<unsigned>(controls->subControls));
        result = QSize(buttons * BoxHeight, BoxHeight);
      }
      break;
    case CT_MenuBarItem:
      result += QSize(BarMargin, 0);
      result.setHeight(std::max(result.height(), BoxHeight));
      break;
    case CT_ToolButton:
      result.setHeight(std::max(result.height(), BoxHeight));
      result.setWidth(std::max(result.width(), BoxHeight));
      if (const QStyleOptionToolButton *button = TextedToolButton(option)) {
        const int words = button->fontMetrics.size(Qt::TextShowMnemonic, button->text).width();
        result.setWidth(button->iconSize.width() + ToolLabelGap + words + 2 * BesideToolLabel);
      }
      break;
    default:
      break;
  }
  return result;
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const {
  // Dialog buttons have a caption and no icon.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  // A drop-down list shows maxVisibleItems rows with a scroll bar, not all rows like a menu.
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon HouseStyle::standardIcon(StandardPixmap picture, const QStyleOption *option,
                               const QWidget *widget) const {
  switch (picture) {
    case SP_DirIcon:
      return IconFor(QStringLiteral("open"));
    case SP_LineEditClearButton:
      return IconFor(QStringLiteral("stop"));
    case SP_MessageBoxQuestion:
      return IconFor(QStringLiteral("help"));
    case SP_MessageBoxInformation:
      return IconFor(QStringLiteral("about"));
    case SP_MessageBoxCritical:
      return IconFor(QStringLiteral("critical"));
    case SP_ToolBarHorizontalExtensionButton:
      return IconFor(QStringLiteral("more"));
    default:
      return QProxyStyle::standardIcon(picture, option, widget);
  }
}

}  // namespace velor
