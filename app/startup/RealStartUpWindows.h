// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/startup/FrmLogin.h"
#include "app/startup/StartUp.h"

#include <functional>
#include <memory>

namespace velor {

/// The windows of the running program. FrmLogin lives as long as this object.
class RealStartUpWindows final : public StartUpWindows {
 public:
  /// `loadMainWindow` makes and shows the main window.
  RealStartUpWindows(Platform &platform, ProgramValues &values,
                     std::function<void()> loadMainWindow);

  FileDialog &LoadLogin() override;
  void PickImageFolder() override;
  void LoadMainWindow() override { loadMainWindow_(); }

 private:
  Platform &platform_;
  ProgramValues &values_;
  std::function<void()> loadMainWindow_;
  std::unique_ptr<FrmLogin> login_;
};

}  // namespace velor
