// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// Keeps versions of files that are about to be replaced by a page that was not loaded from them,
/// since another program wrote them. The newest 200 are kept, each with its path and the time.
class ReplacedVersions {
 public:
  virtual ~ReplacedVersions() = default;

  /// Stores `content` of the file at `path` (logic form) durably. Returns the native path of the
  /// copy. Raises RuntimeError where it cannot be stored.
  virtual QString Store(const QString &path, const QByteArray &content) = 0;
};

}  // namespace velor
