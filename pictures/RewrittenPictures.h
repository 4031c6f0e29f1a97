// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace velor {

class Files;
class ReplacedVersions;

/// Creates a file beside `path` with that tail in its name, numbered where that is taken; returns
/// its path.
QString CreateBeside(Files &files, const QString &path, const QString &tail,
                     const QByteArray &content);

/// Picture files of a site that were written anew for a page, as by turning and cutting. What a
/// file held at first is kept beside it as "name-original". The files follow the page's text, so
/// that Undo of the sizes in it brings the picture back that they belong to.
///
/// Invariant: a file that holds what was not written here is left alone.
class RewrittenPictures {
 public:
  /// Both outlive it. `replaced` keeps what the last save of the page had, where that is not what
  /// the file held at first; without it such a file is not in Unsaved().
  explicit RewrittenPictures(Files &files, ReplacedVersions *replaced = nullptr)
      : files_(files), replaced_(replaced) {}

  /// Writes the file anew, and makes the copy of what it held where there is none. Raises
  /// RuntimeError, with the file as it was.
  void Rewrite(const QString &path, const QByteArray &content);
  /// With this text of the page the file is to hold that.
  void Note(const QString &path, const QString &text, const QByteArray &content);
  /// The name of the copy; empty for a file that is as it was at first.
  QString OriginalOf(const QString &path);
  /// Puts the file back as it was at first; the copy goes. Raises RuntimeError.
  void PutBack(const QString &path);

  /// The page's text is this now.
  void Follow(const QString &text);
  /// The page was saved: the files belong to it as they are.
  void MarkSaved();
  /// The page closes without being saved.
  void RemoveUnsaved();
  /// The files that hold what does not go with the saved page.
  QList<JournalledPicture> Unsaved() const;
  /// Takes over what Unsaved told in another run, whose page is restored with that text.
  void Adopt(const QList<JournalledPicture> &pictures, const QString &text);
  bool IsEmpty() const { return pictures_.empty(); }

 private:
  struct Picture {
    QString path;
    QString original = {};   ///< path of the copy; empty while there is none
    QByteArray first = {};   ///< what the copy holds
    QByteArray saved = {};   ///< what belongs to the saved page
    QByteArray latest = {};  ///< what was written last
    std::vector<std::pair<QString, QByteArray>> contents = {};  ///< by the page's text
    QString savedCopy = {};  ///< where `saved` lies, if it is not `first`
    std::optional<JournalledPicture> unsaved = {};
  };
  Picture *Find(const QString &path);
  void Write(Picture &picture, const QByteArray &content);
  void WriteBack(Picture &picture, const QByteArray &content);

  Files &files_;
  ReplacedVersions *replaced_;
  std::vector<Picture> pictures_;
};

}  // namespace velor
