// SPDX-License-Identifier: GPL-3.0-or-later
// Picture files that tests make up.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QtEndian>

#include <cmath>
#include <random>

namespace velor {

inline QByteArray CodedAs(const char *format, const QImage &image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format, 90);
  return bytes;
}

/// A picture of one colour.
inline QImage PlainPicture(int width, int height, Qt::GlobalColor colour = Qt::darkGreen) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

/// Smooth waves with grain: what a photo looks like to a program.
inline QImage Photo(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  std::mt19937 random(7);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto wave = [&](double scale) {
        return static_cast<int>(120 + 90 * std::sin(x / scale) * std::cos(y / (scale + 5))) +
               static_cast<int>(random() % 12);
      };
      image.setPixel(x, y, qRgb(wave(17), wave(29), wave(41)));
    }
  }
  return image;
}

/// The left half red, the right half blue.
inline QImage RedAndBlue(int width, int height) {
  QImage image = PlainPicture(width, height, Qt::red);
  for (int y = 0; y < height; ++y)
    for (int x = width / 2; x < width; ++x) image.setPixel(x, y, qRgb(0, 0, 255));
  return image;
}

/// EXIF with an orientation, a place and a serial number.
inline QByteArray Exif(quint16 orientation) {
  QByteArray tiff("II*\0\x08\0\0\0", 8);
  const auto number16 = [&](quint16 value) {
    value = qToLittleEndian(value);
    tiff.append(reinterpret_cast<const char *>(&value), 2);
  };
  const auto number32 = [&](quint32 value) {
    value = qToLittleEndian(value);
    tiff.append(reinterpret_cast<const char *>(&value), 4);
  };
  number16(1);       // entries
  number16(0x0112);  // orientation
  number16(3);
  number32(1);
  number16(orientation);
  number16(0);
  number32(0);
  return tiff + "GPS 52.5N 13.4E SERIAL-4711";
}

/// A JPEG file with segments put behind its start.
inline QByteArray JpegWith(const QByteArray &jpeg, const QByteArray &segments) {
  return jpeg.left(2) + segments + jpeg.mid(2);
}

inline QByteArray Segment(int marker, const QByteArray &content) {
  const auto length = qToBigEndian(static_cast<quint16>(content.size() + 2));
  return QByteArray("\xFF", 1) + char(marker) +
         QByteArray(reinterpret_cast<const char *>(&length), 2) + content;
}

inline QByteArray ExifSegment(quint16 orientation) {
  return Segment(0xE1, QByteArray("Exif\0\0", 6) + Exif(orientation));
}

}  // namespace velor
