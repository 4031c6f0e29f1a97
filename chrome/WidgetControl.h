// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/FlatControl.h"

#include <QList>
#include <QString>

class QAction;
class QWidget;

namespace velor {

/// The name of the kind of control that a widget is: "CommandButton", "TextBox", "ComboBox",
/// "HScrollBar", "ListBox" or "ProgressBar". Empty for any other widget and for the widgets that a
/// control consists of, such as the text box in a combo box.
QString ControlTypeName(const QWidget &widget);

/// The controls of a window: all its descendant widgets, in the window's order.
QList<QWidget *> ControlsOf(const QWidget &window);

/// The menus of a window and their items, separators among them.
QList<QAction *> MenuItemsOf(const QWidget &window);

/// A widget seen as a control that the flat painter works on.
class WidgetControl final : public FlatControl {
 public:
  WidgetControl(QWidget &widget, WindowSystem &windows) : widget_(widget), windows_(windows) {}

  QString TypeName() const override { return ControlTypeName(widget_); }
  WindowHandle Hwnd() const override { return windows_.HandleOf(widget_); }
  TwipRect Place() const override;
  /// Stays in force in a layout: whenever the layout places the widget, it is moved and resized by
  /// the same amounts again.
  void Move(const TwipRect &place) override;

 private:
  QWidget &widget_;
  WindowSystem &windows_;
};

}  // namespace velor
