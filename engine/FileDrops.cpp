// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FileDrops.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace velor {

namespace {

class FilesLeft final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject *, QEvent *event) override {
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
    if (LocalFiles(static_cast<QDropEvent *>(event)->mimeData()).isEmpty()) return false;
    event->ignore();  // the drag is offered to the widgets around this one
    return true;
  }
};

}  // namespace

QStringList LocalFiles(const QMimeData *data) {
  QStringList paths;
  for (const QUrl &url : data != nullptr ? data->urls() : QList<QUrl>())
    if (url.isLocalFile()) paths += url.toLocalFile();
  return paths;
}

void IgnoreFileDrags(QWidget &widget) {
  widget.installEventFilter(new FilesLeft(&widget));
}

}  // namespace velor
