// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RuntimeError.h"

#include <QChar>
#include <QList>
#include <QString>

#include <optional>

namespace velor {

/// Maps drives of another machine to folders of this one, for catalogues that are shared with
/// machines where those drives exist. With "C: /home/me/windows" the path C:\Sites\Shop means
/// /home/me/windows/Sites/Shop, and that folder has the logic form C:\Sites\Shop.
class DriveMap {
 public:
  struct Drive {
    QChar letter;
    /// Native, without a trailing separator; the root is the empty text.
    QString folder;
  };

  /// Maps nothing.
  DriveMap() = default;

  /// One drive a line: a letter, ":", and the folder's native path from the root; blanks around
  /// either do not count. Empty lines and lines that begin with "#" are passed over. Raises
  /// TypeMismatch (13) with `name` and the line's number for any other line, and for a drive that
  /// has a folder already.
  static DriveMap Parse(const QString &text, const QString &name);

  /// The native path of a path on a mapped drive; nullopt for any other text.
  std::optional<QString> ToNative(const QString &drivePath) const;

  /// The drive path of a native path in a mapped folder, by the innermost of the folders that
  /// contain it; nullopt outside of all mapped folders.
  std::optional<QString> ToDrive(const QString &nativePath) const;

  const QList<Drive> &Drives() const { return drives_; }
  /// Maps a drive, instead of its folder before.
  void Set(QChar letter, const QString &nativeFolder);
  void Remove(QChar letter);

 private:
  const Drive *Find(QChar letter) const;

  QList<Drive> drives_;
};

/// The drive map file: drives.conf beside the settings file. Native form.
QString DriveMapFile();

/// The map in the file; a missing file maps nothing. Raises RuntimeError for a file that cannot be
/// read, and as DriveMap::Parse.
DriveMap ReadDriveMapFile(const QString &nativeFile);

/// Writes the map to the file, whose comments stay; its folder is made. Raises RuntimeError where
/// that fails, and the old file stays whole.
void WriteDriveMapFile(const QString &nativeFile, const DriveMap &map);

/// Adds the drives of `map` that are not mapped yet to the map that Paths.h uses. A mapped drive
/// keeps its folder, since the program holds paths on it.
void UseAddedDrives(const DriveMap &map);

/// Reads the map that Paths.h uses from the file; a missing file maps nothing. Returns the error
/// where the file cannot be read or parsed; no drive is mapped then. It does not raise, since it
/// runs before the event boundary exists.
std::optional<RuntimeError> UseDriveMapFile(const QString &nativeFile);

}  // namespace velor
