// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/QtFileWatches.h"

#include "platform/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimer>

#include <chrono>
#include <map>
#include <sys/stat.h>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// A program that writes a file in several steps is waited for this long after each of them.
constexpr std::chrono::milliseconds QuietTime = 200ms;

/// What tells one state of a file from another without reading it; all 0 for a missing file.
struct State {
  dev_t device = 0;
  ino_t inode = 0;
  off_t size = 0;
  mode_t mode = 0;
  timespec changed{};

  static State Of(const QString &nativePath) {
    struct stat status {};
    if (stat(QFile::encodeName(nativePath).constData(), &status) != 0) return {};
    return {status.st_dev, status.st_ino, status.st_size, status.st_mode, status.st_ctim};
  }
  bool operator==(const State &other) const {
    return device == other.device && inode == other.inode && size == other.size &&
           mode == other.mode && changed.tv_sec == other.changed.tv_sec &&
           changed.tv_nsec == other.changed.tv_nsec;
  }
};

class QtFileWatch final : public FileWatch {
 public:
  explicit QtFileWatch(FileWatches::Listener listener) : listener_(std::move(listener)) {
    resting_.setSingleShot(true);
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &resting_,
                     [this] { resting_.start(QuietTime); });
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &resting_,
                     [this] { resting_.start(QuietTime); });
    QObject::connect(&resting_, &QTimer::timeout, [this] { Compare(); });
  }

  void SetFiles(const QStringList &paths) override {
    const QStringList before = watcher_.files() + watcher_.directories();
    if (!before.isEmpty()) watcher_.removePaths(before);
    files_.clear();
    for (const QString &path : paths) files_[path] = State::Of(ToNative(path));
    Follow();
  }

 private:
  /// A file that was replaced or removed is watched no more; one that came back is anew.
  void Follow() {
    QStringList wanted;
    for (const auto &[path, state] : files_) {
      const QString native = ToNative(path);
      wanted << native << QFileInfo(native).path();
    }
    wanted.removeDuplicates();
    const QStringList watched = watcher_.files() + watcher_.directories();
    for (const QString &path : wanted) {
      if (!watched.contains(path) && QFile::exists(path)) watcher_.addPath(path);
    }
  }

  void Compare() {
    Follow();
    QStringList changed;
    for (auto &[path, state] : files_) {
      const State now = State::Of(ToNative(path));
      if (now == state) continue;
      state = now;
      changed << path;
    }
    // The listener may end the watch.
    const FileWatches::Listener listener = listener_;
    for (const QString &path : changed) listener(path);
  }

  FileWatches::Listener listener_;
  QFileSystemWatcher watcher_;
  QTimer resting_;
  std::map<QString, State> files_;
};

}  // namespace

std::unique_ptr<FileWatch> QtFileWatches::Begin(Listener listener) {
  return std::make_unique<QtFileWatch>(std::move(listener));
}

}  // namespace velor
