// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ToolBarButtons.h"

#include "chrome/Icons.h"

#include <QToolBar>

namespace velor {

ToolBarAction::ToolBarAction(ButtonKind kind, const QString &key, const QString &caption,
                             QObject *parent)
    : QAction(IconFor(key), caption, parent) {
  setData(key);
  if (kind == ButtonKind::Click) {
    connect(this, &QAction::triggered, this, &ToolBarAction::Chosen);
    return;
  }
  setCheckable(true);
  connect(this, &QAction::toggled, this, [this](bool checked) {
    if (showing_) return;
    ShowChecked(!checked);
    Q_EMIT Chosen();
  });
}

void ToolBarAction::ShowChecked(bool checked) {
  showing_ = true;
  setChecked(checked);
  showing_ = false;
}

ToolBarAction *AddToolBarButton(QToolBar &bar, const QString &key, const QString &caption,
                                const QString &tooltip, ButtonKind kind) {
  auto *action = new ToolBarAction(kind, key, caption, &bar);
  action->setToolTip(tooltip);
  bar.addAction(action);
  QWidget *button = bar.widgetForAction(action);
  // By default Tab skips tool buttons.
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(caption);
  button->setProperty("key", key);
  return action;
}

}  // namespace velor
