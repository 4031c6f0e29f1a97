// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/PicturePlaces.h"
#include "pictures/PreparedPicture.h"

#include <QSize>
#include <QString>

namespace velor {

/// A picture that is in a site.
struct SitePicture {
  QString path;          ///< logic form
  QString address = {};  ///< of the file in the page (PictureAddress)
  QSize size = {};       ///< in pixels; empty where it is not known
  QString notice = {};   ///< PreparedPicture::notice
  /// Whether the file was made for it. Otherwise it was there, with the same content.
  bool isNew = false;
};

/// The size of a picture file in pixels, upright; empty where no plugin reads it.
QSize SizeOfPicture(const QString &path);

/// Puts pictures into the site of a page, in the folder where its pictures lie (PictureFolder). No
/// file is ever written over and no link is followed: a name that is taken gets a number. The same
/// content twice is one file. Raises RuntimeError where a picture cannot be read or written; no new
/// file is there then.
class PictureCopier {
 public:
  /// `files` outlives it. `html` is the page's text, which says where its pictures lie.
  PictureCopier(Files &files, PageSite site, QString html, PictureChoices choices = {});

  /// The picture of a file: where it lies in the site it stays there, else it is copied. Paths in
  /// logic form.
  SitePicture TakeFile(const QString &path);
  /// The content of a picture file that lies nowhere (a data: address, for one), named after the
  /// page.
  SitePicture TakeBytes(const QByteArray &content);
  /// A picture from the clipboard, named after the page.
  SitePicture TakeImage(const QImage &image);

 private:
  enum class Numbering { FromTheSecond, FromTheFirst };
  SitePicture Put(const PreparedPicture &picture, const QString &stem, Numbering numbering);
  QString PageStem() const;

  Files &files_;
  PageSite site_;
  QString html_;
  PictureChoices choices_;
};

}  // namespace velor
