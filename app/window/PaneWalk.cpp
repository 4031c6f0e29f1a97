// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PaneWalk.h"

#include "app/window/FormattingBar.h"
#include "app/window/PageArea.h"
#include "app/window/PathBar.h"
#include "chrome/NoticeBar.h"
#include "editor/FindBar.h"
#include "recovery/offers/RecoveryBar.h"

#include <QApplication>
#include <QShortcut>
#include <QToolBar>

#include <algorithm>

namespace velor {
namespace {

bool IsBar(const QObject *widget) {
  return qobject_cast<const QToolBar *>(widget) != nullptr ||
         qobject_cast<const FormattingBar *>(widget) != nullptr ||
         qobject_cast<const PathBar *>(widget) != nullptr ||
         qobject_cast<const RecoveryBar *>(widget) != nullptr ||
         qobject_cast<const NoticeBar *>(widget) != nullptr ||
         qobject_cast<const FindBar *>(widget) != nullptr;
}

/// The outermost bar that a control is in, or else the control itself.
const QWidget *PaneOf(const QWidget &control) {
  const QWidget *pane = &control;
  for (const QWidget *above = &control; above != nullptr; above = above->parentWidget()) {
    if (IsBar(above)) pane = above;
  }
  return pane;
}

}  // namespace

PaneWalk::PaneWalk(QWidget &window, PageArea &area)
    : QObject(&window), window_(window), area_(area) {
  const auto onKey = [this](const QKeySequence &key, Direction direction) {
    connect(new QShortcut(key, &window_), &QShortcut::activated, this,
            [this, direction] { Go(direction); });
  };
  onKey(Qt::Key_F6, Direction::Forward);
  onKey(Qt::SHIFT | Qt::Key_F6, Direction::Backward);
}

void PaneWalk::Go(Direction direction) {
  const QList<QWidget *> stops = Stops();
  const QWidget *focus = QApplication::focusWidget();
  if (stops.isEmpty() || focus == nullptr) return;
  const auto now = std::find_if(stops.begin(), stops.end(), [focus](const QWidget *stop) {
    return PaneOf(*stop) == PaneOf(*focus);
  });
  // The area itself has the focus while no window is open.
  const qsizetype from = now == stops.end() ? -1 : now - stops.begin();
  const qsizetype step = direction == Direction::Forward ? 1 : stops.size() - 1;
  QWidget *next = stops[from < 0 ? 0 : (from + step) % stops.size()];
  // A page that the keyboard comes to by Tab would move its caret to the start.
  next->setFocus(area_.isAncestorOf(next) ? Qt::OtherFocusReason : Qt::TabFocusReason);
}

QList<QWidget *> PaneWalk::Stops() const {
  QList<QWidget *> stops;
  for (QWidget *control = window_.nextInFocusChain(); control != &window_;
       control = control->nextInFocusChain()) {
    if (!IsReachable(*control)) continue;
    const bool isKnown = std::any_of(stops.begin(), stops.end(), [control](const QWidget *stop) {
      return PaneOf(*stop) == PaneOf(*control);
    });
    if (!isKnown) stops.append(control);
  }
  return stops;
}

bool PaneWalk::IsReachable(const QWidget &control) const {
  // Windows behind the one in front count as visible.
  const bool isBehind = area_.isAncestorOf(&control) &&
                        (area_.Current() == nullptr || !area_.Current()->isAncestorOf(&control));
  return !isBehind && (control.focusPolicy() & Qt::TabFocus) != 0 &&
         control.focusProxy() == nullptr && control.isVisible() && control.isEnabled();
}

}  // namespace velor
