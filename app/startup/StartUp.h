// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "platform/ProgramValues.h"

namespace velor {

/// The program's own windows as start-up needs them.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;
  /// Loads the hidden form that owns the dialog for the database, and gives that dialog. The form
  /// is never shown and stays loaded until the program ends.
  virtual FileDialog &LoadLogin() = 0;
  /// Shows the folder picker with the image folder as its target; it leaves its answer in
  /// ProgramValues::ImageFolderPath, the empty text when cancelled.
  virtual void PickImageFolder() = 0;
  /// Makes and shows the main window.
  virtual void LoadMainWindow() = 0;
};

/// Settles what the rest of the program takes for granted, in this order: the command line, the
/// hidden form, the database's place, the one connection to it, the image folder's place; then
/// loads the main window. Asks where a path cannot be found and ends the program at once when the
/// person declines. Catches nothing: whatever goes wrong here stops the program.
void StartUp(Platform &platform, ProgramValues &values, StartUpWindows &windows);

}  // namespace velor
