// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"

class QAction;

namespace velor {

class CoolBar;
struct Menus;

/// Enables and disables the menus and toolbar buttons that need a page: the only place that does.
class CommandState final : public CommandAvailability {
 public:
  /// All outlive it. `sourceEditing` is the action that opens the source editor.
  CommandState(const Menus &menus, CoolBar &bars, const TabStrip &tabs, QAction &sourceEditing)
      : menus_(menus), bars_(bars), tabs_(tabs), sourceEditing_(sourceEditing) {}

  void SetPageCommandsEnabled(bool enabled) override;
  void SetSourceEditingEnabled(bool enabled) override;
  void Refresh() override;

 private:
  const Menus &menus_;
  CoolBar &bars_;
  const TabStrip &tabs_;
  QAction &sourceEditing_;
};

}  // namespace velor
