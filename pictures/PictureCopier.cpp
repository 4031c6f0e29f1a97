// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PictureCopier.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <utility>

namespace velor {

namespace {

QString NameOf(const QString &path) {
  return path.sliced(path.lastIndexOf(u'\\') + 1);
}

/// A regular file of the folder with that content; empty where there is none.
QString SameContent(const Files &files, const QString &folder, const PreparedPicture &picture) {
  const QDir native(ToNative(folder));
  for (const QFileInfo &file : native.entryInfoList(QDir::Files | QDir::NoSymLinks)) {
    if (file.size() != picture.bytes.size() || file.suffix() != picture.ending) continue;
    const QString path = folder + u'\\' + file.fileName();
    if (files.ReadAll(path) == picture.bytes) return path;
  }
  return {};
}

}  // namespace

QSize SizeOfPicture(const QString &path) {
  QImageReader reader(ToNative(path));
  const bool isSideways = reader.transformation() & QImageIOHandler::TransformationRotate90;
  return isSideways ? reader.size().transposed() : reader.size();
}

PictureCopier::PictureCopier(Files &files, PageSite site, QString html, PictureChoices choices)
    : files_(files), site_(std::move(site)), html_(std::move(html)), choices_(choices) {}

SitePicture PictureCopier::TakeFile(const QString &path) {
  if (LiesInSite(site_, path))
    return {.path = path, .address = PictureAddress(site_.page, path), .size = SizeOfPicture(path)};
  const QString name = NameOf(path);
  const QString suffix = name.sliced(name.lastIndexOf(u'.') + 1);
  const PreparedPicture picture = PreparePicture(files_.ReadAll(path), suffix, choices_);
  return Put(picture, PictureStem(name, NameOf(site_.page)), Numbering::FromTheSecond);
}

SitePicture PictureCopier::TakeBytes(const QByteArray &content) {
  return Put(PreparePicture(content, {}, choices_), PageStem(), Numbering::FromTheFirst);
}

SitePicture PictureCopier::TakeImage(const QImage &image) {
  return Put(PreparePicture(image, choices_), PageStem(), Numbering::FromTheFirst);
}

QString PictureCopier::PageStem() const {
  return PictureStem(NameOf(site_.page), {});
}

SitePicture PictureCopier::Put(const PreparedPicture &picture, const QString &stem,
                               Numbering numbering) {
  const QString folder = PictureFolder(site_, html_, files_);
  SitePicture put{.path = SameContent(files_, folder, picture),
                  .size = picture.size,
                  .notice = picture.notice,
                  .isNew = false};
  for (int number = numbering == Numbering::FromTheFirst ? 1 : 0; put.path.isEmpty(); ++number) {
    const QString tail = number == 0 ? QString() : u'-' + QString::number(number);
    const QString path = folder + u'\\' + stem + tail + u'.' + picture.ending;
    if (!files_.CreateNew(path, picture.bytes)) continue;
    put.path = path;
    put.isNew = true;
  }
  put.address = PictureAddress(site_.page, put.path);
  return put;
}

}  // namespace velor
