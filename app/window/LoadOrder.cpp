// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/LoadOrder.h"

#include "platform/Runtime.h"

namespace velor {

void RunLoadSteps(LoadSteps &steps, Runtime &runtime) {
  runtime.ProcessPendingEvents();
  runtime.ProcessPendingEvents();
  steps.InitialiseHiddenComponent();
  runtime.ProcessPendingEvents();
  steps.InitialiseFontPicker();
  runtime.ProcessPendingEvents();
  steps.CreateBlockFormatNames();
  steps.SetFontSizeList();
  runtime.ProcessPendingEvents();
  steps.PrepareControlsAndMenus();
  steps.ShowWithoutWaiting();
  steps.FinishPreparation();
}

}  // namespace velor
