// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariant>
#include <QWebEngineScript>

namespace velor {

/// The world the bridge lives in, apart from the page's.
inline constexpr QWebEngineScript::ScriptWorldId bridgeWorld = QWebEngineScript::ApplicationWorld;

/// The channel's client and the scripts of resources/bridge, in their order, as one script that
/// runs in a page's main frame before anything of the page.
QWebEngineScript BridgeScript();

/// A value (text, truth, number, list) as an expression of the script language.
QString ScriptValue(const QVariant &value);

}  // namespace velor
