// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetFormat.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace velor {

/// What tells one state of a file from another without reading it.
struct JetStamp {
  qint64 bytes = 0;
  /// Modification time, nanoseconds since 1970.
  qint64 modified = 0;
  quint64 inode = 0;

  bool operator==(const JetStamp &) const = default;
};

/// The file and what lies beside it, page by page. All access goes through here, so that a test can
/// fail or stop at any single write. Failures raise RuntimeError with the file's name.
///
/// A commit is CreateJournal, AppendJournal ..., SyncJournal, KeepModified(time), WritePage ...,
/// Sync, RemoveJournal, KeepModified(nothing).
class JetStorage {
 public:
  virtual ~JetStorage() = default;

  /// Native form.
  virtual QString Path() const = 0;
  virtual JetStamp Stamp() = 0;
  /// Empty when the file can be written, else why not.
  virtual QString WriteObjection() = 0;
  /// Names who has the file open, by the live locks of the lock file beside it; empty when nobody
  /// has.
  virtual QString LockedBy() = 0;

  /// The part of the page that the file does not hold reads as zeros.
  virtual void ReadPage(jet::PageNumber number, jet::Page &page) = 0;
  virtual void WritePage(jet::PageNumber number, const jet::Page &page) = 0;
  virtual void Truncate(qint64 bytes) = 0;
  virtual void Sync() = 0;
  /// As long as a time is given (nanoseconds since 1970), the file keeps it as its modification
  /// time whatever is written, and the journal is touched before each write: so a journal left
  /// behind can tell whether somebody else wrote since. Nothing: the file is modified now.
  virtual void KeepModified(std::optional<qint64> nanoseconds) = 0;

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

/// The real one. Raises when the file is missing or cannot be read. The file is opened for writing
/// only when it is written.
std::unique_ptr<JetStorage> OpenJetStorage(const QString &nativePath);

}  // namespace velor
