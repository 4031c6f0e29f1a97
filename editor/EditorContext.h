// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/settings/modSettingManager.h"
#include "editor/FindMemory.h"
#include "editor/MainWindow.h"
#include "platform/Platform.h"

#include <QPointer>
#include <QStringList>

namespace velor {

class PageSlots;
class frmBrowser;

/// Everything that page windows and the page-file operations of modWorkFlow share. Who opens or
/// saves pages has all of it; others take the parts that they use. Lives as long as the main
/// window.
struct EditorContext {
  Platform &platform;
  MainWindow mainWindow;
  PageSlots &pages;
  /// The one preview window; null until first use (PreviewWindow).
  QPointer<frmBrowser> preview;
  /// Names of preferences whose unusable value was reported already.
  QStringList toldSettings = {};
  FindMemory find = {};
  /// Whether the program goes beyond the published behaviour, as the settings said at the start.
  bool hasAdditions = modSettingManager::HasAdditions(platform.registry);
};

}  // namespace velor
