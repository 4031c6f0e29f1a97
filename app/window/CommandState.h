// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"
#include "editor/FrontWindow.h"
#include "editor/MainWindow.h"

class QAction;

namespace velor {

class CoolBar;
class PageArea;
struct Menus;

/// Whether a command applies to that view.
bool ActsOn(const Command &command, FrontView front);

/// Enables and disables the menus and toolbar buttons that need a page; nothing else does. They are
/// enabled while a page is open and, with additions, while they apply to the view in front.
class CommandState final : public CommandAvailability {
 public:
  /// All outlive it. `sourceEditing` is the action that opens the source editor.
  CommandState(const Menus &menus, CoolBar &bars, const PageArea &area, const TabStrip &tabs,
               QAction &sourceEditing, Additions additions)
      : menus_(menus),
        bars_(bars),
        area_(area),
        tabs_(tabs),
        sourceEditing_(sourceEditing),
        additions_(additions) {}

  void SetPageCommandsEnabled(bool enabled) override;
  void SetSourceEditingEnabled(bool enabled) override;
  void Refresh() override;

 private:
  const Menus &menus_;
  CoolBar &bars_;
  const PageArea &area_;
  const TabStrip &tabs_;
  QAction &sourceEditing_;
  const Additions additions_;
};

}  // namespace velor
