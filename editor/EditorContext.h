// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"

#include <QPointer>
#include <QStringList>

namespace velor {

class PageSlots;
struct Platform;
class frmBrowser;

/// What the page windows and the page-file operations share. Lives as long as the main window.
struct EditorContext {
  Platform &platform;
  MainWindow mainWindow;
  PageSlots &pages;
  /// The one preview window, made on first use.
  QPointer<frmBrowser> preview;
  /// Preferences whose bad value the person has been told of.
  QStringList toldSettings = {};
};

}  // namespace velor
