// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// Where versions of files go that a save is about to replace although the page at hand did not
/// come from them. The newest 200 are kept, each with the path it had and the time.
class ReplacedVersions {
 public:
  virtual ~ReplacedVersions() = default;

  /// Keeps what the file at `path` (logic form) held; on the disk when it returns. Answers where it
  /// lies, as people read paths. Raises RuntimeError where it cannot be kept.
  virtual QString Keep(const QString &path, const QByteArray &content) = 0;
};

}  // namespace velor
