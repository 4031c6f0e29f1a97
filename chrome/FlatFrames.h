// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"

#include <cstdint>

/// Paints the frames of flat controls, one function a kind of control. Frames are one pixel wide
/// and nested from the control's edge inwards. Each function takes a device context of the window
/// that it paints on and gives it back. Coordinates beyond 32 bits raise Overflow (6).
namespace velor {

/// References of system colours; WindowSystem::TranslateColor gives the colour.
enum class SystemColor : std::uint32_t {
  Window = 0x80000005,
  Face = 0x8000000F,
  Shadow = 0x80000010,
  Highlight = 0x80000014,
};

enum class FrameState : std::int32_t { Idle = 0, Active = 1, Pressed = 2, Disabled = 3 };

/// Draws a one-pixel frame inside `rect`: left and top edge in `topLeft`, the others in
/// `bottomRight`. For a rectangle without width, an upright line in `topLeft`.
void FrameRect3D(WindowSystem &windows, DeviceContext context, const PixelRect &rect,
                 SystemColor topLeft, SystemColor bottomRight);

/// Draws the frame of a text box and the like outside of `control`, on `surface`, its parent.
void PaintEdge(WindowSystem &windows, WindowHandle surface, WindowHandle control, FrameState state);
/// Draws the two outer frames of a combo box and those of its drop-down button.
void PaintCombo(WindowSystem &windows, WindowHandle control, FrameState state);
/// Draws a button's frame, raised or sunken by its state, and two level frames inside it.
void PaintButton(WindowSystem &windows, WindowHandle control, FrameState state);
/// Draws the frames of a horizontal scroll bar and of its two arrow buttons.
void PaintScroll(WindowSystem &windows, WindowHandle control, FrameState state);

}  // namespace velor
