// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QWebEngineScript>

namespace velor {

/// The world the bridge lives in, apart from the page's.
inline constexpr QWebEngineScript::ScriptWorldId BridgeWorld = QWebEngineScript::ApplicationWorld;

/// The channel's client and the bundle of engine/bridge as one script. It is evaluated when a page
/// is there: the engine's own injection at a document's creation is now and then left out after a
/// page's process has ended.
QString BridgeScript();

/// A value (text, truth, number, list) as an expression of the script language.
QString ScriptValue(const QVariant &value);

}  // namespace velor
