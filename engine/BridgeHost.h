// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "engine/StateSnapshot.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QVariantMap>

namespace velor {

/// The object "velorHost" that the bridge calls; docs/bridge.md says what each slot means. Slots
/// run inside a callback of the engine, so that receivers of the signals may only store. The
/// signals mean what those of EngineView of the same name do.
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
  void picturesPasted(const QString &json) {
    const EngineCallback callback(guard_);
    const QJsonObject told = QJsonDocument::fromJson(json.toUtf8()).object();
    Q_EMIT PicturesPasted(told[u"addresses"].toVariant().toStringList(), told[u"remote"].toInt());
  }
  void pasting(int percent) {
    const EngineCallback callback(guard_);
    Q_EMIT Pasting(percent);
  }
  void pasteStopped() {
    const EngineCallback callback(guard_);
    Q_EMIT PasteStopped();
  }
  void linkWanted(const QString &address) {
    const EngineCallback callback(guard_);
    Q_EMIT LinkWanted(address);
  }
  void pictureOpened() {
    const EngineCallback callback(guard_);
    Q_EMIT PictureOpened();
  }
  void earlierWanted() {
    const EngineCallback callback(guard_);
    Q_EMIT EarlierWanted();
  }
  void laterWanted() {
    const EngineCallback callback(guard_);
    Q_EMIT LaterWanted();
  }
  void spellingWanted(const QString &json) {
    const EngineCallback callback(guard_);
    Q_EMIT SpellingWanted(json);
  }
  // NOLINTEND(readability-identifier-naming)

 Q_SIGNALS:
  void StateArrived(const velor::StateSnapshot &state);
  void MirrorArrived(const QVariantMap &changes);
  void PointerMoved(QPoint clientPosition);
  /// The probe of a TurnQueue has arrived in the page.
  void InputArrived();
  void PictureWanted();
  void PicturesPasted(const QStringList &addresses, int remote);
  void Pasting(int percent);
  void PasteStopped();
  void LinkWanted(const QString &address);
  void PictureOpened();
  void EarlierWanted();
  void LaterWanted();
  void SpellingWanted(const QString &json);

 private:
  EngineGuard &guard_;
};

}  // namespace velor
