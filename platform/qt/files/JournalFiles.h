// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"
#include "platform/qt/files/FileCalls.h"
#include "platform/qt/files/FileDescriptor.h"

#include <QStringList>

#include <map>

namespace velor {

/// Journals as files in `recovery` below the state folder, which only their owner may read. Every
/// run has a folder of its own there, named by its process and start time, with a lock that the
/// system lets go when the process ends, however it ends. The folder comes with the first journal
/// and goes with the last.
class JournalFiles : public Journals {
 public:
  explicit JournalFiles(FileCalls &calls = FileCalls::OfTheSystem());
  ~JournalFiles() override;
  JournalFiles(const JournalFiles &) = delete;
  JournalFiles &operator=(const JournalFiles &) = delete;

  std::unique_ptr<Journal> Begin() override;
  std::vector<AbandonedPage> Abandoned() override;
  void Discard(const QString &id) override;

  /// This run's folder, made and locked.
  QString OwnFolder();

 private:
  /// The folders of ended runs, locked.
  QStringList Claim();
  /// Removes a folder of ours that holds no journal.
  void RemoveIfEmpty(const QString &folder);

  FileCalls &calls_;
  QString root_;
  QString own_;  ///< empty until there is something to write
  int begun_ = 0;
  std::map<QString, FileDescriptor> locks_;  ///< by folder; held until it goes
};

}  // namespace velor
