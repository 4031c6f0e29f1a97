// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/Resample.h"

#include <QColorSpace>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <thread>
#include <vector>

namespace velor {

namespace {

/// Lobes of the filter on either side.
constexpr double Lobes = 3;

double Lanczos(double x) {
  if (x == 0) return 1;
  if (std::abs(x) >= Lobes) return 0;
  const double angle = std::numbers::pi * x;
  return Lobes * std::sin(angle) * std::sin(angle / Lobes) / (angle * angle);
}

/// What the source's pixels contribute to one pixel of the result, along one side.
struct Contribution {
  int first = 0;
  std::vector<float> weights;  ///< their sum is 1

  int End() const { return first + static_cast<int>(weights.size()); }
};

std::vector<Contribution> Contributions(int from, int to) {
  const double scale = static_cast<double>(from) / to;
  const double stretch = std::max(1.0, scale);
  std::vector<Contribution> all(to);
  for (int i = 0; i < to; ++i) {
    const double centre = (i + 0.5) * scale;
    const int first = std::max(0, static_cast<int>(std::floor(centre - Lobes * stretch)));
    const int end = std::min(from, static_cast<int>(std::ceil(centre + Lobes * stretch)));
    double sum = 0;
    std::vector<double> weights;
    for (int at = first; at < end; ++at) {
      weights.push_back(Lanczos((at + 0.5 - centre) / stretch));
      sum += weights.back();
    }
    all[i].first = first;
    for (const double weight : weights) all[i].weights.push_back(static_cast<float>(weight / sum));
  }
  return all;
}

/// The nearest whole number of one that is not negative; many times faster than std::lround.
int Rounded(float value) {
  constexpr float Half = 0.5F;
  return static_cast<int>(value + Half);
}

/// From stored values to linear light and back.
class Curve {
 public:
  explicit Curve(const QColorSpace &space) {
    const bool isPower = space.transferFunction() == QColorSpace::TransferFunction::Gamma;
    const bool isLinear = space.transferFunction() == QColorSpace::TransferFunction::Linear;
    const double gamma = isLinear ? 1 : isPower ? space.gamma() : 0;
    for (std::size_t i = 0; i < linear_.size(); ++i)
      linear_[i] = static_cast<float>(ToLinear(static_cast<double>(i) / 255, gamma));
    for (int i = 0; i <= FinestStep; ++i) {
      const double value = FromLinear(static_cast<double>(i) / FinestStep, gamma);
      stored_[static_cast<std::size_t>(i)] = static_cast<uchar>(std::lround(255 * value));
    }
  }
  float Linear(int stored) const { return linear_[static_cast<std::size_t>(stored)]; }
  int Stored(float linear) const {
    const float clamped = std::clamp(linear, 0.0F, 1.0F);
    return stored_[static_cast<std::size_t>(Rounded(clamped * static_cast<float>(FinestStep)))];
  }

 private:
  /// `gamma` 0 stands for the curve of sRGB.
  static double ToLinear(double value, double gamma) {
    if (gamma != 0) return std::pow(value, gamma);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  }
  static double FromLinear(double value, double gamma) {
    if (gamma != 0) return std::pow(value, 1 / gamma);
    return value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
  }

  /// Fine enough for the steep beginning of the curve.
  static constexpr int FinestStep = (1 << 16) - 1;

  std::array<float, 256> linear_{};
  std::vector<uchar> stored_ = std::vector<uchar>(FinestStep + 1);
};

/// Red, green, blue, each times alpha, and alpha.
using Pixel = std::array<float, 4>;
using Row = std::vector<Pixel>;

void Add(Pixel &sum, const Pixel &pixel, float weight) {
  for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += weight * pixel[i];
}

/// A band of rows of the result. It reads each row of the source that it needs once, in order.
class Band {
 public:
  Band(const QImage &image, const Curve &curve, const std::vector<Contribution> &columns,
       const std::vector<Contribution> &rows)
      : image_(image),
        curve_(curve),
        columns_(columns),
        rows_(rows),
        source_(image.width()),
        narrow_(columns.size()) {}

  /// Writes the rows from `first` to before `end`; `scanline` gives each one's place.
  void Write(int first, int end, const std::function<QRgb *(int)> &scanline) {
    // Sums of the rows that have begun and not ended, the first of which is `done`.
    std::vector<Row> sums;
    int done = first;
    if (first == end) return;
    for (int y = rows_[first].first; done < end; ++y) {
      Narrow(y);
      for (int row = done; row < end && rows_[row].first <= y; ++row) {
        const auto slot = static_cast<std::size_t>(row - done);
        if (slot == sums.size()) sums.emplace_back(columns_.size());
        const float weight = rows_[row].weights[y - rows_[row].first];
        for (std::size_t x = 0; x < narrow_.size(); ++x) Add(sums[slot][x], narrow_[x], weight);
      }
      while (done < end && rows_[done].End() == y + 1) {
        Store(sums.front(), scanline(done));
        sums.erase(sums.begin());
        ++done;
      }
    }
  }

 private:
  /// Reads a row of the source and makes it as wide as the result.
  void Narrow(int y) {
    const auto *line = reinterpret_cast<const QRgb *>(image_.constScanLine(y));
    for (std::size_t x = 0; x < source_.size(); ++x) {
      const QRgb colour = line[x];
      const float alpha = static_cast<float>(qAlpha(colour)) / 255;
      source_[x] = {curve_.Linear(qRed(colour)) * alpha, curve_.Linear(qGreen(colour)) * alpha,
                    curve_.Linear(qBlue(colour)) * alpha, alpha};
    }
    for (std::size_t x = 0; x < narrow_.size(); ++x) {
      Pixel sum{};
      const Pixel *pixel = &source_[columns_[x].first];
      for (const float weight : columns_[x].weights) Add(sum, *pixel++, weight);
      narrow_[x] = sum;
    }
  }

  void Store(const Row &row, QRgb *to) const {
    for (const auto &[red, green, blue, sum] : row) {
      const float alpha = std::clamp(sum, 0.0F, 1.0F);
      const float scale = alpha > 0 ? 1 / alpha : 0;
      *to++ = qRgba(curve_.Stored(red * scale), curve_.Stored(green * scale),
                    curve_.Stored(blue * scale), Rounded(alpha * 255));
    }
  }

  const QImage &image_;
  const Curve &curve_;
  const std::vector<Contribution> &columns_;
  const std::vector<Contribution> &rows_;
  Row source_;
  Row narrow_;
};

}  // namespace

QImage Resampled(const QImage &image, QSize size) {
  if (image.isNull() || size.isEmpty()) return {};
  const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
  const QImage source = image.convertToFormat(format);
  QImage result(size, format);
  if (source.isNull() || result.isNull()) return {};
  const Curve curve(image.colorSpace());
  const std::vector<Contribution> columns = Contributions(source.width(), size.width());
  const std::vector<Contribution> rows = Contributions(source.height(), size.height());
  // Taken before the threads begin, since it may part the result from copies of it.
  uchar *const bits = result.bits();
  const auto scanline = [bits, step = result.bytesPerLine()](int y) {
    return reinterpret_cast<QRgb *>(bits + y * step);
  };
  const auto write = [&](int first, int end) {
    Band(source, curve, columns, rows).Write(first, end, scanline);
  };
  const int half = size.height() / 2;
  std::thread other(write, 0, half);
  write(half, size.height());
  other.join();
  result.setColorSpace(image.colorSpace());
  result.setDotsPerMeterX(image.dotsPerMeterX());
  result.setDotsPerMeterY(image.dotsPerMeterY());
  return result;
}

}  // namespace velor
