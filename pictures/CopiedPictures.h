// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/PictureCopier.h"
#include "platform/Journal.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

namespace velor {

class ReplacedVersions;

/// The files that were made for pictures of a page since it was last saved. They follow the page's
/// text: where Undo takes a picture's address out of it, the file goes to the replaced versions,
/// and Redo brings it back. A page that closes without saving takes them along.
///
/// Invariant: only files that were made for this page are removed, as long as they hold what was
/// written into them.
class CopiedPictures {
 public:
  /// Both outlive it. `replaced` is null where no versions are kept; the content is then kept in
  /// memory. `isUsedElsewhere` tells whether another page has that file; it stays then.
  CopiedPictures(Files &files, ReplacedVersions *replaced,
                 std::function<bool(const QString &path)> isUsedElsewhere);

  /// Follows this file from the first text on that holds its address. Does nothing for one that is
  /// not new.
  void Add(const SitePicture &picture);
  /// The same for files that another run made, with the digests that There told then.
  void Adopt(const QList<JournalledPicture> &pictures);
  /// The files that are there and follow the page.
  QList<JournalledPicture> There() const;
  /// Whether there is one whose address no text had yet.
  bool AwaitsAny() const;
  /// Counts every address as seen: the next text tells which pictures there are.
  void ExpectAll();
  /// The page's text is this now.
  void Follow(const QString &html);
  /// The page was saved with this text: the pictures in it belong to the site from now on.
  void MarkSaved(const QString &html);
  /// Another page was saved that has files for which this is true: they are the site's from now on.
  void LeaveToSite(const std::function<bool(const QString &path)> &isSaved);
  /// The page closes without being saved.
  void RemoveUnsaved();
  /// Removes the files that never came into the page's text.
  void RemoveUnseen();
  bool IsEmpty() const { return pictures_.empty(); }

 private:
  struct Picture {
    QString path;
    QString address;
    QByteArray content = {};  ///< while the file is not there
    QByteArray digest = {};   ///< of what was written into it
    bool wasSeen = false;     ///< in the page's text
    bool isThere = true;
  };
  void Remove(Picture &picture);
  void BringBack(Picture &picture);

  Files &files_;
  ReplacedVersions *replaced_;
  std::function<bool(const QString &path)> isUsedElsewhere_;
  std::vector<Picture> pictures_;
};

}  // namespace velor
