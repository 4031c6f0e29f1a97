// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "engine/StateSnapshot.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QPoint>
#include <QVariantMap>

namespace velor {

/// The bridge's door into the program: the object "velorHost" of docs/bridge.md. The page calls its
/// slots from inside the engine, so receivers of its signals may only store.
class BridgeHost : public QObject {
  Q_OBJECT

 public:
  explicit BridgeHost(EngineGuard &guard) : guard_(guard) {}

 public Q_SLOTS:
  // NOLINTBEGIN(readability-identifier-naming): the scripts call them by these names.
  void pushState(const QString &json) {
    const EngineCallback callback(guard_);
    if (const auto state = StateSnapshot::FromJson(json)) Q_EMIT StateArrived(*state);
  }
  void pushMirror(const QString &json) {
    const EngineCallback callback(guard_);
    Q_EMIT MirrorArrived(QJsonDocument::fromJson(json.toUtf8()).object().toVariantMap());
  }
  void pushMouse(double x, double y) {
    const EngineCallback callback(guard_);
    Q_EMIT PointerMoved({qRound(x), qRound(y)});
  }
  void inputArrived() {
    const EngineCallback callback(guard_);
    Q_EMIT InputArrived();
  }
  void pictureWanted() {
    const EngineCallback callback(guard_);
    Q_EMIT PictureWanted();
  }
  void earlierWanted() {
    const EngineCallback callback(guard_);
    Q_EMIT EarlierWanted();
  }
  void laterWanted() {
    const EngineCallback callback(guard_);
    Q_EMIT LaterWanted();
  }
  // NOLINTEND(readability-identifier-naming)

 Q_SIGNALS:
  void StateArrived(const velor::StateSnapshot &state);
  void MirrorArrived(const QVariantMap &told);
  void PointerMoved(QPoint clientPosition);
  void InputArrived();
  void PictureWanted();
  void EarlierWanted();
  void LaterWanted();

 private:
  EngineGuard &guard_;
};

}  // namespace velor
