// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace velor {

/// What a page last saw of a file, enough to tell whether it still is that. Times are not looked
/// at: programs that copy set them, and a file touched without a change is the same.
struct FileTrace {
  QString path;  ///< logic form; empty before the page has met a file
  qsizetype size = 0;
  size_t hash = 0;

  static FileTrace Of(const QString &path, const QByteArray &content) {
    return {path, content.size(), qHash(content)};
  }
  bool operator==(const FileTrace &) const = default;
};

}  // namespace velor
