// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "platform/ReplacedVersions.h"

namespace velor {

/// Replaced versions as files in `replaced` below the state folder: the content under its time and
/// the file's name, and beside it, with ".from" at the end, the path and the time.
class ReplacedFiles : public ReplacedVersions {
 public:
  explicit ReplacedFiles(FileCalls &calls = FileCalls::OfTheSystem()) : calls_(calls) {}

  QString Store(const QString &path, const QByteArray &content) override;
  /// Store for a native path; answers the kept file's path.
  QString StoreNative(const QString &nativePath, const QByteArray &content);
  /// Deletes a kept version, by the path that StoreNative answered: its replacement is on the disk,
  /// or the old content is back.
  void Remove(const QString &kept);

  /// Keeping one more deletes the oldest.
  static constexpr int MostVersions = 200;

 private:
  FileCalls &calls_;
};

}  // namespace velor
