// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the pictures of a page lie, and what they are called. Paths in logic form.
namespace velor {

class Files;

/// A page and the site that it belongs to.
struct PageSite {
  QString page;  ///< the page's file, which need not exist
  /// The project's folder; where it is empty, the site is the page's folder with all below it.
  QString project = {};
};

/// The folder of a file, without a separator at its end.
QString FolderOf(const QString &path);

/// Whether a file or folder lies in the page's site. Links of the file system are followed, so that
/// a link out of the site does not count as part of it.
bool LiesInSite(const PageSite &site, const QString &path);

/// The folder for a new picture of the page: the one where most pictures of `html` lie that are in
/// the site, else "images" beside the page or in the project's folder, else the page's folder.
QString PictureFolder(const PageSite &site, const QString &html, const Files &files);

/// The name of a picture file without its ending: `name` in lower-case ASCII letters, digits and
/// hyphens ("Mein Garten.JPG" is "mein-garten"); `otherwise` in that form where nothing is left of
/// it, "picture" where nothing is left of both.
QString PictureStem(const QString &name, const QString &otherwise);

/// The address of a file in that page: its way from the page, percent-encoded so that it may stand
/// in attributes, lists and styles alike; a file: address where `page` is empty.
QString PictureAddress(const QString &page, const QString &path);

/// The file of an address in that page; empty where it leads to no file of this computer.
QString FileOfAddress(const QString &page, const QString &address);

}  // namespace velor
