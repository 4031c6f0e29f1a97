// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/BridgeScript.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

// A static library's resources must be asked for by name, from outside of every namespace.
static void InitialiseBridgeResources() {
  Q_INIT_RESOURCE(bridge);
}

namespace velor {

namespace {

QByteArray Resource(const QString &path) {
  QFile file(path);
  const bool opened = file.open(QIODevice::ReadOnly);
  Q_ASSERT_X(opened, "BridgeScript", qPrintable(path));
  return opened ? file.readAll() : QByteArray();
}

}  // namespace

QString BridgeScript() {
  InitialiseBridgeResources();
  return QString::fromUtf8(Resource(QStringLiteral(":/qtwebchannel/qwebchannel.js")) + "\n;\n" +
                           Resource(QStringLiteral(":/bridge/bridge.js")) + "\n;\n");
}

QString ShownPageScript() {
  InitialiseBridgeResources();
  return QString::fromUtf8(Resource(QStringLiteral(":/bridge/shown.js")) + "\n;\n");
}

QString ScriptValue(const QVariant &value) {
  // JSON is a subset of the script language; the array's brackets come off again.
  const QJsonArray array{QJsonValue::fromVariant(value)};
  const QByteArray json = QJsonDocument(array).toJson(QJsonDocument::Compact);
  return QString::fromUtf8(json.mid(1, json.size() - 2));
}

}  // namespace velor
