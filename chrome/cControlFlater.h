// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/FlatControl.h"
#include "chrome/FlatFrames.h"
#include "platform/WindowSystem.h"

#include <cstdint>

namespace velor {

/// Gives one control a flat look: watches the messages of its window and, after the control has
/// painted itself, paints thin frames over its edges: level while it is idle, sunken or raised
/// under the pointer, with the keyboard focus, pressed or dropped down. The destructor detaches.
class cControlFlater final : public ISubclass {
 public:
  enum class Kind : std::int16_t { Edge = 0, Combo = 1, Button = 2, Scroll = 3 };

  /// Identifier of the timer that runs while the pointer is over the control.
  static constexpr std::int32_t HoverTimer = 1;
  static constexpr std::int32_t HoverPeriod = 10;  ///< milliseconds

  /// The window system outlives the painter.
  explicit cControlFlater(WindowSystem &windows) : windows_(windows) {}
  ~cControlFlater() override { Detach(); }
  cControlFlater(const cControlFlater &) = delete;
  cControlFlater &operator=(const cControlFlater &) = delete;

  /// Detaches from the control before and watches `control`. One of kind Edge becomes two pixels
  /// smaller on every side, to make room for its frame. Raises InvalidControl for a control without
  /// a window.
  void Attach(FlatControl &control);

  bool IsAttached() const { return attached_; }
  Kind GetKind() const { return kind_; }

  MsgResponse ISubclass_MsgResponse(std::int32_t message) const override;
  /// Has no effect: when the painter runs is decided by ISubclass_MsgResponse(message).
  void ISubclass_SetMsgResponse(MsgResponse) {}
  /// Always 0.
  std::int32_t ISubclass_WindowProc(WindowHandle hwnd, std::int32_t iMsg, std::int32_t wParam,
                                    std::int32_t lParam) override;

 private:
  using HookMessage = void (WindowSystem::*)(ISubclass &, WindowHandle, std::int32_t);

  void Detach();
  void ChooseKind(FlatControl &control);
  void ShrinkForFrame(FlatControl &control);
  /// Attaches to or detaches from every message that is watched.
  void ForEachMessage(HookMessage hook);
  /// On the hover timer: repaints and stops the timer once the pointer has left the control.
  void CheckHover();
  /// The state to paint: that of the control now.
  FrameState State();
  /// Paints the frames of the kind in the present state.
  void Redraw();

  WindowSystem &windows_;
  WindowHandle control_ = 0;
  WindowHandle edit_ = 0;
  /// Gets the notice of a combo box's closed list; of kind Edge, the window painted on.
  WindowHandle notify_ = 0;
  bool attached_ = false;
  bool mouseOver_ = false;
  bool buttonDown_ = false;
  bool hasFocus_ = false;
  bool disabled_ = false;
  Kind kind_ = Kind::Edge;
};

}  // namespace velor
