// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/TabBarAccess.h"

#include "chrome/WidgetAccess.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QTabBar>

#include <utility>

namespace velor {
namespace {

/// A caption as it is read: "&" marks a key, "&&" is an "&".
QString Spoken(const QString &caption) {
  QString spoken;
  for (qsizetype at = 0; at < caption.size(); ++at) {
    if (caption[at] == u'&' && ++at == caption.size()) break;
    spoken += caption[at];
  }
  return spoken;
}

/// The tab at a place of the bar, whichever that is at the time.
class TabAccess final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  TabAccess(QTabBar &bar, int index) : bar_(bar), index_(index) {}

  bool isValid() const override { return index_ < bar_.count(); }
  QObject *object() const override { return nullptr; }
  QAccessibleInterface *parent() const override {
    return QAccessible::queryAccessibleInterface(&bar_);
  }
  QAccessibleInterface *child(int) const override { return nullptr; }
  QAccessibleInterface *childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface *) const override { return -1; }
  int Index() const { return index_; }

  QAccessible::Role role() const override { return QAccessible::PageTab; }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Description) return bar_.tabToolTip(index_);
    if (kind != QAccessible::Name) return {};
    const QString name = bar_.accessibleTabName(index_);
    return name.isEmpty() ? Spoken(bar_.tabText(index_)) : name;
  }
  void setText(QAccessible::Text, const QString &) override {}
  QRect rect() const override {
    const QRect tab = bar_.tabRect(index_);
    return {bar_.mapToGlobal(tab.topLeft()), tab.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    const bool isCurrent = index_ == bar_.currentIndex();
    state.disabled = !bar_.isEnabled() || !bar_.isTabEnabled(index_);
    state.invisible = !bar_.isVisible() || !bar_.isTabVisible(index_);
    state.offscreen = !bar_.rect().intersects(bar_.tabRect(index_));
    state.selectable = true;
    state.selected = isCurrent;
    state.focusable = bar_.focusPolicy() != Qt::NoFocus;
    state.focused = isCurrent && bar_.hasFocus();
    return state;
  }

  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString &action) override {
    if (action == pressAction() && bar_.isTabEnabled(index_)) bar_.setCurrentIndex(index_);
  }
  QStringList keyBindingsForAction(const QString &) const override { return {}; }

 private:
  QTabBar &bar_;
  const int index_;
};

/// The tabs by their numbers, then the buttons that scroll them.
class TabBarAccess final : public QAccessibleWidget {
 public:
  explicit TabBarAccess(QTabBar &bar) : QAccessibleWidget(&bar, QAccessible::PageTabList) {}
  ~TabBarAccess() override {
    for (const QAccessible::Id id : std::as_const(tabs_))
      QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return Bar().count() + QAccessibleWidget::childCount(); }
  QAccessibleInterface *child(int index) const override {
    if (index < 0) return nullptr;
    if (index >= Bar().count()) return QAccessibleWidget::child(index - Bar().count());
    if (!tabs_.contains(index))
      tabs_[index] = QAccessible::registerAccessibleInterface(new TabAccess(Bar(), index));
    return QAccessible::accessibleInterface(tabs_.value(index));
  }
  int indexOfChild(const QAccessibleInterface *child) const override {
    if (child->role() == QAccessible::PageTab)
      return static_cast<const TabAccess *>(child)->Index();
    const int other = QAccessibleWidget::indexOfChild(child);
    return other < 0 ? other : Bar().count() + other;
  }
  QAccessibleInterface *childAt(int x, int y) const override {
    return child(Bar().tabAt(Bar().mapFromGlobal(QPoint(x, y))));
  }
  QAccessibleInterface *focusChild() const override {
    return Bar().hasFocus() ? child(Bar().currentIndex()) : nullptr;
  }

 private:
  QTabBar &Bar() const { return *static_cast<QTabBar *>(widget()); }

  mutable QHash<int, QAccessible::Id> tabs_;
};

}  // namespace

void AnnounceTabStates() {
  InstallAccess<QTabBar, TabBarAccess>();
}

}  // namespace velor
