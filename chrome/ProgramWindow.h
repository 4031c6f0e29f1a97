// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// A window that asks before it closes, or hides instead. When the program ends, each is marked
/// first and then closed for good.
class ProgramWindow {
 public:
  virtual ~ProgramWindow() = default;
  /// Sets the window's tag and close marker to "kill": the next close really closes, unasked.
  virtual void MarkKill() = 0;
};

}  // namespace velor
