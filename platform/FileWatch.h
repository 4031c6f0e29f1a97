// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace velor {

/// Watches files on the disk for as long as it lives.
class FileWatch {
 public:
  virtual ~FileWatch() = default;

  /// Watches these files, in logic form, in place of those before; a file need not exist.
  virtual void SetFiles(const QStringList &paths) = 0;
};

/// Makes watches. Implementations: files/QtFileWatches.h, and a fake for tests; one contract suite
/// runs against both.
class FileWatches {
 public:
  /// Called from the event loop, with the path as it was given to SetFiles, less than a second
  /// after the file was written, replaced, removed, brought back or given other permissions. A
  /// burst of changes is told once, when it has come to rest.
  using Listener = std::function<void(const QString &path)>;

  virtual ~FileWatches() = default;
  virtual std::unique_ptr<FileWatch> Begin(Listener listener) = 0;
};

}  // namespace velor
