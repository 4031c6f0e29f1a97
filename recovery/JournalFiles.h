// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "files/FileDescriptor.h"
#include "platform/Journal.h"

#include <QStringList>

#include <map>

namespace velor {

/// Journals as files in `recovery` below the state folder, which only their owner may read. Every
/// run has a folder of its own there, named by its process and start time, with a lock that the
/// system releases when the process ends, however it ends. The folder is made for the first journal
/// and removed with the last. An abandoned page's id is the path of its journal.
class JournalFiles : public Journals {
 public:
  explicit JournalFiles(FileCalls &calls = FileCalls::OfTheSystem());
  ~JournalFiles() override;
  JournalFiles(const JournalFiles &) = delete;
  JournalFiles &operator=(const JournalFiles &) = delete;

  QString ReasonUnavailable() override;
  std::unique_ptr<Journal> Begin() override;
  std::vector<AbandonedPage> Abandoned() override;
  JournalReading Read(const QString &id) override;
  void Discard(const QString &id) override;

  /// This run's folder; made and locked where it is missing.
  QString OwnFolder();

  /// Limit of Abandoned, which takes the newest runs first. Each folder of an ended run takes an
  /// open file for its lock, and a program that crashes again and again leaves thousands.
  static constexpr std::size_t MostOffered = 200;

 private:
  /// Locks the folder of an ended run for this run; false where that run lives, or another has it.
  bool LockFolder(const QString &folder);
  /// Removes a folder that this run has locked where it holds no journal. Unknown files in it keep
  /// it.
  void RemoveIfEmpty(const QString &folder);

  FileCalls &calls_;
  QString root_;
  QString own_;  ///< empty before the first journal
  int begun_ = 0;
  std::map<QString, FileDescriptor> locks_;  ///< by folder; held until it goes
};

}  // namespace velor
