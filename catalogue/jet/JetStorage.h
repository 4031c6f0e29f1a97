// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetFormat.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace velor {

/// Identifies a state of a file without reading its content.
struct JetStamp {
  qint64 bytes = 0;
  /// Modification time, nanoseconds since 1970.
  qint64 modified = 0;
  /// Tells the file from another one that takes its name.
  quint64 identity = 0;

  bool operator==(const JetStamp &) const = default;
};

/// The database file, read and written by pages, and the journal and lock file beside it. All
/// access goes through this class, so that a test can fail or stop at any single write. Failures
/// raise RuntimeError with the file's name. The real one is files/PosixJetStorage.h.
///
/// A commit is CreateJournal, AppendJournal ..., SyncJournal, PinModificationTime(time), WritePage
/// ..., Sync, RemoveJournal, PinModificationTime(nothing).
class JetStorage {
 public:
  virtual ~JetStorage() = default;

  /// The database file's path in native form.
  virtual QString Path() const = 0;
  virtual JetStamp Stamp() = 0;
  /// Why the file cannot be written, for people; empty where it can.
  virtual QString WriteObjection() = 0;
  /// Names who has the file open, by the live locks of the lock file beside it; empty when nobody
  /// has.
  virtual QString LockedBy() = 0;

  /// Reads a page; what lies beyond the file's end reads as zeros.
  virtual void ReadPage(jet::PageNumber number, jet::Page &page) = 0;
  virtual void WritePage(jet::PageNumber number, const jet::Page &page) = 0;
  virtual void Truncate(qint64 bytes) = 0;
  virtual void Sync() = 0;
  /// Keeps `nanoseconds` (since 1970) as the file's modification time whatever is written from now
  /// on, and touches the journal before each write. A journal left behind can then tell whether
  /// another program has written since. Nothing ends that, and sets the modification time to now.
  virtual void PinModificationTime(std::optional<qint64> nanoseconds) = 0;

  /// Copies the file to its name with ".bak" appended, whole or not at all.
  virtual void Backup() = 0;

  /// The journal beside the file (its name with "-journal" appended).
  enum class JournalState { None, Leftover, InUse };
  virtual JournalState FindJournal() = 0;
  /// When the journal was last touched, which is before each page write of its commit.
  virtual qint64 JournalModified() = 0;
  virtual QByteArray ReadJournal() = 0;
  /// Raises when there is one already. It is held (InUse for others) until it is removed.
  virtual void CreateJournal() = 0;
  virtual void AppendJournal(const QByteArray &bytes) = 0;
  /// Brings the journal and its name to the disk.
  virtual void SyncJournal() = 0;
  virtual void RemoveJournal() = 0;
  /// Renames a leftover journal; returns its new name.
  virtual QString SetJournalAside() = 0;
};

}  // namespace velor
