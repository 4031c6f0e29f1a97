// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

class QImage;

namespace velor {

enum class PhotoFormat { Jpeg, WebP };
/// What a picture says about place, time, person and device (PictureData.h).
enum class PictureDetails { Remove, Keep };

struct PictureChoices {
  PhotoFormat photos = PhotoFormat::Jpeg;  ///< for photos that have to be coded
  PictureDetails details = PictureDetails::Remove;
};

/// A picture as it goes into a site.
struct PreparedPicture {
  QByteArray bytes;
  QString ending;  ///< of the file's name, by what the bytes are: "jpg", "png" ...
  QSize size;      ///< in pixels, upright; empty where it is not known
  /// What a person should know of it, a sentence; empty for nothing.
  QString notice;
};

/// A picture file prepared for a site. What browsers show stays as it is less its details; a photo
/// that is stored turned is set upright. BMP, TIFF and whatever else a plugin reads is coded anew.
/// `suffix` is the ending of its name. Raises RuntimeError (5) for what is no picture.
PreparedPicture PreparePicture(const QByteArray &file, const QString &suffix,
                               const PictureChoices &choices);

/// A picture without a file: a photo in the chosen format, anything else as PNG.
PreparedPicture PreparePicture(const QImage &image, const PictureChoices &choices);

/// Whether a picture looks like a photo: opaque, many colours, few neighbours alike.
bool LooksLikePhoto(const QImage &image);

}  // namespace velor
