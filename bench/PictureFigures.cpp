// SPDX-License-Identifier: GPL-3.0-or-later
// A picture of 100 megapixels made smaller, in memory and from file to file, beside the toolkit's
// own scaling.
#include "bench/Children.h"
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "pictures/CodedPicture.h"
#include "pictures/Resample.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

namespace velor::bench {

namespace {

constexpr int Side = 10000;
constexpr QSize Small(2000, 2000);
constexpr int Rounds = 3;
const QString Subject = QStringLiteral("100 megapixels");
const QString Peer = QStringLiteral("QImage");
/// Where a child finds the picture.
constexpr const char *FileVariable = "VELOR_BENCH_PICTURE";

QImage Picture() {
  QImage picture(Side, Side, QImage::Format_RGB32);
  for (int y = 0; y < Side; ++y) {
    auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
    for (int x = 0; x < Side; ++x)
      line[x] = qRgb((7 * x + y) >> 4 & 255, (x ^ y) >> 3 & 255, 3 * y >> 4 & 255);
  }
  return picture;
}

QImage Scaled(const QImage &picture) {
  return picture.scaled(Small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QByteArray ScaledFile(const QByteArray &file) {
  const int limit = QImageReader::allocationLimit();
  QImageReader::setAllocationLimit(0);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  Scaled(QImage::fromData(file)).save(&buffer, "jpeg", PhotoQuality);
  QImageReader::setAllocationLimit(limit);
  return bytes;
}

QByteArray FileOfPicture() {
  QFile file(qEnvironmentVariable(FileVariable));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

void PictureFigures() {
  const QTemporaryDir folder;
  qputenv(FileVariable, folder.filePath(QStringLiteral("picture.jpg")).toLocal8Bit());
  {
    const QImage picture = Picture();
    Print(Compare(
        QStringLiteral("resample"), Subject, Peer, Rounds,
        [&] { return Milliseconds([&] { Resampled(picture, Small); }); },
        [&] { return Milliseconds([&] { Scaled(picture); }); }));
    QFile file(qEnvironmentVariable(FileVariable));
    if (file.open(QIODevice::WriteOnly)) file.write(Coded(picture, "jpeg", PhotoQuality));
  }
  const QByteArray jpeg = FileOfPicture();
  Print(Compare(
      QStringLiteral("resize a JPEG file"), Subject, Peer, Rounds,
      [&] { return Milliseconds([&] { Resized(jpeg, Small); }); },
      [&] { return Milliseconds([&] { ScaledFile(jpeg); }); }));
  Figure figure = Compare(
      QStringLiteral("most memory while a JPEG file is resized"), Subject, Peer, 1,
      [] { return MostMemoryOf(QStringLiteral("child-our-resize")); },
      [] { return MostMemoryOf(QStringLiteral("child-bare-resize")); });
  figure.unit = QStringLiteral("MB RSS");
  Print(figure);
}

void ChildOurResize() {
  Resized(FileOfPicture(), Small);
  ReportReadyAndWait();
}

void ChildBareResize() {
  ScaledFile(FileOfPicture());
  ReportReadyAndWait();
}

}  // namespace velor::bench
