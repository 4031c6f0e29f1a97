// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/cControlFlater.h"
#include "tests/chrome/FrameCalls.h"
#include "tests/support/Checks.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <optional>

namespace velor {
namespace {

constexpr WindowHandle Edit = 21;
const QList<std::int32_t> ControlMessages = {15, 7, 8, 512, 513, 514, 275, 10};
const QList<std::int32_t> EditMessages = {7, 8, 512};

class FakeControl final : public FlatControl {
 public:
  explicit FakeControl(const char *type) : typeName(QString::fromLatin1(type)) {}

  QString typeName;
  /// Nothing for a control without a window.
  std::optional<WindowHandle> hwnd = Control;
  TwipRect place{300, 600, 1500, 360};
  bool moved = false;

  QString TypeName() const override { return typeName; }
  WindowHandle Hwnd() const override {
    if (!hwnd) throw RuntimeError::Of(ErrorNumber::ObjectNotSet, QStringLiteral("test"));
    return *hwnd;
  }
  TwipRect Place() const override { return place; }
  void Move(const TwipRect &to) override {
    place = to;
    moved = true;
  }
};

class cControlFlaterTest : public ::testing::Test {
 protected:
  cControlFlaterTest() {
    system.windows[ParentWindow].onScreen = {0, 0, 500, 500};
    system.windows[Control] = {.parent = ParentWindow,
                               .firstChild = Edit,
                               .client = {0, 0, 80, 24},
                               .onScreen = {30, 40, 110, 64}};
  }

  void Attach(const char *type, std::int32_t style = 0) {
    system.windows[Control].style = style;
    FakeControl control(type);
    painter.Attach(control);
  }

  std::int32_t Message(std::int32_t number, std::int32_t wParam = 0, std::int32_t lParam = 0) {
    return painter.ISubclass_WindowProc(Control, number, wParam, lParam);
  }

  /// What the message paints; empty when it paints nothing.
  std::string Painted(std::int32_t message, std::int32_t wParam = 0, std::int32_t lParam = 0) {
    system.calls.clear();
    Message(message, wParam, lParam);
    return Lines(system.calls);
  }

  std::string PaintOf(void (*paint)(WindowSystem &, WindowHandle, FrameState), FrameState state) {
    system.calls.clear();
    paint(system, Control, state);
    return Lines(system.calls);
  }
  std::string ButtonIn(FrameState state) { return PaintOf(PaintButton, state); }
  std::string ComboIn(FrameState state) { return PaintOf(PaintCombo, state); }
  std::string ScrollIn(FrameState state) { return PaintOf(PaintScroll, state); }
  std::string EdgeIn(FrameState state) {
    system.calls.clear();
    PaintEdge(system, ParentWindow, Control, state);
    return Lines(system.calls);
  }

  static QStringList Hooks(WindowHandle window, const QList<std::int32_t> &messages) {
    QStringList hooks;
    for (const std::int32_t message : messages) {
      hooks.append(RecordingWindowSystem::Text({window, message}));
    }
    return hooks;
  }

  RecordingWindowSystem system;
  cControlFlater painter{system};
};

TEST_F(cControlFlaterTest, KindsHaveTheirPublishedNumbers) {
  EXPECT_EQ(sizeof(cControlFlater::Kind), 2U);
  EXPECT_EQ(static_cast<int>(cControlFlater::Kind::Edge), 0);
  EXPECT_EQ(static_cast<int>(cControlFlater::Kind::Combo), 1);
  EXPECT_EQ(static_cast<int>(cControlFlater::Kind::Button), 2);
  EXPECT_EQ(static_cast<int>(cControlFlater::Kind::Scroll), 3);
}

TEST_F(cControlFlaterTest, AControlWithoutAWindowIsAnErrorAndLeavesItDetached) {
  Attach("CommandButton");
  FakeControl windowless("CommandButton");
  windowless.hwnd.reset();
  try {
    painter.Attach(windowless);
    FAIL() << "no error";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Code(), -2147220455);
    EXPECT_EQ(error.Source(),
              QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName() +
                  QStringLiteral(".cFlatControl"));
    EXPECT_EQ(error.Description(),
              QStringLiteral("Incorrect control type passed to 'Attach' parameter - must be a "
                             "control with a hWnd property."));
  }
  EXPECT_FALSE(painter.IsAttached());
  EXPECT_EQ(system.hooks, QStringList());
}

TEST_F(cControlFlaterTest, ACommandButtonIsAButton) {
  Attach("CommandButton");
  EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Button);
  EXPECT_EQ(system.hooks, Hooks(Control, ControlMessages));
}

