// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/startup/FrmLogin.h"
#include "app/startup/StartUp.h"
#include "chrome/FrmFld.h"

#include <functional>
#include <memory>

namespace velor {

/// The real windows of start-up. FrmLogin lives as long as this object.
class RealStartUpWindows final : public StartUpWindows {
 public:
  /// `components` makes the database dialog; the image folder's picker is shown by `dialogs` and
  /// answers in `results`. `loadMainWindow` makes and shows the main window.
  RealStartUpWindows(Components &components, Dialogs &dialogs, PickedFolders results,
                     std::function<void()> loadMainWindow);

  FileDialog &LoadLogin() override;
  void PickImageFolder() override;
  void LoadMainWindow() override { loadMainWindow_(); }

 private:
  Components &components_;
  Dialogs &dialogs_;
  PickedFolders results_;
  std::function<void()> loadMainWindow_;
  std::unique_ptr<FrmLogin> login_;
};

}  // namespace velor
