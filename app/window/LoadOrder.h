// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

class Runtime;

/// The steps in which the main window loads, in the order of their declaration.
class LoadSteps {
 public:
  virtual ~LoadSteps() = default;
  virtual void InitialiseHiddenComponent() = 0;
  virtual void InitialiseFontPicker() = 0;
  virtual void CreateBlockFormatNames() = 0;
  virtual void SetFontSizeList() = 0;
  /// Styles the controls and sets up the menu painter.
  virtual void PrepareControlsAndMenus() = 0;
  /// Shows the window and returns without processing events.
  virtual void ShowWithoutWaiting() = 0;
  virtual void FinishPreparation() = 0;
};

/// Runs the steps; pending events run before the first (twice), after each of the first two, and
/// after the size list.
void RunLoadSteps(LoadSteps &steps, Runtime &runtime);

}  // namespace velor
