// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"

#include <QString>

#include <cstdint>

namespace velor {

/// A place within the parent, in twips.
struct TwipRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool operator==(const TwipRect &) const = default;
};

/// A control as the flat painter knows it.
class FlatControl {
 public:
  virtual ~FlatControl() = default;
  virtual QString TypeName() const = 0;
  /// RuntimeError for a control that has no window.
  virtual WindowHandle Hwnd() const = 0;
  virtual TwipRect Place() const = 0;
  virtual void Move(const TwipRect &place) = 0;
};

}  // namespace velor