TEST_F(cControlFlaterTest, AComboBoxIsACombo_WhoseParentTellsOfItsClosedList) {
  Attach("ComboBox", 0x3);
  EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Combo);
  EXPECT_EQ(system.hooks, Hooks(Control, ControlMessages) + Hooks(Edit, EditMessages) +
                              Hooks(ParentWindow, {273}));
}

TEST_F(cControlFlaterTest, AnImageComboIsPaintedOnItsInnerCombo) {
  constexpr WindowHandle Outer = 30;
  system.windows[Outer].childrenOfClass[QStringLiteral("ComboBox")] = Control;
  FakeControl control("ImageCombo");
  control.hwnd = Outer;
  painter.Attach(control);
  EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Combo);
  EXPECT_EQ(system.hooks, Hooks(Control, ControlMessages) + Hooks(Outer, {273}));
}

TEST_F(cControlFlaterTest, AnOwnerDrawnListIsAComboThatTellsOfItself) {
  Attach("OwnerDrawComboList");
  EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Combo);
  EXPECT_EQ(system.hooks, Hooks(Control, ControlMessages) + Hooks(Control, {273}));
}

TEST_F(cControlFlaterTest, AHorizontalScrollBarIsAScroll) {
  Attach("HScrollBar");
  EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Scroll);
  EXPECT_EQ(system.hooks, Hooks(Control, ControlMessages));
}

TEST_F(cControlFlaterTest, AnyOtherControlWithADropDownStyleIsACombo) {
  for (const std::int32_t style : {0x2, 0x3, 0x50000002}) {
    system.hooks.clear();
    Attach("Special", style);
    EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Combo) << style;
    EXPECT_TRUE(system.hooks.contains(QStringLiteral("20 273"))) << style;
  }
}

TEST_F(cControlFlaterTest, AnyOtherControlIsAnEdge_TwoPixelsSmallerOnEverySide) {
  FakeControl control("TextBox");
  painter.Attach(control);
  EXPECT_EQ(painter.GetKind(), cControlFlater::Kind::Edge);
  // 15 twips a pixel across, 12 down.
  EXPECT_EQ(control.place, (TwipRect{330, 624, 1440, 312}));
  EXPECT_EQ(system.hooks, Hooks(Control, ControlMessages));
}

TEST_F(cControlFlaterTest, OnlyAnEdgeMovesItsControl) {
  for (const char *type : {"CommandButton", "ComboBox", "ImageCombo", "HScrollBar"}) {
    FakeControl control(type);
    painter.Attach(control);
    EXPECT_FALSE(control.moved) << type;
  }
}

TEST_F(cControlFlaterTest, AWindowOfNoughtIsNotHooked) {
  FakeControl control("CommandButton");
  control.hwnd = 0;
  painter.Attach(control);
  EXPECT_FALSE(painter.IsAttached());
  EXPECT_EQ(system.hooks, QStringList());
}

TEST_F(cControlFlaterTest, AttachingAgainLeavesTheFirstControl) {
  Attach("ComboBox", 0x2);
  FakeControl other("CommandButton");
  other.hwnd = 40;
  painter.Attach(other);
  EXPECT_EQ(system.hooks, Hooks(40, ControlMessages));
  EXPECT_EQ(Lines(system.calls), "");
}

TEST_F(cControlFlaterTest, DestroyingItUnhooksEveryMessage) {
  {
    cControlFlater other(system);
    FakeControl control("ComboBox");
    system.windows[Control].style = 0x2;
    other.Attach(control);
    EXPECT_EQ(system.hooks.size(), 12);
  }
  EXPECT_EQ(system.hooks, QStringList());
  EXPECT_EQ(Lines(system.calls), "");
}

TEST_F(cControlFlaterTest, RunsBeforeTheTimersTreatmentAndAfterEveryOther) {
  painter.ISubclass_SetMsgResponse(MsgResponse::Preprocess);
  EXPECT_EQ(static_cast<int>(painter.ISubclass_MsgResponse(275)), 1);
  for (const std::int32_t message : {7, 8, 10, 15, 273, 512, 513, 514}) {
    EXPECT_EQ(static_cast<int>(painter.ISubclass_MsgResponse(message)), 2) << message;
  }
}

TEST_F(cControlFlaterTest, AnswersNoughtToEveryMessage) {
  Attach("ComboBox");
  for (const std::int32_t message : {7, 8, 10, 15, 273, 275, 512, 513, 514, 99}) {
    EXPECT_EQ(Message(message), 0) << message;
  }
}

