// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/HouseStyle.h"
#include "chrome/Palette.h"

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTreeWidget>

#include <algorithm>
#include <gtest/gtest.h>

namespace velor {
namespace {

class HouseStyleTest : public ::testing::TestWithParam<Shade> {
 protected:
  template <typename Widget>
  Widget &Dressed(Widget &widget) {
    widget.setStyle(&style);
    widget.setPalette(PaletteFor(GetParam()));
    return widget;
  }

  HouseStyle style;
};

TEST_P(HouseStyleTest, TheSelectedRowAndTheHeaderAreOfOneColourFromTopToBottom) {
  QTreeWidget list;
  Dressed(list).setColumnCount(2);
  Dressed(*list.header());
  list.addTopLevelItem(new QTreeWidgetItem({QStringLiteral("a"), QString()}));
  list.setCurrentItem(list.topLevelItem(0));
  list.resize(300, 120);
  const QImage rows = list.viewport()->grab().toImage();
  const QRect row = list.visualItemRect(list.topLevelItem(0));
  const QColor highlight = list.palette().color(QPalette::Highlight);
  for (int y = row.top() + 2; y < row.bottom() - 1; ++y) {
    EXPECT_EQ(rows.pixelColor(250, y), highlight) << y;
  }
  const QImage header = list.header()->grab().toImage();
  for (int y = 0; y < header.height() - 1; ++y) {
    EXPECT_EQ(header.pixelColor(250, y), list.palette().color(QPalette::Window)) << y;
  }
}

TEST_P(HouseStyleTest, ACheckBoxHasAnEdgeThatShows) {
  QCheckBox box;
  Dressed(box).resize(box.sizeHint());
  const QImage image = box.grab().toImage();
  QStyleOptionButton option;
  option.initFrom(&box);
  const QRect place = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
  EXPECT_EQ(image.pixelColor(place.left(), place.center().y()), BoxEdge(box.palette()));
}

TEST_P(HouseStyleTest, ABoxOfSeveralLinesLooksAsOneOfALineDoes) {
  QPlainTextEdit lines;
  QLineEdit line;
  const auto corner = [this](QWidget &box) {
    Dressed(box).resize(120, 60);
    return box.grab().toImage().copy(0, 0, 12, 12);
  };
  EXPECT_EQ(corner(lines), corner(line));
}

TEST_P(HouseStyleTest, TheMarkOfABarThatIsTooNarrowShows) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(PaletteFor(GetParam()));
  const QColor ground = QApplication::palette().color(QPalette::Window);
  QImage drawn(16, 16, QImage::Format_RGB32);
  drawn.fill(ground);
  QPainter painter(&drawn);
  style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr)
      .paint(&painter, drawn.rect());
  double most = 1;
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x)
      most = std::max(most, Contrast(drawn.pixelColor(x, y), ground));
  }
  EXPECT_GE(most, LegibleContrast);
  QApplication::setPalette(before);
}

INSTANTIATE_TEST_SUITE_P(Shades, HouseStyleTest, ::testing::Values(Shade::Light, Shade::Dark));

class ScrollBarPartsTest : public ::testing::Test {
 protected:
  QRect Part(QStyle::SubControl part) const {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.value();
    return style.subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
  }

  HouseStyle style;
  QScrollBar bar{Qt::Vertical};
};

TEST_F(ScrollBarPartsTest, TheSliderIsThePagesShareOfTheWholeAndThereAreNoArrows) {
  bar.resize(14, 400);
  bar.setRange(0, 300);
  bar.setPageStep(100);
  bar.setValue(300);
  EXPECT_EQ(Part(QStyle::SC_ScrollBarGroove), QRect(0, 0, 14, 400));
  EXPECT_EQ(Part(QStyle::SC_ScrollBarSlider), QRect(0, 300, 14, 100));
  EXPECT_EQ(Part(QStyle::SC_ScrollBarSubPage), QRect(0, 0, 14, 300));
  EXPECT_TRUE(Part(QStyle::SC_ScrollBarAddPage).isEmpty());
  EXPECT_TRUE(Part(QStyle::SC_ScrollBarAddLine).isEmpty());
  EXPECT_TRUE(Part(QStyle::SC_ScrollBarSubLine).isEmpty());
}

TEST_F(ScrollBarPartsTest, ALongDocumentLeavesASliderToTakeHoldOf) {
  bar.resize(14, 400);
  bar.setRange(0, 1000000000);
  EXPECT_GE(Part(QStyle::SC_ScrollBarSlider).height(),
            style.pixelMetric(QStyle::PM_ScrollBarSliderMin, nullptr, &bar));
}

TEST_F(ScrollBarPartsTest, OneWithNothingToScrollIsAllSlider) {
  bar.resize(14, 400);
  bar.setRange(0, 0);
  EXPECT_EQ(Part(QStyle::SC_ScrollBarSlider), QRect(0, 0, 14, 400));
}

}  // namespace
}  // namespace velor
