// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The relative links of a page that is saved into another folder. Paths in logic form.
namespace velor {

class Files;

/// A link that leads to a file from the page's old folder and not from the new one.
struct BrokenLink {
  qsizetype offset = 0;  ///< of the address in the page's source, without its quotes
  qsizetype length = 0;
  bool isPicture = false;
  QString target;  ///< the file
  /// The address that leads there from the new folder; as it is written in the source.
  QString adapted;
};

/// The links in `html` that break when the page goes from the file `from` to the file `to`. None
/// where the page names a base of its own, or stays in its folder.
std::vector<BrokenLink> BrokenLinks(const QString &html, const QString &from, const QString &to,
                                    const Files &files);

/// The source with these links leading where they led.
QString WithAdapted(const QString &html, const std::vector<BrokenLink> &links);

/// Copies the pictures among the links to the new page's folder and lets the links lead there. A
/// file of that name that holds something else stays, and the link keeps leading to the old place.
void TakePicturesAlong(std::vector<BrokenLink> &links, const QString &to, Files &files);

}  // namespace velor
