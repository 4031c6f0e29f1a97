// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"

namespace velor {

class PageArea;
struct Menus;

/// The menu items that depend on what is selected in the page in front, or show a switch of its
/// view: those of the context menu, Tools > Table and View > Show Detail.
class SelectionItems {
 public:
  /// Both outlive it. Without additions the items have no effect, and stay enabled.
  SelectionItems(const Menus &menus, const PageArea &area, Additions additions);

  /// Enables and marks the items by the page's last snapshot; does not wait.
  void Refresh();

 private:
  const Menus &menus_;
  const PageArea &area_;
  const Additions additions_;
};

}  // namespace velor
