// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help/Help.h"

#include "app/help/HelpTopics.h"
#include "app/help/ManualWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace velor {

Help::Help(const QString &nativeFolder) : folder_(nativeFolder) {
  QCoreApplication::instance()->installEventFilter(this);
}

Help::~Help() = default;

void Help::ShowFor(const QWidget *from) {
  if (!manual_) manual_.emplace(folder_);
  if (manual_->IsEmpty()) {
    Q_EMIT Missing();
    return;
  }
  const QString place = HelpPlaceFor(from);
  if (!window_) window_ = std::make_unique<ManualWindow>(*manual_);
  window_->show();
  // A modal dialog shuts out all windows but those that belong to it.
  const QWidget *dialog = QApplication::activeModalWidget();
  window_->windowHandle()->setTransientParent(dialog == nullptr ? nullptr : dialog->windowHandle());
  window_->ShowPlace(place);
  window_->raise();
  window_->activateWindow();
}

bool Help::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto *key = static_cast<QKeyEvent *>(event);
  const bool isHelp = key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier;
  if (!isHelp || QApplication::activePopupWidget() != nullptr) return false;
  ShowFor(static_cast<QWidget *>(watched));
  return true;
}

}  // namespace velor
