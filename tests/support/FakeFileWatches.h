// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileWatch.h"

#include <QTimer>

#include <set>
#include <utility>

namespace velor {

/// Watches that report the changes which the test announces, from the event loop as the real ones
/// do.
class FakeFileWatches final : public FileWatches {
 public:
  std::unique_ptr<FileWatch> Begin(Listener listener) override {
    auto watch = std::make_unique<Watch>(watches_, std::move(listener));
    watches_->insert(watch.get());
    return watch;
  }

  /// Reports a change to every watch of the file; several changes in a row are one report.
  void Change(const QString &path) {
    for (Watch *watch : *watches_)
      if (watch->files.contains(path)) watch->changed.insert(path);
    QTimer::singleShot(0, &timer_, [this] {
      for (Watch *watch : std::set<Watch *>(*watches_)) Tell(watch);
    });
  }

 private:
  struct Watch;
  /// Shared, since a page may go after the test's own parts.
  using Registered = std::shared_ptr<std::set<Watch *>>;

  struct Watch final : FileWatch {
    Watch(Registered all, Listener tell) : registered(std::move(all)), listener(std::move(tell)) {}
    ~Watch() override { registered->erase(this); }
    void SetFiles(const QStringList &paths) override {
      files = paths;
      changed.clear();
    }

    const Registered registered;
    const Listener listener;
    QStringList files;
    std::set<QString> changed;  ///< and not told yet
  };

  void Tell(Watch *watch) {
    if (!watches_->contains(watch)) return;
    // The listener may end the watch.
    const Listener listener = watch->listener;
    for (const QString &path : std::exchange(watch->changed, {})) listener(path);
  }

  const Registered watches_ = std::make_shared<std::set<Watch *>>();
  QTimer timer_;
};

}  // namespace velor
