// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes and buttons, with and without a flat painter.
#include "chrome/HouseDrawing.h"
#include "chrome/HouseStyle.h"
#include "chrome/Palette.h"
#include "platform/WindowSystem.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace velor {
namespace {

/// Pixels that the flat painter's frames take on every side of a combo box and of a button.
constexpr int ComboRings = 2;
constexpr int ButtonRings = 3;
/// Height of the line below the text of a flat control that has the focus.
constexpr int FocusLine = 2;

bool HasThinEdge(const QWidget *widget) {
  return widget &&
         (widget->property(ExtendedStyleProperty).toInt() & WindowBits::ExtendedStaticEdge) != 0;
}

/// Background and edge of boxes and push buttons; with the focus the edge is highlighted.
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

/// Background of a text box with a flat painter, with its frame where it has the focus.
void DrawFlatField(const QStyleOption *option, QPainter *painter, const QColor &field,
                   const QColor &innerEdge) {
  painter->fillRect(option->rect, field);
  if (!innerEdge.isValid()) return;
  painter->setPen(innerEdge);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

/// The line below the text of a flat button.
void DrawFocusLine(const QStyleOption *option, QPainter *painter) {
  const QRect inside = option->rect.adjusted(ButtonRings, ButtonRings, -ButtonRings, -ButtonRings);
  painter->fillRect(
      QRect(inside.left(), inside.bottom() + 1 - FocusLine, inside.width(), FocusLine),
      option->palette.highlight());
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

/// A combo box with a flat painter; its button is as wide as the painter frames it.
void DrawFlatCombo(const QStyleOptionComplex *option, QPainter *painter, int buttonWidth) {
  const QRect inside = option->rect.adjusted(ComboRings, ComboRings, -ComboRings, -ComboRings);
  const auto mirrored = [option](const QRect &place) {
    return QStyle::visualRect(option->direction, option->rect, place);
  };
  const QRect button = mirrored(inside.adjusted(inside.width() - buttonWidth, 0, 0, 0));
  painter->fillRect(option->rect, EntryField(option));
  painter->fillRect(button, option->palette.button());
  if (ShowsFocus(option)) {
    painter->fillRect(mirrored(QRect(inside.left(), inside.bottom() + 1 - FocusLine,
                                     inside.width() - buttonWidth, FocusLine)),
                      option->palette.highlight());
  }
  DrawComboArrow(option, painter, button);
}

}  // namespace

bool IsFlat(const QWidget *widget) {
  return widget && widget->property(HouseStyle::Flat).toBool();
}

void FillRounded(QPainter *painter, const QRect &rect, const QColor &color) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(color);
  painter->drawRoundedRect(rect, Rounding, Rounding);
  painter->restore();
}

void DrawHairlineFrame(const QStyleOption *option, QPainter *painter) {
  painter->save();
  painter->setPen(Hairline(option->palette));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

void DrawEntryBox(const QStyleOption *option, QPainter *painter, const QWidget *widget) {
  if (IsFlat(widget)) {
    DrawFlatField(option, painter, EntryField(option),
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
    // A frame inside the painter's rings would look like a button in the button.
    painter->fillRect(option->rect, field);
    if (ShowsFocus(option)) DrawFocusLine(option, painter);
    return;
  }
  DrawBox(&box, painter, widget, field);
}

void DrawCheckBox(const QStyleOption *option, QPainter *painter, const QWidget *widget) {
  DrawBox(option, painter, widget, EntryField(option));
  if (!(option->state & (QStyle::State_On | QStyle::State_NoChange))) return;
  const QPointF middle = QRectF(option->rect).center();
  const qreal reach = option->rect.width() / 4.0;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(
      QPen(option->palette.color(
               option->state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled,
               QPalette::Text),
           1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (option->state & QStyle::State_On) {
    painter->drawPolyline(
        QPolygonF{{middle + QPointF(-reach, 0), middle + QPointF(-reach / 4, reach * 0.75),
                   middle + QPointF(reach, -reach * 0.75)}});
  } else {
    painter->drawLine(middle - QPointF(reach, 0), middle + QPointF(reach, 0));
  }
  painter->restore();
}

void DrawComboBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget,
                  const QRect &arrow, int flatButtonWidth) {
  if (IsFlat(widget)) {
    DrawFlatCombo(option, painter, flatButtonWidth);
    return;
  }
  DrawEntryBox(option, painter, widget);
  DrawComboArrow(option, painter, arrow);
}

}  // namespace velor
