// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace velor {

/// Watches files on the disk until it is destroyed.
class FileWatch {
 public:
  virtual ~FileWatch() = default;

  /// Replaces the watched files (logic form). A file need not exist.
  virtual void SetFiles(const QStringList &paths) = 0;
};

/// Creates watches. Implementations: files/QtFileWatches.h, and a fake for tests; one contract
/// suite runs against both.
class FileWatches {
 public:
  /// Called from the event loop, with the path as passed to SetFiles, less than a second after the
  /// file was written, replaced, removed, created or given other permissions. Changes in quick
  /// succession are reported once, after the last.
  using Listener = std::function<void(const QString &path)>;

  virtual ~FileWatches() = default;
  virtual std::unique_ptr<FileWatch> Begin(Listener listener) = 0;
};

}  // namespace velor
