// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ApplicationAccess.h"

#include <QAccessibleObject>
#include <QApplication>
#include <QComboBox>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace velor {
namespace {

/// An open menu or palette. The list of a combo box is a child of the box.
bool IsOpenPopup(const QWidget &window) {
  return window.windowType() == Qt::Popup && window.isVisible() &&
         qobject_cast<QComboBox *>(window.parentWidget()) == nullptr;
}

class ApplicationAccess final : public QAccessibleApplication {
 public:
  int childCount() const override { return static_cast<int>(Windows().size()); }
  QAccessibleInterface *child(int index) const override { return Windows().value(index); }
  int indexOfChild(const QAccessibleInterface *child) const override {
    const QList<QAccessibleInterface *> windows = Windows();
    const auto at = std::find(windows.begin(), windows.end(), child);
    return at == windows.end() ? -1 : static_cast<int>(at - windows.begin());
  }

 private:
  QList<QAccessibleInterface *> Windows() const {
    QList<QAccessibleInterface *> windows;
    for (int index = 0; index < QAccessibleApplication::childCount(); ++index) {
      QAccessibleInterface *window = QAccessibleApplication::child(index);
      // The engine draws its pages into windows that are on no screen.
      const auto *bare = qobject_cast<QWindow *>(window->object());
      if (bare == nullptr || bare->isVisible()) windows.append(window);
    }
    for (QWidget *widget : QApplication::topLevelWidgets())
      if (IsOpenPopup(*widget)) windows.append(QAccessible::queryAccessibleInterface(widget));
    return windows;
  }
};

QAccessibleInterface *Access(const QString &, QObject *object) {
  return object == qApp ? new ApplicationAccess : nullptr;
}

}  // namespace

void AnnounceSeenWindows() {
  QAccessible::installFactory(Access);
}

}  // namespace velor
