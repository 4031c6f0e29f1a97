// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PreparedPicture.h"

#include "pictures/CodedPicture.h"
#include "pictures/OldPictures.h"
#include "pictures/PictureData.h"
#include "platform/Words.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace velor {

namespace {

/// Of a photo that is turned, which was coded once already.
constexpr int TurnedQuality = 95;

/// Formats that every browser shows, by the names of the plugins, with the ending of their files.
QString BrowserEnding(const QByteArray &format) {
  if (format == "jpeg") return QStringLiteral("jpg");
  for (const char *shown : {"png", "gif", "webp", "svg", "svgz", "ico", "avif"})
    if (format == shown) return QString::fromLatin1(shown);
  return {};
}

bool HasScripts(const QByteArray &svg) {
  static const QRegularExpression script(
      QStringLiteral("<(\\w+:)?script\\b|\\son\\w+\\s*=|javascript:"),
      QRegularExpression::CaseInsensitiveOption);
  return QString::fromUtf8(svg).contains(script);
}

PreparedPicture TurnedPhoto(const QByteArray &file) {
  const QImage image = UprightPicture(file);
  return {WithoutPictureData(Coded(image, "jpeg", TurnedQuality)),
          QStringLiteral("jpg"),
          image.size(),
          {}};
}

}  // namespace

bool LooksLikePhoto(const QImage &image) {
  if (image.hasAlphaChannel() || image.width() < 2 || image.height() < 2) return false;
  constexpr int MostSamples = 250;  // a side
  constexpr int MostDrawnColours = 500;
  QSet<QRgb> colours;
  int samples = 0;
  int alike = 0;
  const int stepX = std::max(1, image.width() / MostSamples);
  const int stepY = std::max(1, image.height() / MostSamples);
  for (int y = 0; y < image.height(); y += stepY) {
    for (int x = 0; x + 1 < image.width(); x += stepX) {
      const QRgb colour = image.pixel(x, y);
      colours.insert(colour);
      alike += colour == image.pixel(x + 1, y) ? 1 : 0;
      ++samples;
    }
  }
  return colours.size() > std::min(MostDrawnColours, samples / 4) && alike * 3 < samples;
}

PreparedPicture PreparePicture(const QImage &image, const PictureChoices &choices) {
  const auto finished = [&](const char *format, int quality, const char *ending) {
    QByteArray bytes = Coded(image, format, quality);
    if (choices.details == PictureDetails::Remove) bytes = WithoutPictureData(bytes);
    return PreparedPicture{bytes, QString::fromLatin1(ending), image.size(), {}};
  };
  if (!LooksLikePhoto(image)) return finished("png", -1, "png");
  const bool hasWebP = QImageWriter::supportedImageFormats().contains("webp");
  if (choices.photos == PhotoFormat::WebP && hasWebP) return finished("webp", PhotoQuality, "webp");
  return finished("jpeg", PhotoQuality, "jpg");
}

PreparedPicture PreparePicture(const QByteArray &file, const QString &suffix,
                               const PictureChoices &choices) {
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  const QByteArray format = reader.canRead() ? reader.format() : QByteArray();
  QString ending = BrowserEnding(format);
  // Browsers read some kinds that no plugin here reads.
  if (format.isEmpty() && suffix.toLower() == u"avif") ending = QStringLiteral("avif");
  if (ending.isEmpty()) {
    QImage image = ReadOldPicture(file, suffix.toLower());
    if (image.isNull()) image = UprightPicture(file);
    PreparedPicture picture = PreparePicture(image, choices);
    picture.notice =
        Words::tr("It was a %1 file, which browsers do not show, and is %2 now.")
            .arg(format.isEmpty() ? suffix.toUpper() : QString::fromLatin1(format).toUpper(),
                 picture.ending.toUpper());
    return picture;
  }
  const bool isTurned = reader.transformation() != QImageIOHandler::TransformationNone;
  const bool isSideways = reader.transformation() & QImageIOHandler::TransformationRotate90;
  const QSize stored = reader.size();
  PreparedPicture picture{file, ending, isSideways ? stored.transposed() : stored, {}};
  if (format == "svg" && HasScripts(file))
    picture.notice = Words::tr("It holds scripts, which browsers do not run in a picture.");
  if (choices.details == PictureDetails::Keep) return picture;
  if (format == "jpeg" && isTurned) return TurnedPhoto(file);
  picture.bytes = WithoutPictureData(file);
  return picture;
}

}  // namespace velor
