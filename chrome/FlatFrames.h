// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"

#include <cstdint>

/// The frames of flat controls, one procedure a kind of control. Every painting takes a device
/// context of the window it paints on and gives it back. Edges that leave 32 bits raise
/// Overflow (6).
namespace velor {

/// References of system colours, translated when a pen is made.
enum class SystemColor : std::uint32_t {
  Window = 0x80000005,
  Face = 0x8000000F,
  Shadow = 0x80000010,
  Highlight = 0x80000014,
};

enum class FrameState : std::int32_t { Idle = 0, Active = 1, Pressed = 2, Disabled = 3 };

/// A one-pixel frame; a rectangle without width gives an upright line in the first colour.
void FrameRect3D(WindowSystem &windows, DeviceContext context, const PixelRect &rect,
                 SystemColor topLeft, SystemColor bottomRight);

/// Around `control`, on `surface`, its parent.
void PaintEdge(WindowSystem &windows, WindowHandle surface, WindowHandle control, FrameState state);
void PaintCombo(WindowSystem &windows, WindowHandle control, FrameState state);
void PaintButton(WindowSystem &windows, WindowHandle control, FrameState state);
void PaintScroll(WindowSystem &windows, WindowHandle control, FrameState state);

}  // namespace velor
