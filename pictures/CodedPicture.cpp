// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CodedPicture.h"

#include "pictures/Resample.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QTransform>

#include <algorithm>

namespace velor {

namespace {

/// Megabytes that a decoded picture may take: 100 megapixels and some.
constexpr int LargestDecode = 600;

/// Raises the toolkit's limit for decoded pictures within a scope.
class LargePictures {
 public:
  LargePictures() { QImageReader::setAllocationLimit(std::max(before_, LargestDecode)); }
  ~LargePictures() { QImageReader::setAllocationLimit(before_); }
  LargePictures(const LargePictures &) = delete;
  LargePictures &operator=(const LargePictures &) = delete;

 private:
  const int before_ = QImageReader::allocationLimit();
};

/// The format of a file that can be changed; empty for any other.
QByteArray ChangeableFormat(const QByteArray &file) {
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  if (!reader.canRead() || (reader.supportsAnimation() && reader.imageCount() > 1)) return {};
  const QByteArray format = reader.format();
  return format == "jpeg" || format == "png" || format == "webp" ? format : QByteArray();
}

/// Codes what `change` makes of a picture file in the file's own format.
template <typename Change>
QByteArray Changed(const QByteArray &file, Change change) {
  const QByteArray format = ChangeableFormat(file);
  const QImage image = format.isEmpty() ? QImage() : change(UprightPicture(file));
  if (image.isNull()) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("ChangePicture"),
                       Words::tr("this kind of picture cannot be changed"));
  }
  return Coded(image, format.constData(), format == "png" ? -1 : PhotoQuality);
}

}  // namespace

QImage UprightPicture(const QByteArray &file) {
  const LargePictures raised;
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  reader.setAutoTransform(true);
  QImage image = reader.read();
  if (image.isNull()) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("UprightPicture"),
                       file.isEmpty() ? Words::tr("the file is empty") : reader.errorString());
  }
  return image;
}

QImage TurnedClockwise(const QImage &image, int quarterTurns) {
  constexpr qreal Quarter = 90;
  return quarterTurns == 0 ? image : image.transformed(QTransform().rotate(Quarter * quarterTurns));
}

QByteArray Coded(const QImage &image, const char *format, int quality) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setQuality(quality);
  if (!writer.write(image)) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("Coded"),
                       Words::tr("the picture cannot be coded: %1").arg(writer.errorString()));
  }
  return bytes;
}

bool CanBeChanged(const QByteArray &file) {
  return !ChangeableFormat(file).isEmpty();
}

QByteArray Resized(const QByteArray &file, QSize size) {
  return Changed(file, [size](const QImage &image) { return Resampled(image, size); });
}

QByteArray Turned(const QByteArray &file, Turn turn) {
  return Changed(file, [turn](const QImage &image) {
    return TurnedClockwise(image, turn == Turn::Left ? 3 : 1);
  });
}

QByteArray Cropped(const QByteArray &file, const PictureCut &cut) {
  return Changed(file, [&cut](const QImage &image) {
    const QImage turned = TurnedClockwise(image, cut.quarterTurns);
    const QRect inside = cut.part.intersected(turned.rect());
    return inside.isEmpty() ? QImage() : turned.copy(inside);
  });
}

}  // namespace velor
