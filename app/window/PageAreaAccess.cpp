// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageAreaAccess.h"

#include "app/window/PageArea.h"
#include "chrome/WidgetAccess.h"

#include <QAccessibleWidget>

namespace velor {
namespace {

class PageAreaAccess final : public QAccessibleWidget {
 public:
  explicit PageAreaAccess(PageArea &area) : QAccessibleWidget(&area, QAccessible::LayeredPane) {}

  int childCount() const override { return static_cast<int>(SeenFrames().size()); }
  QAccessibleInterface *child(int index) const override {
    return QAccessible::queryAccessibleInterface(SeenFrames().value(index));
  }
  int indexOfChild(const QAccessibleInterface *child) const override {
    return static_cast<int>(SeenFrames().indexOf(qobject_cast<QMdiSubWindow *>(child->object())));
  }

 private:
  QList<QMdiSubWindow *> SeenFrames() const {
    const auto &area = *static_cast<const PageArea *>(widget());
    QMdiSubWindow *front = area.currentSubWindow();
    QList<QMdiSubWindow *> frames;
    for (QMdiSubWindow *frame : area.subWindowList()) {
      const bool isCovered = front != nullptr && front->isMaximized() && frame != front;
      if (!frame->isHidden() && !isCovered) frames.append(frame);
    }
    return frames;
  }
};

}  // namespace

void AnnounceSeenPages() {
  InstallAccess<PageArea, PageAreaAccess>();
}

}  // namespace velor
