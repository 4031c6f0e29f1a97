// SPDX-License-Identifier: GPL-3.0-or-later
// What windows, the pointer and the system are like.
#include "qt/QtWindowSystem.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QLineEdit>
#include <QListView>
#include <QPalette>
#include <QScreen>
#include <QStyle>
#include <QTextEdit>

namespace velor {
namespace {

constexpr std::uint32_t SystemColorFlag = 0x80000000;

/// Qt's own parts of a scrolling area belong to its window.
const QWidget &ControlOf(const QWidget &widget) {
  const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
  return area && area->viewport() == &widget ? *area : widget;
}

PixelPoint PointOf(const QPoint &point) {
  return {point.x(), point.y()};
}

}  // namespace

WindowHandle QtWindowSystem::HandleOf(QWidget &widget) {
  if (const WindowHandle known = KnownHandle(widget)) return known;
  auto &control = const_cast<QWidget &>(ControlOf(widget));
  const WindowHandle fresh = ++lastHandle_;
  control.setProperty(HandleProperty, fresh);
  widgets_.insert(fresh, &control);
  connect(&control, &QObject::destroyed, this, [this, fresh] { Forget(fresh); });
  return fresh;
}

WindowHandle QtWindowSystem::KnownHandle(const QWidget &widget) const {
  const QWidget &control = ControlOf(widget);
  const WindowHandle known = control.property(HandleProperty).toInt();
  return known != 0 && Find(known) == &control ? known : 0;
}

std::int32_t QtWindowSystem::SendMessage(WindowHandle window, std::int32_t message) {
  const auto *combo = qobject_cast<QComboBox *>(Find(window));
  return combo && message == Messages::GetDroppedState && combo->view()->isVisible() ? 1 : 0;
}

std::int32_t QtWindowSystem::Style(WindowHandle window) {
  const auto *combo = qobject_cast<QComboBox *>(Find(window));
  if (!combo) return 0;
  return combo->isEditable() ? WindowBits::DropDownStyle : WindowBits::DropDownListStyle;
}

std::int32_t QtWindowSystem::ExtendedStyle(WindowHandle window) {
  const QWidget *widget = Find(window);
  if (!widget) return 0;
  const QVariant set = widget->property(ExtendedStyleProperty);
  if (set.isValid()) return set.toInt();
  const bool sunken =
      qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractScrollArea *>(widget);
  return sunken ? WindowBits::ExtendedClientEdge : 0;
}

void QtWindowSystem::SetExtendedStyle(WindowHandle window, std::int32_t style) {
  if (QWidget *widget = Find(window)) widget->setProperty(ExtendedStyleProperty, style);
}

void QtWindowSystem::SetPosition(WindowHandle window, std::int32_t flags) {
  QWidget *widget = Find(window);
  if (widget && (flags & WindowBits::PositionFrameChanged)) widget->update();
}

bool QtWindowSystem::IsEnabled(WindowHandle window) {
  const QWidget *widget = Find(window);
  return widget && widget->isEnabled();
}

WindowHandle QtWindowSystem::Parent(WindowHandle window) {
  const QWidget *widget = Find(window);
  return widget && widget->parentWidget() ? HandleOf(*widget->parentWidget()) : 0;
}

WindowHandle QtWindowSystem::FirstChild(WindowHandle window) {
  return FirstChildOfClass(window, {});
}

WindowHandle QtWindowSystem::FirstChildOfClass(WindowHandle window, const QString &className) {
  const QWidget *widget = Find(window);
  if (!widget) return 0;
  for (QWidget *child : widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
    const bool isCombo = qobject_cast<QComboBox *>(child);
    if (!child->isWindow() && (className.isEmpty() || (isCombo && className == u"ComboBox"))) {
      return HandleOf(*child);
    }
  }
  return 0;
}

PixelRect QtWindowSystem::ClientRect(WindowHandle window) {
  const QWidget *widget = Find(window);
  return widget ? PixelRect{0, 0, widget->width(), widget->height()} : PixelRect{};
}

PixelRect QtWindowSystem::WindowRect(WindowHandle window) {
  const QWidget *widget = Find(window);
  if (!widget) return {};
  const QPoint first = widget->mapToGlobal(QPoint(0, 0));
  return {first.x(), first.y(), first.x() + widget->width(), first.y() + widget->height()};
}

PixelPoint QtWindowSystem::ScreenToClient(WindowHandle window, PixelPoint point) {
  const QWidget *widget = Find(window);
  return widget ? PointOf(widget->mapFromGlobal(QPoint(point.x, point.y))) : point;
}

PixelPoint QtWindowSystem::CursorPosition() {
  return PointOf(QCursor::pos());
}

WindowHandle QtWindowSystem::WindowAt(PixelPoint screenPoint) {
  QWidget *widget = QApplication::widgetAt(QPoint(screenPoint.x, screenPoint.y));
  return widget ? HandleOf(*widget) : ScreenWindow;
}

std::int32_t QtWindowSystem::Metric(std::int32_t index) {
  switch (index) {
    case Metrics::HorizontalThumb:
    case Metrics::HorizontalScrollArrow:
      return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    default:
      return 0;
  }
}

std::int32_t QtWindowSystem::TranslateColor(std::uint32_t reference) {
  const auto value = [](QPalette::ColorRole role) {
    const QColor color = QApplication::palette().color(role);
    return color.red() | (color.green() << 8) | (color.blue() << 16);
  };
  switch (reference ^ SystemColorFlag) {
    case 5:
      return value(QPalette::Base);
    case 15:
      return value(QPalette::Button);
    case 16:
      return value(QPalette::Dark);
    case 20:
      return value(QPalette::Light);
    default:
      return -1;
  }
}

}  // namespace velor
