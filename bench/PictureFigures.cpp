// SPDX-License-Identifier: GPL-3.0-or-later
// A picture of 100 megapixels made smaller, beside the toolkit's own scaling.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "pictures/Resample.h"

#include <QImage>

namespace velor::bench {

void PictureFigures() {
  constexpr int Side = 10000;
  constexpr QSize Small(2000, 2000);
  QImage picture(Side, Side, QImage::Format_RGB32);
  for (int y = 0; y < Side; ++y) {
    auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
    for (int x = 0; x < Side; ++x) line[x] = qRgb((7 * x + y) & 255, (x ^ y) & 255, 3 * y & 255);
  }
  Print(Compare(
      QStringLiteral("resample"), QStringLiteral("100 megapixels"), QStringLiteral("QImage"), 3,
      [&] { return Milliseconds([&] { Resampled(picture, Small); }); },
      [&] {
        return Milliseconds(
            [&] { (void)picture.scaled(Small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation); });
      }));
}

}  // namespace velor::bench
