// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ComboBoxAccess.h"

#include "chrome/WidgetAccess.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

namespace velor {
namespace {

/// A combo box with its list and, where one can type, its text box as children.
class ComboBoxAccess final : public QAccessibleWidget {
 public:
  explicit ComboBoxAccess(QComboBox &box) : QAccessibleWidget(&box, QAccessible::ComboBox) {}

  int childCount() const override { return Box().isEditable() ? 2 : 1; }
  QAccessibleInterface *child(int index) const override {
    if (index == 0) return QAccessible::queryAccessibleInterface(Box().view());
    if (index == 1) return QAccessible::queryAccessibleInterface(Box().lineEdit());
    return nullptr;
  }
  int indexOfChild(const QAccessibleInterface *child) const override {
    if (child->object() == Box().view()) return 0;
    return Box().isEditable() && child->object() == Box().lineEdit() ? 1 : -1;
  }
  QAccessibleInterface *childAt(int x, int y) const override {
    if (Box().isEditable() && child(1)->rect().contains(x, y)) return child(1);
    return nullptr;
  }

  QString text(QAccessible::Text kind) const override {
    const bool tells = kind == QAccessible::Value || kind == QAccessible::Description;
    const QString told = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && told.isEmpty()) return Box().currentText();
    return tells && Box().accessibleDescription().isEmpty() ? Box().currentText() : told;
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = Box().view()->isVisible();
    state.editable = Box().isEditable();
    return state;
  }

  QStringList actionNames() const override {
    return {showMenuAction(), pressAction(), setFocusAction()};
  }
  void doAction(const QString &action) override {
    if (action != showMenuAction() && action != pressAction()) {
      QAccessibleWidget::doAction(action);
    } else if (Box().view()->isVisible()) {
      Box().hidePopup();
    } else {
      Box().showPopup();
    }
  }
  QStringList keyBindingsForAction(const QString &) const override { return {}; }

 private:
  QComboBox &Box() const { return *static_cast<QComboBox *>(widget()); }
};

}  // namespace

void AnnounceComboBoxLabels() {
  InstallAccess<QComboBox, ComboBoxAccess>();
}

}  // namespace velor
