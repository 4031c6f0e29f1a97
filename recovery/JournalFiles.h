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
/// system lets go when the process ends, however it ends. The folder comes with the first journal
/// and goes with the last. An abandoned page's id is the path of its journal.
class JournalFiles : public Journals {
 public:
  explicit JournalFiles(FileCalls &calls = FileCalls::OfTheSystem());
  ~JournalFiles() override;
  JournalFiles(const JournalFiles &) = delete;
  JournalFiles &operator=(const JournalFiles &) = delete;

  QString Hindrance() override;
  std::unique_ptr<Journal> Begin() override;
  std::vector<AbandonedPage> Abandoned() override;
  JournalReading Read(const QString &id) override;
  void Discard(const QString &id) override;

  /// This run's folder, made and locked.
  QString OwnFolder();

  /// Whoever has more pages to decide on is shown the newest first. Each folder of an ended run
  /// that is looked at takes an open file, and a program that ends again and again leaves
  /// thousands.
  static constexpr std::size_t MostOffered = 200;

 private:
  /// Whether the folder of an ended run is this run's now.
  bool Claim(const QString &folder);
  /// Removes a folder of ours that holds no journal, as far as it holds nothing but ours.
  void RemoveIfEmpty(const QString &folder);

  FileCalls &calls_;
  QString root_;
  QString own_;  ///< empty until there is something to write
  int begun_ = 0;
  std::map<QString, FileDescriptor> locks_;  ///< by folder; held until it goes
};

}  // namespace velor
