// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyle>

class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionTab;
class QStyleOptionToolButton;
class QStyleOptionViewItem;

/// What HouseStyle draws of its own, one function a part of a control. Boxes and buttons are in
/// HouseBoxes.cpp, what lies in bars in HouseBars.cpp, lists and their scroll bars in
/// HouseLists.cpp.
namespace velor {

// Boxes and buttons.
/// Whether the control has a flat painter, which draws its edges.
bool IsFlat(const QWidget *widget);
void FillRounded(QPainter *painter, const QRect &rect, const QColor &color);
void DrawHairlineFrame(const QStyleOption *option, QPainter *painter);
/// The field and edge of a text box; the edge tells the keyboard's place.
void DrawEntryBox(const QStyleOption *option, QPainter *painter, const QWidget *widget);
void DrawPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget);
/// A combo box without its text. `arrow` is where its sign lies; a flat one has a button of its
/// painter's width instead.
void DrawComboBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget,
                  const QRect &arrow, int flatButtonWidth);

/// The box that is ticked, without its words.
void DrawCheckBox(const QStyleOption *option, QPainter *painter, const QWidget *widget);

// Bars.
/// The field behind a toolbar's button; nothing at rest.
void DrawToolField(const QStyleOption *option, QPainter *painter);
/// A picture with its words beside it, the pair in the middle of the button.
void DrawToolLabel(const QStyleOptionToolButton *button, QPainter *painter, const QStyle *style);
/// Between the picture and the words of such a button.
inline constexpr int ToolLabelGap = 7;
void DrawToolBar(const QStyleOption *option, QPainter *painter, const QWidget *widget);
void DrawToolSeparator(const QStyleOption *option, QPainter *painter);
void DrawTab(const QStyleOptionTab *tab, QPainter *painter);
void DrawStatusBar(const QStyleOption *option, QPainter *painter);
void DrawMenuBarItem(const QStyleOptionMenuItem *item, QPainter *painter, const QStyle *style);
/// One of the buttons of a maximised page window, at the end of the menu bar.
void DrawMdiButton(const QStyleOptionComplex *option, QPainter *painter, const QRect &place,
                   QStyle::SubControl button);

// Lists.
void DrawHeaderSection(const QStyleOptionHeader *header, QPainter *painter);
/// The field behind one item of a list.
void DrawItemField(const QStyleOptionViewItem *item, QPainter *painter);
/// The mark of the item that has the keyboard.
void DrawItemFocus(const QStyleOption *option, QPainter *painter);
/// Where a scroll bar's parts lie: there are no arrows, the groove is all of it.
QRect ScrollBarPart(const QStyleOptionSlider &bar, QStyle::SubControl part, int shortestSlider);
void DrawScrollBar(const QStyleOptionComplex *option, QPainter *painter, const QRect &slider);

}  // namespace velor