TEST_F(cControlFlaterTest, PaintingAnIdleControl) {
  Attach("CommandButton");
  EXPECT_EQ(Painted(15), ButtonIn(FrameState::Idle));
}

TEST_F(cControlFlaterTest, AButtonDoesNotShowFocusButPointerPressAndDisabling) {
  Attach("CommandButton");
  EXPECT_EQ(Painted(7), ButtonIn(FrameState::Idle));
  EXPECT_EQ(Painted(512), ButtonIn(FrameState::Active));
  EXPECT_EQ(Painted(513), ButtonIn(FrameState::Pressed));
  system.windows[Control].enabled = false;
  EXPECT_EQ(Painted(10), ButtonIn(FrameState::Disabled));
  system.windows[Control].enabled = true;
  EXPECT_EQ(Painted(10), ButtonIn(FrameState::Pressed));
  EXPECT_EQ(Painted(514), ButtonIn(FrameState::Active));
}

TEST_F(cControlFlaterTest, AnEdgeShowsFocusPointerAndDisabling) {
  Attach("TextBox");
  EXPECT_EQ(Painted(15), EdgeIn(FrameState::Idle));
  EXPECT_EQ(Painted(7), EdgeIn(FrameState::Active));
  EXPECT_EQ(Painted(8), EdgeIn(FrameState::Idle));
  EXPECT_EQ(Painted(513), EdgeIn(FrameState::Idle));
  EXPECT_EQ(Painted(512), EdgeIn(FrameState::Active));
  system.windows[Control].enabled = false;
  EXPECT_EQ(Painted(10), EdgeIn(FrameState::Disabled));
}

TEST_F(cControlFlaterTest, AComboShowsItsListBeforeFocusAndPointer) {
  Attach("ComboBox");
  EXPECT_EQ(Painted(7), ComboIn(FrameState::Active));
  system.windows[Control].dropped = true;
  EXPECT_EQ(Painted(15), ComboIn(FrameState::Pressed));
  system.windows[Control].enabled = false;
  EXPECT_EQ(Painted(10), ComboIn(FrameState::Disabled));
}

TEST_F(cControlFlaterTest, AScrollBarDoesNotShowThatItIsDisabled) {
  Attach("HScrollBar");
  system.windows[Control].enabled = false;
  EXPECT_EQ(Painted(10), ScrollIn(FrameState::Idle));
  EXPECT_EQ(Painted(7), ScrollIn(FrameState::Active));
}

TEST_F(cControlFlaterTest, AClosedListOfItsOwnComboPaintsAtOnce) {
  Attach("ComboBox");
  constexpr std::int32_t Closed = 8 * 65536;
  EXPECT_EQ(Painted(273, Closed + 5, Control), ComboIn(FrameState::Idle));
  EXPECT_EQ(Painted(273, Closed, Control + 1), "");
  EXPECT_EQ(Painted(273, 7 * 65536, Control), "");
}

TEST_F(cControlFlaterTest, TheFirstMoveOverTheControlPaintsAndStartsTheTimer) {
  Attach("ComboBox");
  EXPECT_EQ(Painted(512), ComboIn(FrameState::Active));
  EXPECT_EQ(system.timers, QStringList(QStringLiteral("20 1 10")));
  EXPECT_EQ(Painted(512), "");
  EXPECT_EQ(system.timers.size(), 1);
}

TEST_F(cControlFlaterTest, TheTimerDoesNothingWhileThePointerIsOnTheControlOrItsEditBox) {
  Attach("ComboBox", 0x2);
  Message(512);
  for (const WindowHandle under : {Control, Edit}) {
    system.underCursor = under;
    EXPECT_EQ(Painted(275), "");
    EXPECT_EQ(system.timers.size(), 1);
  }
}

TEST_F(cControlFlaterTest, TheTimerEndsHoveringOnceThePointerIsElsewhere) {
  Attach("ComboBox", 0x2);
  Message(512);
  system.underCursor = ParentWindow;
  EXPECT_EQ(Painted(275), ComboIn(FrameState::Idle));
  EXPECT_EQ(system.timers, QStringList());
  EXPECT_EQ(Painted(512), ComboIn(FrameState::Active));
}

TEST_F(cControlFlaterTest, StartsWithAllFlagsDownOnEveryControl) {
  Attach("CommandButton");
  Message(512);
  Message(513);
  Attach("CommandButton");
  EXPECT_EQ(Painted(15), ButtonIn(FrameState::Idle));
}

}  // namespace
}  // namespace velor
