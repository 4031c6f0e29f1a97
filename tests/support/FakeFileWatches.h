// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileWatch.h"

#include <QTimer>

#include <set>
#include <utility>

namespace velor {

/// Watches that tell what the test says has changed, from the event loop as the real ones do.
class FakeFileWatches final : public FileWatches {
 public:
  std::unique_ptr<FileWatch> Begin(Listener listener) override {
    auto watch = std::make_unique<Watch>(watches_, std::move(listener));
    watches_->insert(watch.get());
    return watch;
  }

  /// Tells every watch of the file.
  void Change(const QString &path) {
    QTimer::singleShot(0, &timer_, [this, path] {
      for (Watch *watch : std::set<Watch *>(*watches_)) {
        if (watches_->contains(watch) && watch->files.contains(path)) watch->listener(path);
      }
    });
  }

 private:
  struct Watch;
  /// Shared, since a page may go after the test's own parts.
  using Registered = std::shared_ptr<std::set<Watch *>>;

  struct Watch final : FileWatch {
    Watch(Registered all, Listener tell) : registered(std::move(all)), listener(std::move(tell)) {}
    ~Watch() override { registered->erase(this); }
    void SetFiles(const QStringList &paths) override { files = paths; }

    const Registered registered;
    const Listener listener;
    QStringList files;
  };

  const Registered watches_ = std::make_shared<std::set<Watch *>>();
  QTimer timer_;
};

}  // namespace velor
