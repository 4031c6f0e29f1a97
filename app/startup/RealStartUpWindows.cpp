// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/RealStartUpWindows.h"

#include <utility>

namespace velor {

RealStartUpWindows::RealStartUpWindows(Components &components, Dialogs &dialogs,
                                       PickedFolders results, std::function<void()> loadMainWindow)
    : components_(components),
      dialogs_(dialogs),
      results_(results),
      loadMainWindow_(std::move(loadMainWindow)) {}

FileDialog &RealStartUpWindows::LoadLogin() {
  login_ = std::make_unique<FrmLogin>(components_);
  return login_->CommonDialog1();
}

void RealStartUpWindows::PickImageFolder() {
  FrmFld picker(results_);
  picker.ForProject = false;
  dialogs_.RunModal(picker);
}

}  // namespace velor
