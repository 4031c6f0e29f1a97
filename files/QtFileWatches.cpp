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

/// Changes within this time of one another are reported once: a program may write a file in several
/// steps.
constexpr std::chrono::milliseconds QuietTime = 200ms;

/// Identifies a state of a file without reading its content; all 0 for a missing file.
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
    quietTimer_.setSingleShot(true);
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &quietTimer_,
                     [this] { quietTimer_.start(QuietTime); });
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &quietTimer_,
                     [this] { quietTimer_.start(QuietTime); });
    QObject::connect(&quietTimer_, &QTimer::timeout, [this] { Compare(); });
  }

  void SetFiles(const QStringList &paths) override {
    const QStringList before = watcher_.files() + watcher_.directories();
    if (!before.isEmpty()) watcher_.removePaths(before);
    files_.clear();
    for (const QString &path : paths) files_[path] = State::Of(ToNative(path));
    WatchMissing();
  }

 private:
  /// Watches again the files that the watcher dropped, since they were replaced or removed and came
  /// back, and their folders.
  void WatchMissing() {
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

  /// Calls the listener with each file whose state has changed.
  void Compare() {
    WatchMissing();
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
  QTimer quietTimer_;
  std::map<QString, State> files_;
};

}  // namespace

std::unique_ptr<FileWatch> QtFileWatches::Begin(Listener listener) {
  return std::make_unique<QtFileWatch>(std::move(listener));
}

}  // namespace velor
