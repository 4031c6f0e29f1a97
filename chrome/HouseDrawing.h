// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyle>

class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionTab;
class QStyleOptionToolButton;
class QStyleOptionViewItem;

/// The drawing functions of HouseStyle, one a part of a control: boxes and buttons
/// (HouseBoxes.cpp), bars and what lies in them (HouseBars.cpp), lists and scroll bars
/// (HouseLists.cpp). Options are those that QStyle passes; state and palette are taken from them.
namespace velor {

// Boxes and buttons.
/// Whether the control has a flat painter, which draws its edges.
bool IsFlat(const QWidget *widget);
/// Fills `rect` with round corners.
void FillRounded(QPainter *painter, const QRect &rect, const QColor &color);
/// A one-pixel frame in the hairline colour around option->rect.
void DrawHairlineFrame(const QStyleOption *option, QPainter *painter);
/// Background and edge of a text box; with the focus the edge is highlighted.
void DrawEntryBox(const QStyleOption *option, QPainter *painter, const QWidget *widget);
/// Background and edge of a button, without its caption.
void DrawPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget);
/// A combo box without its text. The arrow is drawn in `arrow`; in a flat box it is drawn in a
/// button `flatButtonWidth` wide at its end, which the flat painter frames.
void DrawComboBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget,
                  const QRect &arrow, int flatButtonWidth);

/// The square of a check box with its tick, without the caption.
void DrawCheckBox(const QStyleOption *option, QPainter *painter, const QWidget *widget);

// Bars.
/// Background of a toolbar button under the pointer, pressed or switched on; else draws nothing.
void DrawToolField(const QStyleOption *option, QPainter *painter);
/// Icon and caption of a toolbar button side by side, centred in it.
void DrawToolLabel(const QStyleOptionToolButton *button, QPainter *painter, const QStyle *style);
/// Pixels between icon and caption of a toolbar button.
inline constexpr int ToolLabelGap = 7;
void DrawToolBar(const QStyleOption *option, QPainter *painter, const QWidget *widget);
void DrawToolSeparator(const QStyleOption *option, QPainter *painter);
void DrawTab(const QStyleOptionTab *tab, QPainter *painter);
void DrawStatusBar(const QStyleOption *option, QPainter *painter);
void DrawMenuBarItem(const QStyleOptionMenuItem *item, QPainter *painter, const QStyle *style);
/// One of the buttons of a maximised page window, at the end of the menu bar, in `place`.
void DrawMdiButton(const QStyleOptionComplex *option, QPainter *painter, const QRect &place,
                   QStyle::SubControl button);

// Lists.
void DrawHeaderSection(const QStyleOptionHeader *header, QPainter *painter);
/// Background of one item of a list.
void DrawItemField(const QStyleOptionViewItem *item, QPainter *painter);
/// Focus frame of one item of a list.
void DrawItemFocus(const QStyleOption *option, QPainter *painter);
/// The rectangle of a scroll bar's part. There are no arrow buttons: the groove is the whole bar,
/// and the slider at least `shortestSlider` pixels long.
QRect ScrollBarPart(const QStyleOptionSlider &bar, QStyle::SubControl part, int shortestSlider);
void DrawScrollBar(const QStyleOptionComplex *option, QPainter *painter, const QRect &slider);

}  // namespace velor
