// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RuntimeError.h"

#include <QChar>
#include <QList>
#include <QString>

#include <optional>

namespace velor {

/// Folders that stand for the drives of another machine: with "C: /home/me/windows" the text
/// C:\Sites\Shop means /home/me/windows/Sites/Shop, and that folder is called C:\Sites\Shop. Made
/// for catalogues that are shared with machines where those drives exist.
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

  /// The native path that a text beginning with a mapped drive means; nothing for other texts.
  std::optional<QString> ToNative(const QString &drivePath) const;

  /// The drive path by which a native path is known: that of the drive whose folder holds it most
  /// closely; nothing outside the mapped folders.
  std::optional<QString> ToDrive(const QString &nativePath) const;

  const QList<Drive> &Drives() const { return drives_; }
  /// Gives a drive a folder, in place of the one it had.
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

/// Makes the drives of `map` that have no folder yet known to Paths.h. A drive in use keeps its
/// folder: paths on it are about.
void UseAddedDrives(const DriveMap &map);

/// Makes the map in the file the one that Paths.h works by; a missing file maps nothing. Runs
/// before anything that has a path, the error boundary's parts included, and so answers rather than
/// raises why the file could not be taken; no drive is mapped then.
std::optional<RuntimeError> UseDriveMapFile(const QString &nativeFile);

}  // namespace velor
