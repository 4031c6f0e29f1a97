// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/FlatControl.h"

#include <QList>
#include <QString>

class QAction;
class QWidget;

namespace velor {

/// The kind of control that a widget is, by the name that kinds have ("CommandButton", "TextBox",
/// "ComboBox", "HScrollBar", "ListBox", "ProgressBar"); empty for any other widget and for the
/// inner parts of a control.
QString ControlTypeName(const QWidget &widget);

/// The controls of a window, in its order: all its descendant widgets.
QList<QWidget *> ControlsOf(const QWidget &window);

/// The controls of type "Menu": menus and their items, with separators.
QList<QAction *> MenuItemsOf(const QWidget &window);

/// A widget as the flat painter knows it.
class WidgetControl final : public FlatControl {
 public:
  WidgetControl(QWidget &widget, WindowSystem &windows) : widget_(widget), windows_(windows) {}

  QString TypeName() const override { return ControlTypeName(widget_); }
  WindowHandle Hwnd() const override { return windows_.HandleOf(widget_); }
  TwipRect Place() const override;
  /// For good: a layout that places the widget anew finds it just as far inwards.
  void Move(const TwipRect &place) override;

 private:
  QWidget &widget_;
  WindowSystem &windows_;
};

}  // namespace velor
