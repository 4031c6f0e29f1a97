// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Palette.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

class BothShades : public ::testing::TestWithParam<Shade> {};

TEST_P(BothShades, TextIsLegibleOnWhatLiesBehindIt) {
  const QPalette palette = PaletteFor(GetParam());
  EXPECT_GE(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 7);
  EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), 7);
  EXPECT_GE(Contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 7);
  EXPECT_GE(Contrast(QuietText(palette), Backdrop(palette)), LegibleContrast);
  EXPECT_GE(Contrast(QuietText(palette), palette.color(QPalette::Window)), LegibleContrast);
  EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
            4);
}

TEST_P(BothShades, KnowsItsShade) {
  EXPECT_EQ(ShadeOf(PaletteFor(GetParam())), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Shades, BothShades, ::testing::Values(Shade::Light, Shade::Dark));

TEST(ChosenShade, IsTheEnvironmentsWhereItSaysSo) {
  qputenv("VELOR_PALETTE", "dark");
  EXPECT_EQ(ChosenShade(), Shade::Dark);
  qputenv("VELOR_PALETTE", "light");
  EXPECT_EQ(ChosenShade(), Shade::Light);
  qunsetenv("VELOR_PALETTE");
}

TEST(Contrast, IsTwentyOneBetweenBlackAndWhite) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 0.001);
}

}  // namespace
}  // namespace velor
