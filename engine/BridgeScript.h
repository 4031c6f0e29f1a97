// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QWebEngineScript>

namespace velor {

/// The script world of the bridge: it shares the document with the page, but no variables.
inline constexpr QWebEngineScript::ScriptWorldId BridgeWorld = QWebEngineScript::ApplicationWorld;

/// The web channel's client and the bundle of engine/bridge as one script. It is evaluated when a
/// page has been loaded, not injected at the document's creation: the engine now and then leaves
/// that out after a page's process has ended.
QString BridgeScript();

/// The part of the bridge that a page in the preview is given, in the same world.
QString ShownPageScript();

/// A JavaScript literal for a value: a text, Boolean, number, list or map.
QString ScriptValue(const QVariant &value);

}  // namespace velor
