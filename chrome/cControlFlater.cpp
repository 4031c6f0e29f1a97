// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/cControlFlater.h"

#include "platform/RuntimeError.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <exception>

namespace velor {
namespace {

/// Pixels by which an Edge control becomes smaller on every side when it is attached.
constexpr std::int32_t EdgeRoom = 2;

constexpr std::int32_t ControlMessages[] = {
    Messages::Paint,          Messages::SetFocus,     Messages::KillFocus, Messages::MouseMove,
    Messages::LeftButtonDown, Messages::LeftButtonUp, Messages::Timer,     Messages::Enable};
constexpr std::int32_t EditMessages[] = {Messages::SetFocus, Messages::KillFocus,
                                         Messages::MouseMove};

bool HasDropDownStyle(std::int32_t style) {
  using namespace WindowBits;
  return (style & DropDownStyle) == DropDownStyle ||
         (style & DropDownListStyle) == DropDownListStyle;
}

WindowHandle HwndOf(const FlatControl &control) {
  try {
    return control.Hwnd();
  } catch (const std::exception &) {
    throw RuntimeError(ErrorNumber::InvalidControl,
                       QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName() +
                           QStringLiteral(".cFlatControl"),
                       Description(static_cast<int>(ErrorNumber::InvalidControl)));
  }
}

}  // namespace

void cControlFlater::Attach(FlatControl &control) {
  Detach();
  control_ = HwndOf(control);
  ChooseKind(control);
  if (control_ == 0) return;
  if (windows_.Style(control_) & WindowBits::DropDownStyle) edit_ = windows_.FirstChild(control_);
  ForEachMessage(&WindowSystem::AttachMessage);
  attached_ = true;
}

void cControlFlater::ChooseKind(FlatControl &control) {
  const WindowHandle hwnd = control_;
  const QString type = control.TypeName();
  kind_ = Kind::Combo;
  if (type == u"CommandButton") {
    kind_ = Kind::Button;
  } else if (type == u"ComboBox") {
    notify_ = windows_.Parent(hwnd);
  } else if (type == u"ImageCombo") {
    notify_ = hwnd;
    control_ = windows_.FirstChildOfClass(hwnd, QStringLiteral("ComboBox"));
  } else if (type == u"OwnerDrawComboList") {
    notify_ = hwnd;
  } else if (type == u"HScrollBar") {
    kind_ = Kind::Scroll;
  } else if (HasDropDownStyle(windows_.Style(hwnd))) {
    notify_ = hwnd;
  } else {
    kind_ = Kind::Edge;
    ShrinkForFrame(control);
    notify_ = windows_.Parent(hwnd);
  }
}

void cControlFlater::ShrinkForFrame(FlatControl &control) {
  const std::int32_t across = EdgeRoom * windows_.TwipsPerPixelX();
  const std::int32_t down = EdgeRoom * windows_.TwipsPerPixelY();
  const TwipRect place = control.Place();
  control.Move(
      {place.left + across, place.top + down, place.width - 2 * across, place.height - 2 * down});
}

void cControlFlater::Detach() {
  if (attached_) ForEachMessage(&WindowSystem::DetachMessage);
  control_ = edit_ = notify_ = 0;
  attached_ = mouseOver_ = buttonDown_ = hasFocus_ = disabled_ = false;
}

void cControlFlater::ForEachMessage(HookMessage hook) {
  for (const std::int32_t message : ControlMessages) (windows_.*hook)(*this, control_, message);
  if (edit_ != 0) {
    for (const std::int32_t message : EditMessages) (windows_.*hook)(*this, edit_, message);
  }
  if (kind_ == Kind::Combo) (windows_.*hook)(*this, notify_, Messages::Command);
}

MsgResponse cControlFlater::ISubclass_MsgResponse(std::int32_t message) const {
  return message == Messages::Timer ? MsgResponse::Preprocess : MsgResponse::PostProcess;
}

std::int32_t cControlFlater::ISubclass_WindowProc(WindowHandle, std::int32_t iMsg,
                                                  std::int32_t wParam, std::int32_t lParam) {
  switch (iMsg) {
    case Messages::SetFocus:
    case Messages::KillFocus:
      hasFocus_ = iMsg == Messages::SetFocus;
      Redraw();
      break;
    case Messages::Enable:
      disabled_ = !windows_.IsEnabled(control_);
      Redraw();
      break;
    case Messages::Paint:
      Redraw();
      break;
    case Messages::Command:
      if (lParam == control_ && wParam / 65536 == Messages::DropDownClosed) Redraw();
      break;
    case Messages::Timer:
      CheckHover();
      break;
    case Messages::MouseMove:
      if (!mouseOver_) {
        mouseOver_ = true;
        Redraw();
        windows_.StartTimer(control_, HoverTimer, HoverPeriod);
      }
      break;
    case Messages::LeftButtonDown:
    case Messages::LeftButtonUp:
      buttonDown_ = iMsg == Messages::LeftButtonDown;
      Redraw();
      break;
    default:
      break;
  }
  return 0;
}

void cControlFlater::CheckHover() {
  const WindowHandle under = windows_.WindowAt(windows_.CursorPosition());
  if (under == control_ || under == edit_) return;
  windows_.StopTimer(control_, HoverTimer);
  mouseOver_ = false;
  Redraw();
}

FrameState cControlFlater::State() {
  if (disabled_ && kind_ != Kind::Scroll) return FrameState::Disabled;
  if (kind_ == Kind::Button) {
    if (buttonDown_) return FrameState::Pressed;
    return mouseOver_ ? FrameState::Active : FrameState::Idle;
  }
  if (kind_ == Kind::Combo && windows_.SendMessage(control_, Messages::GetDroppedState) != 0) {
    return FrameState::Pressed;
  }
  return hasFocus_ || mouseOver_ ? FrameState::Active : FrameState::Idle;
}

void cControlFlater::Redraw() {
  switch (kind_) {
    case Kind::Edge:
      PaintEdge(windows_, notify_, control_, State());
      break;
    case Kind::Combo:
      PaintCombo(windows_, control_, State());
      break;
    case Kind::Button:
      PaintButton(windows_, control_, State());
      break;
    case Kind::Scroll:
      PaintScroll(windows_, control_, State());
      break;
  }
}

}  // namespace velor
