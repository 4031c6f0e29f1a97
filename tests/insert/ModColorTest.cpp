// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/modColor.h"
#include "tests/support/Checks.h"

#include <limits>

namespace velor::modColor {
namespace {

TEST(ColorToHtml, WritesRedGreenAndBlueInPairs) {
  EXPECT_EQ(ColorToHtml(255), "#FF0000");
  EXPECT_EQ(ColorToHtml(65280), "#00FF00");
  EXPECT_EQ(ColorToHtml(16711680), "#0000FF");
  EXPECT_EQ(ColorToHtml(0), "#000000");
  EXPECT_EQ(ColorToHtml(16777215), "#FFFFFF");
  EXPECT_EQ(ColorToHtml(8388608), "#000080");
  EXPECT_EQ(ColorToHtml(16761024), "#C0C0FF");
  EXPECT_EQ(ColorToHtml(0x0A0B0C), "#0C0B0A");
}

TEST(ColorToHtml, OverflowsForWhatIsNoColour) {
  for (const std::int32_t color :
       {-1, -256, -65536, -16777216, 16777216, std::numeric_limits<std::int32_t>::min(),
        std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min() + 15}) {
    EXPECT_EQ(ErrorOf([&] { ColorToHtml(color); }), ErrorNumber::Overflow) << color;
  }
}

TEST(HtmlToColor, IsTheInverseOverTheWholeRange) {
  // A step that is prime to 256, so that every value of each component meets many of the others.
  for (std::int32_t color = 0; color <= 0xFFFFFF; color += 7) {
    ASSERT_EQ(HtmlToColor(ColorToHtml(color)), color);
  }
  EXPECT_EQ(HtmlToColor("#FFFFFF"), 16777215);
}

TEST(HtmlToColor, DoesWithoutTheSignAndWithEitherLetterCase) {
  EXPECT_EQ(HtmlToColor("ff0000"), 255);
  EXPECT_EQ(HtmlToColor("#Ff00fF"), 255 + 255 * 65536);
}

TEST(HtmlToColor, TakesPairsFromTheLeftHoweverManyThereAre) {
  EXPECT_EQ(HtmlToColor(""), 0);
  EXPECT_EQ(HtmlToColor("#"), 0);
  EXPECT_EQ(HtmlToColor("#F"), 15);
  EXPECT_EQ(HtmlToColor("#FFF"), 4095);
  EXPECT_EQ(HtmlToColor("#0000007F"), 127 * 256 * 256 * 256);
  EXPECT_EQ(HtmlToColor("##FF"), 15 * 256);  // "#F" is no number, "F" is 15
}

TEST(HtmlToColor, CountsAPairThatIsNotHexadecimalAsZero) {
  EXPECT_EQ(HtmlToColor("#GG00FF"), 16711680);
  EXPECT_EQ(HtmlToColor("#F 00FF"), 16711680);
  EXPECT_EQ(HtmlToColor("red"), 13 * 256);  // "re" is no number, "d" is 13
}

TEST(HtmlToColor, OverflowsWhereAPairLeavesTheRange) {
  EXPECT_EQ(ErrorOf([] { HtmlToColor("#00000080"); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { HtmlToColor("#0000000001"); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { HtmlToColor(QString(600, u'0')); }), ErrorNumber::Overflow);
}

TEST(HexToValue, ReadsDigitsInEitherLetterCase) {
  EXPECT_EQ(HexToValue(""), 0);
  EXPECT_EQ(HexToValue("0"), 0);
  EXPECT_EQ(HexToValue("fF"), 255);
  EXPECT_EQ(HexToValue("1A2b"), 0x1A2B);
  EXPECT_EQ(HexToValue("7FFFFFFF"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(ErrorOf([] { HexToValue("80000000"); }), ErrorNumber::Overflow);
}

TEST(HexToValue, IsZeroForAnyOtherCharacter) {
  EXPECT_EQ(HexToValue("G"), 0);
  EXPECT_EQ(HexToValue("1G"), 0);
  EXPECT_EQ(HexToValue("-1"), 0);
  EXPECT_EQ(HexToValue(" 1"), 0);
  EXPECT_EQ(HexToValue("0x1"), 0);
}

TEST(HexToValue, IsZeroForMoreThan255Characters) {
  EXPECT_EQ(HexToValue(QString(254, u'0') + "1"), 1);
  EXPECT_EQ(HexToValue(QString(255, u'0') + "1"), 0);
}

}  // namespace
}  // namespace velor::modColor
