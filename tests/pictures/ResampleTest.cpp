// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures at another size, against a plain resampler in double precision and the likeness of
// structures (SSIM).
#include "pictures/Resample.h"
#include "tests/pictures/PictureFiles.h"

#include <QColorSpace>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace velor {
namespace {

double Linear(int stored) {
  const double value = stored / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

int Stored(double linear) {
  const double value = std::clamp(linear, 0.0, 1.0);
  const double stored =
      value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
  return static_cast<int>(std::lround(255 * stored));
}

double Weight(double x) {
  if (x == 0) return 1;
  if (std::abs(x) >= 3) return 0;
  const double angle = std::numbers::pi * x;
  return 3 * std::sin(angle) * std::sin(angle / 3) / (angle * angle);
}

/// Every pixel of the result from all pixels of the source that count, one at a time.
QImage Reference(const QImage &image, QSize size) {
  QImage result(size, image.format());
  const double scaleX = double(image.width()) / size.width();
  const double scaleY = double(image.height()) / size.height();
  const double stretchX = std::max(1.0, scaleX);
  const double stretchY = std::max(1.0, scaleY);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      double sums[5] = {};
      for (int sy = 0; sy < image.height(); ++sy) {
        const double wy = Weight((sy + 0.5 - (y + 0.5) * scaleY) / stretchY);
        if (wy == 0) continue;
        for (int sx = 0; sx < image.width(); ++sx) {
          const double weight = wy * Weight((sx + 0.5 - (x + 0.5) * scaleX) / stretchX);
          if (weight == 0) continue;
          const QRgb colour = image.pixel(sx, sy);
          const double alpha = qAlpha(colour) / 255.0;
          sums[0] += weight * alpha * Linear(qRed(colour));
          sums[1] += weight * alpha * Linear(qGreen(colour));
          sums[2] += weight * alpha * Linear(qBlue(colour));
          sums[3] += weight * alpha;
          sums[4] += weight;
        }
      }
      const double alpha = std::clamp(sums[3] / sums[4], 0.0, 1.0);
      const auto channel = [&](int i) { return alpha > 0 ? Stored(sums[i] / sums[4] / alpha) : 0; };
      result.setPixel(
          x, y,
          qRgba(channel(0), channel(1), channel(2), static_cast<int>(std::lround(alpha * 255))));
    }
  }
  return result;
}

/// The mean likeness of the brightness in windows of 8 by 8 pixels: 1 where both are the same.
double Likeness(const QImage &one, const QImage &other) {
  constexpr int Side = 8;
  constexpr double C1 = 6.5025;   // (0.01 * 255) squared
  constexpr double C2 = 58.5225;  // (0.03 * 255) squared
  double total = 0;
  int windows = 0;
  for (int top = 0; top + Side <= one.height(); top += 4) {
    for (int left = 0; left + Side <= one.width(); left += 4) {
      double sumA = 0, sumB = 0, squareA = 0, squareB = 0, product = 0;
      for (int y = top; y < top + Side; ++y) {
        for (int x = left; x < left + Side; ++x) {
          const double a = qGray(one.pixel(x, y));
          const double b = qGray(other.pixel(x, y));
          sumA += a;
          sumB += b;
          squareA += a * a;
          squareB += b * b;
          product += a * b;
        }
      }
      constexpr double Count = Side * Side;
      const double meanA = sumA / Count;
      const double meanB = sumB / Count;
      const double varianceA = squareA / Count - meanA * meanA;
      const double varianceB = squareB / Count - meanB * meanB;
      const double covariance = product / Count - meanA * meanB;
      total += (2 * meanA * meanB + C1) * (2 * covariance + C2) /
               ((meanA * meanA + meanB * meanB + C1) * (varianceA + varianceB + C2));
      ++windows;
    }
  }
  return total / windows;
}

TEST(Resample, ItIsLikeAPlainResamplerInDoublePrecision) {
  for (const QSize size : {QSize(40, 30), QSize(33, 51), QSize(150, 110)}) {
    const QImage photo = Photo(120, 90);
    EXPECT_GE(Likeness(Resampled(photo, size), Reference(photo, size)), 0.98) << size.width();
    EXPECT_LT(Likeness(Resampled(photo, size), Reference(photo.mirrored(), size)), 0.9)
        << "the measure tells pictures apart";
  }
}

TEST(Resample, BlackAndWhiteMixAsLight) {
  QImage stripes(64, 64, QImage::Format_RGB32);
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x)
      stripes.setPixel(x, y, x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
  EXPECT_NEAR(qRed(Resampled(stripes, {8, 8}).pixel(4, 4)), 188, 3);
}

TEST(Resample, WhatIsTransparentLendsNoColour) {
  QImage image(64, 64, QImage::Format_ARGB32);
  image.fill(qRgba(0, 255, 0, 0));
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 32; ++x) image.setPixel(x, y, qRgba(255, 0, 0, 255));
  const QImage small = Resampled(image, {15, 15});
  for (int x = 0; x < 15; ++x)
    if (qAlpha(small.pixel(x, 7)) > 8) {
      EXPECT_EQ(qGreen(small.pixel(x, 7)), 0) << x;
    }
  EXPECT_EQ(qAlpha(small.pixel(1, 7)), 255);
  EXPECT_EQ(qAlpha(small.pixel(13, 7)), 0);
}

TEST(Resample, AFlatPictureStaysFlatAndKeepsItsColourSpace) {
  QImage flat = PlainPicture(97, 31, Qt::darkCyan);
  flat.setColorSpace(QColorSpace::DisplayP3);
  const QImage small = Resampled(flat, {13, 7});
  EXPECT_EQ(small.size(), QSize(13, 7));
  EXPECT_EQ(small.colorSpace(), flat.colorSpace());
  for (int x = 0; x < 13; ++x) EXPECT_EQ(small.pixel(x, 3), flat.pixel(0, 0));
}

TEST(Resample, TheSmallestSizesAreTaken) {
  EXPECT_EQ(Resampled(Photo(50, 40), {1, 1}).size(), QSize(1, 1));
  EXPECT_EQ(Resampled(PlainPicture(1, 1), {5, 3}).size(), QSize(5, 3));
  EXPECT_TRUE(Resampled({}, {5, 3}).isNull());
  EXPECT_TRUE(Resampled(Photo(5, 4), {0, 3}).isNull());
}

}  // namespace
}  // namespace velor
