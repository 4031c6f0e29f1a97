// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/RunningProgram.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace velor {

/// The interface by which a desktop starts a program and opens its files: "D-Bus Activation" of the
/// Desktop Entry Specification. On the session bus as com.velor.WebCreator.
class DesktopService final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  /// `open` opens files or brings the program to the front; `act` carries out an action of the
  /// desktop file: "new-page", "recent-files" or "project-manager".
  DesktopService(std::function<void(const OpeningRequest &)> open,
                 std::function<void(const QString &)> act);

  /// Without a session bus, or where another program has the name, nothing happens.
  void Register();

 public Q_SLOTS:
  // The names and signatures of the bus.
  // NOLINTBEGIN(readability-identifier-naming)
  Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
  Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
  Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameters,
                                   const QVariantMap &platformData);
  // NOLINTEND(readability-identifier-naming)

 private:
  const std::function<void(const OpeningRequest &)> open_;
  const std::function<void(const QString &)> act_;
};

}  // namespace velor
