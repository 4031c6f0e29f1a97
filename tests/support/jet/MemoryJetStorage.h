// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetStorage.h"

#include <QByteArray>

#include <optional>

namespace velor::fixture {

/// What a storage in memory holds. It outlives the JetFile, so that the next one can be opened on
/// what the last one left.
struct JetMemory {
  QByteArray file;
  std::optional<QByteArray> journal;
  std::optional<QByteArray> backup;
  QString lockedBy;
  qint64 modified = 1;
  int writes = 0;
};

/// A file without a disk, for tests that open thousands.
class MemoryJetStorage : public JetStorage {
 public:
  explicit MemoryJetStorage(JetMemory &memory) : memory_(memory) {}

  QString Path() const override { return QStringLiteral("memory.mdb"); }
  JetStamp Stamp() override { return {memory_.file.size(), memory_.modified, 1}; }
  QString WriteObjection() override { return {}; }
  QString LockedBy() override { return memory_.lockedBy; }

  void ReadPage(jet::PageNumber number, jet::Page &page) override;
  void WritePage(jet::PageNumber number, const jet::Page &page) override;
  void Truncate(qint64 bytes) override;
  void Sync() override {}
  void PinModificationTime(std::optional<qint64> nanoseconds) override;
  void Backup() override { memory_.backup = memory_.file; }

  JournalState FindJournal() override {
    return memory_.journal ? JournalState::Leftover : JournalState::None;
  }
  qint64 JournalModified() override { return memory_.modified; }
  QByteArray ReadJournal() override { return *memory_.journal; }
  void CreateJournal() override { memory_.journal = QByteArray(); }
  void AppendJournal(const QByteArray &bytes) override { *memory_.journal += bytes; }
  void SyncJournal() override {}
  void RemoveJournal() override { memory_.journal.reset(); }
  QString SetJournalAside() override;

 private:
  void Touch();

  JetMemory &memory_;
  std::optional<qint64> kept_;
};

}  // namespace velor::fixture
