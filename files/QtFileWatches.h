// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileWatch.h"

namespace velor {

/// Watches on QFileSystemWatcher (inotify). A file's folder is watched with it, so that a file
/// that is replaced by renaming, or comes back, is seen.
class QtFileWatches : public FileWatches {
 public:
  std::unique_ptr<FileWatch> Begin(Listener listener) override;
};

}  // namespace velor
