// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Repair of the links of a page that is saved into another folder, or for the first time. Paths in
/// logic form.
namespace velor {

class Files;
struct PageFullAddress;

/// A link that leads to an existing file from the page's old folder and not from the new one.
struct BrokenLink {
  qsizetype offset = 0;  ///< of the address in the page's source, without its quotes
  qsizetype length = 0;
  bool isPicture = false;
  QString target;  ///< the file
  /// The address of the target relative to the new folder, escaped as the source needs it.
  QString adapted;
};

/// The links in `html` that break when the page moves from the file `from` to the file `to`, in
/// source order. None where the page has a BASE element, or stays in its folder.
std::vector<BrokenLink> BrokenLinks(const QString &html, const QString &from, const QString &to,
                                    const Files &files);

/// The links in `html` whose address is one of `addresses`, adapted to the page `to`; `target` is
/// empty. None where the page has a BASE element.
std::vector<BrokenLink> FullLinks(const QString &html, const QString &to,
                                  const std::vector<PageFullAddress> &addresses);

/// `html` with the address of each of these links replaced by its adapted one.
QString WithAdapted(const QString &html, const std::vector<BrokenLink> &links);

/// Copies the pictures among the links to the folder of `to` and adapts the links to the copies.
/// Where a file of that name with another content is there, it stays, and the link leads to the old
/// picture.
void CopyPictures(std::vector<BrokenLink> &links, const QString &to, Files &files);

}  // namespace velor
