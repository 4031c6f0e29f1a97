// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EditorInput.h"

#include "engine/FileDrops.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QWebEngineView>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace velor {

namespace {

/// Keys with which a browser navigates or reloads.
const QKeyCombination BrowserKeys[] = {
    Qt::Key_F5,   Qt::CTRL | Qt::Key_R, Qt::ALT | Qt::Key_Left, Qt::ALT | Qt::Key_Right,
    Qt::Key_Back, Qt::Key_Forward,      Qt::Key_Refresh,
};

bool IsBrowserKey(const QKeyEvent &key) {
  return std::find(std::begin(BrowserKeys), std::end(BrowserKeys), key.keyCombination()) !=
         std::end(BrowserKeys);
}

/// Input whose order among the program's commands is kept.
bool IsOrdered(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return true;
    default:
      return false;
  }
}

}  // namespace

EditorInput::EditorInput(QWebEngineView *view, std::function<bool(const QEvent &)> holdBack)
    : QObject(view), view_(view), holdBack_(std::move(holdBack)) {
  view_->installEventFilter(this);
  FilterInputWidget();
}

void EditorInput::FilterInputWidget() {
  if (QWidget *input = view_->focusProxy()) {
    input->removeEventFilter(this);
    input->installEventFilter(this);
  }
}

bool EditorInput::AcceptFiles(QEvent *event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
      event->type() != QEvent::Drop)
    return false;
  auto *drop = static_cast<QDropEvent *>(event);
  const QStringList paths = LocalFiles(drop->mimeData());
  if (paths.isEmpty()) return false;
  drop->setDropAction(Qt::CopyAction);
  drop->accept();
  if (event->type() == QEvent::Drop) Q_EMIT FilesDropped(paths, drop->position().toPoint());
  return true;
}

bool EditorInput::eventFilter(QObject *watched, QEvent *event) {
  if (AcceptFiles(event)) return true;
  if (watched == view_) {
    if (event->type() == QEvent::ChildPolished) FilterInputWidget();
    return false;
  }
  if (IsOrdered(event->type()) && holdBack_(*event)) {
    event->accept();
    return true;
  }
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // An ignored override offers the key to the program's shortcuts first; one that none of them
      // takes comes back as a key press.
      event->ignore();
      return true;
    case QEvent::KeyPress:
      Q_EMIT InputComing();
      return IsBrowserKey(*static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::InputMethod:
    case QEvent::Drop:
      Q_EMIT InputComing();
      return false;
    case QEvent::Wheel:
      // The engine would zoom, and the window would not know of it.
      return static_cast<QWheelEvent *>(event)->modifiers().testFlag(Qt::ControlModifier);
    default:
      return false;
  }
}

}  // namespace velor
