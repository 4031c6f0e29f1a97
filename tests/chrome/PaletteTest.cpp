// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Palette.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

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

TEST(HighContrast, IsBlackOnWhiteAndNoOrdinaryPalette) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  const QPalette high(white, black, white, black, black, white, white, black, black);
  EXPECT_TRUE(IsHighContrast(high));
  EXPECT_FALSE(IsHighContrast(PaletteFor(Shade::Light)));
  EXPECT_FALSE(IsHighContrast(PaletteFor(Shade::Dark)));
  EXPECT_FALSE(IsHighContrast(QStyleFactory::create(QStringLiteral("Fusion"))->standardPalette()));
}

TEST(HighContrast, OfTheDesktopStaysWhenTheProgramIsDressed) {
  const QPalette before = QApplication::palette();
  QPalette high(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white,
                Qt::black, Qt::black);
  QApplication::setPalette(high);
  StyleApplication(*qApp);
  EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::black));
  qputenv("VELOR_PALETTE", "light");
  StyleApplication(*qApp);
  EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
  qunsetenv("VELOR_PALETTE");
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(before);
}

TEST(HighContrast, OfTheDesktopShowsWhatIsSwitchedOffHintsAndEdges) {
  const QPalette before = QApplication::palette();
  for (const auto &[text, field] : {std::pair{Qt::white, Qt::black}, {Qt::black, Qt::white}}) {
    // As themes make it that know a few colours only: the others are darker fields.
    QPalette high(field, field);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      high.setColor(role, text);
      high.setColor(QPalette::Disabled, role, field);
    }
    high.setColor(QPalette::Base, field);
    QApplication::setPalette(high);
    StyleApplication(*qApp);
    const QPalette palette = QApplication::palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      EXPECT_EQ(palette.color(role), QColor(text));
      EXPECT_GE(Contrast(palette.color(QPalette::Disabled, role), field), 3);
    }
    EXPECT_GE(Contrast(QuietText(palette), field), HighLegibleContrast);
    EXPECT_GE(Contrast(BoxEdge(palette), field), HighLegibleContrast);
    EXPECT_GE(Contrast(palette.color(QPalette::Button), field), 1.3);
    EXPECT_GE(Contrast(text, palette.color(QPalette::Button)), HighLegibleContrast);
    EXPECT_GE(Contrast(Hairline(palette), field), 3);
    EXPECT_GE(Contrast(QuietText(palette), Backdrop(palette)), HighLegibleContrast);
  }
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(before);
}

TEST(Contrast, IsTwentyOneBetweenBlackAndWhite) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 0.001);
}

}  // namespace
}  // namespace velor
