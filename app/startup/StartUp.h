// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "platform/ProgramValues.h"

namespace velor {

/// The windows that start-up loads and shows.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;
  /// Loads the hidden form FrmLogin and returns its dialog for the database.
  virtual FileDialog &LoadLogin() = 0;
  /// Shows the folder picker for the image folder. Its answer is then in
  /// ProgramValues::ImageFolderPath, empty when cancelled.
  virtual void PickImageFolder() = 0;
  /// Makes and shows the main window.
  virtual void LoadMainWindow() = 0;
};

/// Fills `values` and loads the windows, in this order: command line, hidden form, the database's
/// path, the one connection to it, the image folder's path, main window. Asks for a path that
/// cannot be found, and ends the program at once when the person declines. Catches no error.
void StartUp(Platform &platform, ProgramValues &values, StartUpWindows &windows);

}  // namespace velor
