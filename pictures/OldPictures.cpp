// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/OldPictures.h"

#include <QList>
#include <QtEndian>

#include <algorithm>

namespace velor {
namespace {

/// Maximum pixels, of four bytes at most.
constexpr qint64 MostPixels = qint64{24} * 1024 * 1024;
constexpr qint64 MostBytes = 4 * MostPixels;

/// Bytes that are read one after the other; zeros and IsPast behind their end.
class Input {
 public:
  explicit Input(QByteArrayView bytes) : bytes_(bytes) {}

  bool IsPast() const { return place_ > bytes_.size(); }
  quint8 Byte() {
    const qsizetype at = place_++;
    return at < bytes_.size() ? static_cast<quint8>(bytes_[at]) : 0;
  }
  /// Fewer at the end.
  QByteArray Take(qsizetype count) {
    const QByteArrayView rest = bytes_.sliced(std::min(place_, bytes_.size()));
    place_ += count;
    return rest.first(std::min(count, rest.size())).toByteArray();
  }

 private:
  QByteArrayView bytes_;
  qsizetype place_ = 0;
};

/// The stored lines of a picture, without run lengths.
struct Raster {
  int width = 0;
  int height = 0;
  qsizetype lineBytes = 0;
  QByteArray lines;

  quint8 At(int line, qsizetype place) const {
    return static_cast<quint8>(lines[line * lineBytes + place]);
  }
  bool IsWhole() const { return lines.size() == lineBytes * height; }
};

bool IsPossible(int width, int height) {
  return width > 0 && height > 0 && qint64{width} * height <= MostPixels;
}

int Little16(QByteArrayView bytes, qsizetype place) {
  return qFromLittleEndian<quint16>(bytes.data() + place);
}

qint64 Big32(QByteArrayView bytes, qsizetype place) {
  return qFromBigEndian<quint32>(bytes.data() + place);
}

QRgb ColorAt(const QList<QRgb> &colors, int index) {
  return colors.value(index, qRgb(0, 0, 0));
}

template <typename Pixel>
QImage Draw(const Raster &raster, const Pixel &pixel) {
  if (!raster.IsWhole()) return {};
  QImage image(raster.width, raster.height, QImage::Format_ARGB32);
  if (image.isNull()) return {};
  for (int line = 0; line < raster.height; ++line) {
    auto *row = reinterpret_cast<QRgb *>(image.scanLine(line));
    for (int column = 0; column < raster.width; ++column) row[column] = pixel(line, column);
  }
  return image;
}

// TGA

/// A pixel of 1 to 4 bytes in the order blue, green, red, alpha; 15 and 16 bits hold five a colour.
QRgb TgaColor(QByteArrayView bytes, bool hasAlpha) {
  const auto part = [bytes](qsizetype place) { return static_cast<quint8>(bytes[place]); };
  if (bytes.size() == 1) return qRgb(part(0), part(0), part(0));
  if (bytes.size() == 2) {
    const int bits = Little16(bytes, 0);
    const auto five = [bits](int shift) { return (bits >> shift & 31) * 255 / 31; };
    return qRgb(five(10), five(5), five(0));
  }
  return qRgba(part(2), part(1), part(0), hasAlpha ? part(3) : 255);
}

QByteArray TgaRuns(Input &input, qsizetype count, qsizetype pixelBytes) {
  QByteArray pixels;
  while (pixels.size() < count && !input.IsPast()) {
    const int head = input.Byte();
    const int length = (head & 127) + 1;
    pixels +=
        head < 128 ? input.Take(length * pixelBytes) : input.Take(pixelBytes).repeated(length);
  }
  return pixels.left(count);
}

QImage ReadTga(const QByteArray &bytes) {
  Input input(bytes);
  const QByteArray head = input.Take(18);
  if (head.size() < 18) return {};
  const int kind = head[2] & 7;
  const bool hasRuns = (head[2] & 8) != 0;
  const int depth = static_cast<quint8>(head[16]);
  const bool isIndexed = kind == 1;
  const bool isKnown =
      (kind == 1 || kind == 3) ? depth == 8 : kind == 2 && depth > 8 && depth <= 32;
  Raster raster{.width = Little16(head, 12), .height = Little16(head, 14), .lines = {}};
  if (!isKnown || !IsPossible(raster.width, raster.height)) return {};

  input.Take(static_cast<quint8>(head[0]));
  const int first = Little16(head, 3);
  const qsizetype entryBytes = (static_cast<quint8>(head[7]) + 7) / 8;
  QList<QRgb> colors;
  if (head[1] == 1) {
    if (entryBytes < 2 || entryBytes > 4) return {};
    const QByteArray map = input.Take(Little16(head, 5) * entryBytes);
    if (input.IsPast()) return {};
    for (qsizetype place = 0; place < map.size(); place += entryBytes)
      colors += TgaColor(QByteArrayView(map).sliced(place, entryBytes), false);
  }
  const qsizetype pixelBytes = (depth + 7) / 8;
  raster.lineBytes = raster.width * pixelBytes;
  const qsizetype count = raster.lineBytes * raster.height;
  raster.lines = hasRuns ? TgaRuns(input, count, pixelBytes) : input.Take(count);
  if (input.IsPast()) return {};

  const bool hasAlpha = (head[17] & 15) == 8 && depth == 32;
  const bool isFromTop = (head[17] & 0x20) != 0;
  const bool isFromRight = (head[17] & 0x10) != 0;
  return Draw(raster, [&](int line, int column) {
    const qsizetype stored = isFromTop ? line : raster.height - 1 - line;
    const qsizetype across = isFromRight ? raster.width - 1 - column : column;
    const QByteArrayView pixel = QByteArrayView(raster.lines)
                                     .sliced(stored * raster.lineBytes + across * pixelBytes)
                                     .first(pixelBytes);
    return isIndexed ? ColorAt(colors, static_cast<quint8>(pixel[0]) - first)
                     : TgaColor(pixel, hasAlpha);
  });
}

// PCX

QByteArray PcxRuns(Input &input, qsizetype count) {
  QByteArray lines;
  while (lines.size() < count && !input.IsPast()) {
    const int head = input.Byte();
    lines += head < 0xC0 ? QByteArray(1, static_cast<char>(head))
                         : QByteArray(head & 0x3F, static_cast<char>(input.Byte()));
  }
  return lines.left(count);
}

/// Three bytes a colour.
QList<QRgb> ColorTriples(QByteArrayView bytes) {
  QList<QRgb> colors;
  for (qsizetype place = 0; place + 2 < bytes.size(); place += 3) {
    const auto part = [&](qsizetype more) { return static_cast<quint8>(bytes[place + more]); };
    colors += qRgb(part(0), part(1), part(2));
  }
  return colors;
}

QImage ReadPcx(const QByteArray &bytes) {
  Input input(bytes);
  const QByteArray head = input.Take(128);
  if (head.size() < 128 || head[0] != 10) return {};
  const int bits = static_cast<quint8>(head[3]);
  const int planes = static_cast<quint8>(head[65]);
  const qsizetype planeBytes = Little16(head, 66);
  Raster raster{.width = Little16(head, 8) - Little16(head, 4) + 1,
                .height = Little16(head, 10) - Little16(head, 6) + 1,
                .lineBytes = planes * planeBytes,
                .lines = {}};
  const bool isColored = bits == 8 && planes == 3;
  const bool isIndexed =
      (bits == 1 || bits == 2 || bits == 4 || bits == 8) && planes >= 1 && bits * planes <= 8;
  if (!(isColored || isIndexed) || !IsPossible(raster.width, raster.height) ||
      planeBytes * 8 < qsizetype{raster.width} * bits)
    return {};
  const qsizetype count = raster.lineBytes * raster.height;
  if (count > MostBytes) return {};
  raster.lines = head[2] == 1 ? PcxRuns(input, count) : input.Take(count);
  if (input.IsPast()) return {};

  const bool hasTable = bits == 8 && bytes.size() > 769 && bytes[bytes.size() - 769] == 12;
  QList<QRgb> colors = ColorTriples(hasTable ? bytes.last(768) : head.mid(16, 48));
  if (bits * planes == 1) colors = {qRgb(0, 0, 0), qRgb(255, 255, 255)};
  return Draw(raster, [&](int line, int column) {
    const auto plane = [&](int number) {
      const qsizetype bit = qsizetype{column} * bits;
      const int byte = raster.At(line, number * planeBytes + bit / 8);
      return byte >> (8 - bits - bit % 8) & ((1 << bits) - 1);
    };
    if (isColored) return qRgb(plane(0), plane(1), plane(2));
    int index = 0;
    for (int number = 0; number < planes; ++number) index |= plane(number) << (number * bits);
    return ColorAt(colors, index);
  });
}

// Sun raster

QByteArray SunRuns(Input &input, qsizetype count) {
  QByteArray lines;
  while (lines.size() < count && !input.IsPast()) {
    const int byte = input.Byte();
    const int more = byte == 128 ? input.Byte() : 0;
    lines += QByteArray(more + 1, static_cast<char>(more == 0 ? byte : input.Byte()));
  }
  return lines.left(count);
}

QImage ReadSunRaster(const QByteArray &bytes) {
  constexpr qint64 Magic = 0x59A66A95;
  constexpr qint64 WithRuns = 2;
  constexpr qint64 RedFirst = 3;
  Input input(bytes);
  const QByteArray head = input.Take(32);
  if (head.size() < 32 || Big32(head, 0) != Magic) return {};
  const qint64 width = Big32(head, 4);
  const qint64 height = Big32(head, 8);
  const qint64 depth = Big32(head, 12);
  const qint64 kind = Big32(head, 20);
  const qint64 mapBytes = Big32(head, 28);
  const bool isKnown = (depth == 1 || depth == 8 || depth == 24 || depth == 32) && kind <= RedFirst;
  if (!isKnown || width > MostPixels || height > MostPixels || mapBytes > 768 ||
      !IsPossible(static_cast<int>(width), static_cast<int>(height)))
    return {};
  const QByteArray map = input.Take(mapBytes);
  // A line is padded to whole 16 bits.
  Raster raster{.width = static_cast<int>(width),
                .height = static_cast<int>(height),
                .lineBytes = (width * depth + 15) / 16 * 2,
                .lines = {}};
  const qsizetype count = raster.lineBytes * raster.height;
  raster.lines = kind == WithRuns ? SunRuns(input, count) : input.Take(count);
  if (input.IsPast()) return {};

  QList<QRgb> colors;
  const qsizetype entries = mapBytes / 3;
  for (qsizetype index = 0; index < entries && map.size() == mapBytes; ++index) {
    const auto part = [&](int color) { return static_cast<quint8>(map[color * entries + index]); };
    colors += qRgb(part(0), part(1), part(2));
  }
  if (colors.isEmpty() && depth == 1) colors = {qRgb(255, 255, 255), qRgb(0, 0, 0)};
  const bool isGrey = colors.isEmpty();
  return Draw(raster, [&](int line, int column) {
    if (depth == 1) return ColorAt(colors, raster.At(line, column / 8) >> (7 - column % 8) & 1);
    if (depth == 8) {
      const int index = raster.At(line, column);
      return isGrey ? qRgb(index, index, index) : ColorAt(colors, index);
    }
    // 32 bits begin with an unused byte.
    const qsizetype place = column * depth / 8 + (depth == 32 ? 1 : 0);
    const auto part = [&](int number) { return raster.At(line, place + number); };
    return kind == RedFirst ? qRgb(part(0), part(1), part(2)) : qRgb(part(2), part(1), part(0));
  });
}

}  // namespace

QImage ReadOldPicture(const QByteArray &bytes, const QString &ending) {
  if (ending == u"tga") return ReadTga(bytes);
  if (ending == u"pcx") return ReadPcx(bytes);
  if (ending == u"ras") return ReadSunRaster(bytes);
  return {};
}

}  // namespace velor
