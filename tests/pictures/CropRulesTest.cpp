// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CropRules.h"

#include <QRandomGenerator>

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace velor {

void PrintTo(const QRect &rect, std::ostream *out) {
  *out << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height();
}

namespace {

constexpr QSize Picture{100, 60};
constexpr QRect Part{20, 10, 40, 20};

TEST(CropRules, APartIsMovedAsAWholeAndStaysInThePicture) {
  EXPECT_EQ(DraggedPart(Picture, Part, AllEdges, {5, -3}, 0), QRect(25, 7, 40, 20));
  EXPECT_EQ(DraggedPart(Picture, Part, AllEdges, {500, -500}, 2), QRect(60, 0, 40, 20));
}

TEST(CropRules, AnEdgeStopsAtThePicturesAndAtThePartsOther) {
  EXPECT_EQ(DraggedPart(Picture, Part, LeftEdge, {-50, 9}, 0), QRect(0, 10, 60, 20));
  EXPECT_EQ(DraggedPart(Picture, Part, LeftEdge, {50, 0}, 0), QRect(59, 10, 1, 20));
  EXPECT_EQ(DraggedPart(Picture, Part, RightEdge | BottomEdge, {7, 90}, 0), QRect(20, 10, 47, 50));
  EXPECT_EQ(DraggedPart(Picture, Part, 0, {7, 7}, 0), Part);
}

TEST(CropRules, ACornerWithARatioGrowsFromTheOppositeOneAsFarAsThereIsRoom) {
  EXPECT_EQ(DraggedPart(Picture, Part, RightEdge | BottomEdge, {20, 0}, 2), QRect(20, 10, 60, 30));
  EXPECT_EQ(DraggedPart(Picture, Part, LeftEdge | TopEdge, {-400, 0}, 2), QRect(0, 0, 60, 30));
  EXPECT_EQ(DraggedPart(Picture, Part, RightEdge, {20, 0}, 2), QRect(20, 5, 60, 30));
}

TEST(CropRules, EveryDragLeavesAPartInThePicture) {
  QRandomGenerator random(5);
  const auto below = [&](int end) { return static_cast<int>(random.bounded(end)); };
  for (int round = 0; round < 5000; ++round) {
    const QSize picture(1 + below(50), 1 + below(50));
    QRect part = PartWithin(picture, {below(50), below(50), below(50), below(50)});
    const double ratio = below(2) == 0 ? 0 : double(part.width()) / part.height();
    const std::array edges = {
        AllEdges,       int{LeftEdge}, int{TopEdge}, RightEdge | BottomEdge, LeftEdge | BottomEdge,
        int{BottomEdge}};
    for (const int each : edges) {
      part = DraggedPart(picture, part, each, {below(80) - 40, below(80) - 40}, ratio);
      ASSERT_TRUE(QRect({}, picture).contains(part)) << round << ' ' << each;
      ASSERT_GE(part.width(), 1);
    }
  }
}

TEST(CropRules, NumbersThatLeadOutGiveWay) {
  EXPECT_EQ(PartWithin(Picture, {90, 50, 40, 40}), QRect(90, 50, 10, 10));
  EXPECT_EQ(PartWithin(Picture, {-5, 200, 0, 0}), QRect(0, 59, 1, 1));
}

TEST(CropRules, APartTurnsWithItsPicture) {
  const QRect right = TurnedPart(Picture, Part, Turn::Right);
  EXPECT_EQ(right, QRect(30, 20, 20, 40));
  EXPECT_EQ(TurnedPart(Picture.transposed(), right, Turn::Left), Part);
}

TEST(CropRules, ThePlaceOfTheMouseTellsWhichEdgesItHolds) {
  EXPECT_EQ(EdgesAt(Part, {20, 10}, 3), LeftEdge | TopEdge);
  EXPECT_EQ(EdgesAt(Part, {61, 20}, 3), RightEdge);
  EXPECT_EQ(EdgesAt(Part, {40, 20}, 3), AllEdges);
  EXPECT_EQ(EdgesAt(Part, {16, 20}, 3), 0);
}

TEST(CropRules, WhatStaysIsShownAsLargeAsBefore) {
  EXPECT_EQ(ShownAfter({{0, 0, 50, 30}}, Picture, {200, 60}), QSize(100, 30));
  EXPECT_EQ(ShownAfter({{0, 0, 60, 100}, 1}, Picture, {200, 60}), QSize(60, 200));
  EXPECT_EQ(ShownAfter({{0, 0, 1, 1}}, Picture, {10, 6}), QSize(1, 1));
}

}  // namespace
}  // namespace velor
