// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

namespace velor {

/// Has `Access`, which is made from a `Widget &`, speak to assistive technology for every widget of
/// that class, but not for those of classes derived from it. Called once a class, before the first
/// of them is shown.
template <typename Widget, typename Access>
void InstallAccess() {
  QAccessible::installFactory(
      [](const QString &className, QObject *object) -> QAccessibleInterface * {
        auto *widget = qobject_cast<Widget *>(object);
        if (!widget || className != Widget::staticMetaObject.className()) return nullptr;
        return new Access(*widget);
      });
}

}  // namespace velor
