// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"

#include <QString>

#include <cstdint>

namespace velor {

/// A rectangle within the parent. Twips: 1/1440 inch, 15 to a pixel at 96 pixels an inch.
struct TwipRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool operator==(const TwipRect &) const = default;
};

/// What the flat painter needs to know of a control.
class FlatControl {
 public:
  virtual ~FlatControl() = default;
  /// The kind of control, as ControlTypeName.
  virtual QString TypeName() const = 0;
  /// Raises RuntimeError for a control that has no window.
  virtual WindowHandle Hwnd() const = 0;
  virtual TwipRect Place() const = 0;
  virtual void Move(const TwipRect &place) = 0;
};

}  // namespace velor
