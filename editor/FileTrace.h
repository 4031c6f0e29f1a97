// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace velor {

/// Path, size and hash of a file's content, by which a page recognises that its file was changed.
/// File times are not compared: copying programs set them, and a touched file has not changed.
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
