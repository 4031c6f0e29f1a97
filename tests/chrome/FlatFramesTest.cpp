// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FlatFrames.h"
#include "tests/chrome/FrameCalls.h"
#include "tests/support/Checks.h"

#include <limits>

namespace velor {
namespace {

class FlatFramesTest : public ::testing::Test {
 protected:
  FlatFramesTest() {
    system.windows[ParentWindow].onScreen = {100, 200, 500, 600};
    system.windows[Control] = {
        .parent = ParentWindow, .client = {0, 0, 80, 24}, .onScreen = {130, 240, 210, 264}};
  }

  template <typename Paint>
  std::string Painted(Paint paint, FrameState state) {
    system.calls.clear();
    paint(system, Control, state);
    return Lines(system.calls);
  }

  std::string Edge(FrameState state) {
    system.calls.clear();
    PaintEdge(system, ParentWindow, Control, state);
    return Lines(system.calls);
  }

  RecordingWindowSystem system;
};

TEST_F(FlatFramesTest, AFrameRunsUpAndRightInOnePenThenDownAndLeftInAnother) {
  FrameRect3D(system, RecordingWindowSystem::Context, {3, 4, 13, 24}, SystemColor::Shadow,
              SystemColor::Highlight);
  EXPECT_EQ(Lines(system.calls),
            "translate 80000010 to 16\ncreate pen 16\nselect\n"
            "move 3 23\nline 3 4\nline 12 4\n"
            "deselect\ndelete pen\n"
            "translate 80000014 to 20\ncreate pen 20\nselect\n"
            "line 12 23\nline 3 23\n"
            "deselect\ndelete pen");
}

TEST_F(FlatFramesTest, AFrameWithoutWidthIsOneLineInTheFirstPen) {
  FrameRect3D(system, RecordingWindowSystem::Context, {5, 1, 5, 9}, SystemColor::Window,
              SystemColor::Window);
  EXPECT_EQ(Lines(system.calls), Lines(UprightCalls(WindowRef, 5, 1, 9)));
}

TEST_F(FlatFramesTest, AColourThatCannotBeTranslatedPaintsWithMinusOne) {
  system.unknownColors.insert(FaceRef);
  FrameRect3D(system, RecordingWindowSystem::Context, {0, 0, 0, 9}, SystemColor::Face,
              SystemColor::Face);
  EXPECT_TRUE(system.calls.contains(QStringLiteral("create pen -1")));
}

TEST_F(FlatFramesTest, AnEdgeLiesAroundTheControlOnItsParent) {
  const PixelRect around{28, 38, 112, 66};
  EXPECT_EQ(Edge(FrameState::Idle), Painting(ParentWindow, FrameCalls(FaceRef, FaceRef, around)));
  EXPECT_EQ(Edge(FrameState::Active),
            Painting(ParentWindow, FrameCalls(ShadowRef, LightRef, around)));
  EXPECT_EQ(Edge(FrameState::Disabled),
            Painting(ParentWindow, FrameCalls(LightRef, LightRef, {29, 39, 111, 65})));
}

TEST_F(FlatFramesTest, AButtonHasThreeRingsTheOutermostOfWhichTellsItsState) {
  const QStringList inner =
      FrameCalls(FaceRef, FaceRef, {1, 1, 79, 23}) + FrameCalls(FaceRef, FaceRef, {2, 2, 78, 22});
  const PixelRect outermost{0, 0, 80, 24};
  const std::string level = Painting(Control, FrameCalls(FaceRef, FaceRef, outermost) + inner);
  EXPECT_EQ(Painted(PaintButton, FrameState::Idle), level);
  EXPECT_EQ(Painted(PaintButton, FrameState::Disabled), level);
  EXPECT_EQ(Painted(PaintButton, FrameState::Active),
            Painting(Control, FrameCalls(LightRef, ShadowRef, outermost) + inner));
  EXPECT_EQ(Painted(PaintButton, FrameState::Pressed),
            Painting(Control, FrameCalls(ShadowRef, LightRef, outermost) + inner));
}

/// The two frames of the drop-down button in every state: 17 wide, at the right of what two rings
/// leave of 80 by 24.
QStringList DropDownFrames() {
  return FrameCalls(FaceRef, FaceRef, {61, 2, 78, 22}) +
         FrameCalls(FaceRef, FaceRef, {62, 3, 77, 21});
}

TEST_F(FlatFramesTest, AnIdleComboIsLevelWithAPlainButtonAndALineBesideIt) {
  EXPECT_EQ(Painted(PaintCombo, FrameState::Idle),
            Painting(Control, FrameCalls(FaceRef, FaceRef, {0, 0, 80, 24}) +
                                  FrameCalls(FaceRef, FaceRef, {1, 1, 79, 23}) + DropDownFrames() +
                                  FrameCalls(LightRef, LightRef, {62, 2, 77, 22}) +
                                  UprightCalls(WindowRef, 61, 2, 22)));
}

TEST_F(FlatFramesTest, AnActiveComboIsSunkenWithARaisedButton) {
  EXPECT_EQ(Painted(PaintCombo, FrameState::Active),
            Painting(Control, FrameCalls(ShadowRef, LightRef, {0, 0, 80, 24}) +
                                  FrameCalls(FaceRef, FaceRef, {1, 1, 79, 23}) + DropDownFrames() +
                                  FrameCalls(LightRef, ShadowRef, {62, 2, 78, 22})));
}

TEST_F(FlatFramesTest, ADroppedComboIsSunkenWithAPressedButton) {
  EXPECT_EQ(Painted(PaintCombo, FrameState::Pressed),
            Painting(Control, FrameCalls(ShadowRef, LightRef, {0, 0, 80, 24}) +
                                  FrameCalls(FaceRef, FaceRef, {1, 1, 79, 23}) + DropDownFrames() +
                                  FrameCalls(ShadowRef, LightRef, {62, 2, 78, 22})));
}

TEST_F(FlatFramesTest, ADisabledComboHasALightInnerRingAndNoButtonEdges) {
  EXPECT_EQ(
      Painted(PaintCombo, FrameState::Disabled),
      Painting(Control, FrameCalls(FaceRef, FaceRef, {0, 0, 80, 24}) +
                            FrameCalls(LightRef, LightRef, {1, 1, 79, 23}) + DropDownFrames()));
}

TEST_F(FlatFramesTest, AnIdleScrollBarIsLevelWithArrowsTwoRingsInwards) {
  EXPECT_EQ(Painted(PaintScroll, FrameState::Idle),
            Painting(Control, FrameCalls(FaceRef, FaceRef, {0, 0, 80, 24}) +
                                  FrameCalls(LightRef, LightRef, {1, 1, 79, 23}) +
                                  FrameCalls(FaceRef, FaceRef, {2, 2, 17, 22}) +
                                  FrameCalls(FaceRef, FaceRef, {3, 3, 16, 21}) +
                                  FrameCalls(FaceRef, FaceRef, {63, 2, 78, 22}) +
                                  FrameCalls(FaceRef, FaceRef, {64, 3, 77, 21})));
}

TEST_F(FlatFramesTest, AnActiveScrollBarIsSunkenWithRaisedArrowsOneRingInwards) {
  EXPECT_EQ(Painted(PaintScroll, FrameState::Active),
            Painting(Control, FrameCalls(ShadowRef, LightRef, {0, 0, 80, 24}) +
                                  FrameCalls(FaceRef, FaceRef, {1, 1, 79, 23}) +
                                  FrameCalls(FaceRef, FaceRef, {1, 1, 17, 23}) +
                                  FrameCalls(LightRef, ShadowRef, {2, 2, 16, 22}) +
                                  FrameCalls(FaceRef, FaceRef, {63, 1, 79, 23}) +
                                  FrameCalls(LightRef, ShadowRef, {64, 2, 78, 22})));
}

TEST_F(FlatFramesTest, EdgesThatLeaveThirtyTwoBitsOverflow) {
  system.windows[Control].onScreen.right = std::numeric_limits<std::int32_t>::max();
  system.windows[ParentWindow].onScreen = {};
  EXPECT_EQ(ErrorOf([&] { PaintEdge(system, ParentWindow, Control, FrameState::Idle); }),
            ErrorNumber::Overflow);
  system.windows[Control].client.top = std::numeric_limits<std::int32_t>::min();
  system.windows[Control].client.bottom = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(ErrorOf([&] { PaintButton(system, Control, FrameState::Idle); }),
            ErrorNumber::Overflow);
}

TEST_F(FlatFramesTest, ADeviceContextIsGivenBackAfterAnOverflowToo) {
  system.windows[Control].client.bottom = std::numeric_limits<std::int32_t>::min();
  EXPECT_THROW(PaintScroll(system, Control, FrameState::Idle), RuntimeError);
  EXPECT_EQ(system.calls.count(QStringLiteral("give back")), 1);
}

}  // namespace
}  // namespace velor
