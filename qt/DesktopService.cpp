// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/DesktopService.h"

#include <QDBusConnection>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace velor {

namespace {

QString TokenOf(const QVariantMap &platformData) {
  return platformData[QStringLiteral("activation-token")].toString();
}

}  // namespace

DesktopService::DesktopService(std::function<void(const OpeningRequest &)> open,
                               std::function<void(const QString &)> act)
    : open_(std::move(open)), act_(std::move(act)) {}

void DesktopService::Register() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  bus.registerObject(QStringLiteral("/com/velor/WebCreator"), this,
                     QDBusConnection::ExportScriptableSlots);
  bus.registerService(QStringLiteral("com.velor.WebCreator"));
}

void DesktopService::Activate(const QVariantMap &platformData) {
  open_({{}, 0, TokenOf(platformData)});
}

void DesktopService::Open(const QStringList &uris, const QVariantMap &platformData) {
  OpeningRequest request = {{}, 0, TokenOf(platformData)};
  for (const QString &uri : uris)
    if (const QUrl url(uri); url.isLocalFile()) request.files += url.toLocalFile();
  open_(request);
}

void DesktopService::ActivateAction(const QString &name, const QVariantList & /*parameters*/,
                                    const QVariantMap &platformData) {
  open_({{}, 0, TokenOf(platformData)});
  // The desktop does not wait for the end of a dialog.
  QTimer::singleShot(0, this, [this, name] { act_(name); });
}

}  // namespace velor
