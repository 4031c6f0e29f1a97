// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/PictureLoading.h"

#include "pictures/OldPictures.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace velor {
namespace {

/// Maximum bytes of a picture decoded for its preview. More takes too long, and comes near the
/// limit of QImageReader.
constexpr qint64 LargestDecode = qint64{96} * 1024 * 1024;

/// Whether decoding exceeds LargestDecode. Only JPEG is decoded at the wanted size, so it never
/// does.
bool IsTooLargeToPreview(const QImageReader &reader, QSize size) {
  if (reader.format() == "jpeg") return false;
  const bool known = reader.imageFormat() != QImage::Format_Invalid;
  const int bits = known ? QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel() : 32;
  return qint64{size.width()} * size.height() * bits / 8 > LargestDecode;
}

QSize FittedSize(QSize size, QSize bounds) {
  const bool fits = size.width() <= bounds.width() && size.height() <= bounds.height();
  return fits ? size : size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QSize Turned(QSize size, const QImageReader &reader) {
  return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed()
                                                                           : size;
}

/// A picture of a format that no plugin of Qt reads; null where it is none.
QImage OldPicture(const QString &native) {
  QFile file(native);
  if (!file.open(QIODevice::ReadOnly) || file.size() > LargestDecode) return {};
  return ReadOldPicture(file.readAll(), QFileInfo(native).suffix().toLower());
}

}  // namespace

qreal PreviewRatio(QSize picture, QSize bounds, qreal screenRatio) {
  const qreal needed =
      std::max(qreal(picture.width()) / bounds.width(), qreal(picture.height()) / bounds.height());
  return std::clamp(needed, 1.0, screenRatio);
}

LoadedPicture LoadPicture(const QString &path, QSize bounds) {
  if (path.isEmpty()) return {};
  const QString source = QStringLiteral("LoadPicture");
  const QString native = ToNative(path);
  if (!QFile::exists(native)) throw RuntimeError::Of(ErrorNumber::FileNotFound, source, native);

  QImageReader reader(native);
  reader.setAutoTransform(true);
  const QSize stored = reader.size();
  if (stored.isValid()) {
    if (IsTooLargeToPreview(reader, stored)) return {Turned(stored, reader), {}};
    reader.setScaledSize(FittedSize(stored, Turned(bounds, reader)));
  }
  QImage image = reader.read();
  if (stored.isValid() && !image.isNull()) return {Turned(stored, reader), image};
  if (image.isNull()) image = OldPicture(native);
  if (image.isNull()) {
    throw RuntimeError(
        ErrorNumber::InvalidProcedureCall, source,
        Words::tr("%1 cannot be loaded as a picture: %2").arg(native, reader.errorString()));
  }
  const QSize size = image.size();
  return {size,
          image.scaled(FittedSize(size, bounds), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)};
}

}  // namespace velor
