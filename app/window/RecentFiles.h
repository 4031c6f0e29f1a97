// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QMenu;

namespace velor {

class Registry;

/// Lists the recently opened files in a menu whenever it is opened, the latest first. An item's
/// tool tip is the file's path.
class RecentFiles final : public QObject {
  Q_OBJECT

 public:
  /// `open` is called with the path of the file that a person chooses, in logic form.
  RecentFiles(QMenu &menu, const Registry &registry, std::function<void(const QString &path)> open,
              QObject *parent);

  /// Lists them now.
  void Refill();

 private:
  QMenu &menu_;
  const Registry &registry_;
  std::function<void(const QString &path)> open_;
};

}  // namespace velor
