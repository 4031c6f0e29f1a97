// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/PictureLoading.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QFile>
#include <QImageReader>

namespace velor {
namespace {

/// Pictures of more pixels are not decoded at full size only to be shown small.
constexpr qint64 LargestFullDecode = 40'000'000;

QSize FittedSize(QSize size, QSize bounds) {
  const bool fits = size.width() <= bounds.width() && size.height() <= bounds.height();
  return fits ? size : size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QSize Turned(QSize size, const QImageReader &reader) {
  return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed()
                                                                           : size;
}

}  // namespace

LoadedPicture LoadPicture(const QString &path, QSize bounds) {
  if (path.isEmpty()) return {};
  const QString source = QStringLiteral("LoadPicture");
  const QString native = ToNative(path);
  if (!QFile::exists(native)) throw RuntimeError::Of(ErrorNumber::FileNotFound, source, native);

  QImageReader reader(native);
  reader.setAutoTransform(true);
  const QSize stored = reader.size();
  if (stored.isValid()) {
    const qint64 area = qint64{stored.width()} * stored.height();
    if (area > LargestFullDecode && !reader.supportsOption(QImageIOHandler::ScaledSize)) {
      return {Turned(stored, reader), {}};
    }
    reader.setScaledSize(FittedSize(stored, Turned(bounds, reader)));
  }
  QImage image = reader.read();
  if (image.isNull()) {
    throw RuntimeError(
        ErrorNumber::InvalidProcedureCall, source,
        QStringLiteral("%1 cannot be loaded as a picture: %2").arg(native, reader.errorString()));
  }
  if (stored.isValid()) return {Turned(stored, reader), image};
  const QSize size = image.size();
  return {size,
          image.scaled(FittedSize(size, bounds), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)};
}

}  // namespace velor
