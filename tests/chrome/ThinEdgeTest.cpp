// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FlatSweeps.h"
#include "tests/chrome/FrameCalls.h"
#include "tests/support/Checks.h"

namespace velor {
namespace {

TEST(ThinEdge, TakesTheClientEdgeAndSetsTheStaticEdgeThenChangesTheFrameAlone) {
  RecordingWindowSystem system;
  system.windows[5].extendedStyle = 0x200 | 0x100 | 0x4;
  ThinEdge(system, 5);
  EXPECT_EQ(system.windows[5].extendedStyle, 0x20000 | 0x100 | 0x4);
  EXPECT_EQ(Lines(system.calls), "ex-style 5 131332\nposition 5 55");
}

TEST(ThinEdge, IsTheSameASecondTime) {
  RecordingWindowSystem system;
  system.windows[5].extendedStyle = 0x20000;
  ThinEdge(system, 5);
  EXPECT_EQ(system.windows[5].extendedStyle, 0x20000);
}

}  // namespace
}  // namespace velor
