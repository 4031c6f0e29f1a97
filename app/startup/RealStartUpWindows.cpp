// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/RealStartUpWindows.h"

#include "chrome/FrmFld.h"

#include <utility>

namespace velor {

RealStartUpWindows::RealStartUpWindows(Platform &platform, ProgramValues &values,
                                       std::function<void()> loadMainWindow)
    : platform_(platform), values_(values), loadMainWindow_(std::move(loadMainWindow)) {}

FileDialog &RealStartUpWindows::LoadLogin() {
  login_ = std::make_unique<FrmLogin>(platform_.components);
  return login_->CommonDialog1();
}

void RealStartUpWindows::PickImageFolder() {
  FrmFld picker(values_);
  picker.ForProject = false;
  platform_.dialogs.RunModal(picker);
}

}  // namespace velor
