// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetFile.h"

#include "catalogue/jet/JetCatalog.h"
#include "catalogue/jet/JetHeader.h"
#include "catalogue/jet/JetJournal.h"
#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTableRows.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velor {

namespace {

[[noreturn]] void RaiseExecute(ErrorNumber number, const QString &detail) {
  throw RuntimeError::Of(number, QStringLiteral("Database.Execute"), detail);
}

}  // namespace

struct JetFile::Parts {
  explicit Parts(std::unique_ptr<JetStorage> opened)
      : storage(std::move(opened)), pager(*storage), updater(pager) {}

  std::vector<JetTable> Load();
  void Replace(std::vector<JetTable> loaded);
  void CheckNobodyElse();
  void CheckWritable();
  void WriteChanges();
  void GoBackTo(JetPager::Moment moment);

  std::unique_ptr<JetStorage> storage;
  JetPager pager;
  JetUpdater updater;
  QString notice;
  /// Pointers to them are handed out: their addresses stay.
  std::vector<std::unique_ptr<JetTable>> tables;
  JetAccess access;
  /// Whether the tables have been walked since the file was last read anew.
  bool checked = false;
  /// Whether this run has kept a copy of the file.
  bool backedUp = false;

  bool inTransaction = false;
  /// Whether this transaction has changed something, and so has looked whether it may.
  bool writing = false;
  JetPager::Moment begin;
  std::vector<std::pair<int, JetPager::Moment>> savepoints;
};

/// Reads the file anew.
std::vector<JetTable> JetFile::Parts::Load() {
  const JetStamp stamp = storage->Stamp();
  pager.Reset(stamp);
  checked = false;
  pager.SetKey(ReadJetHeader(*storage));
  if (stamp.bytes % jet::PageBytes != 0) {
    pager.NoteDamage(Words::tr("its last page is incomplete"));
  }
  return ReadJetTables(pager, storage->Path());
}

void JetFile::Parts::Replace(std::vector<JetTable> loaded) {
  for (const auto &table : tables) {
    const auto now = std::find_if(loaded.begin(), loaded.end(), [&table](const JetTable &other) {
      return other.name == table->name && other.columns == table->columns;
    });
    if (now == loaded.end()) {
      RaiseExecute(ErrorNumber::DeviceIoError,
                   Words::tr("another program has changed the tables of %1; open it again")
                       .arg(storage->Path()));
    }
    *table = *now;
  }
}

void JetFile::Parts::CheckNobodyElse() {
  const QString holder = storage->LockedBy();
  if (holder.isEmpty()) return;
  RaiseExecute(ErrorNumber::PermissionDenied,
               Words::tr("the catalogue %1 is open in another program and cannot be changed "
                         "until that is closed: %2")
                   .arg(storage->Path(), holder));
}

void JetFile::Parts::CheckWritable() {
  if (access.mode == JetAccessMode::ReadOnly) {
    RaiseExecute(
        ErrorNumber::PathFileAccess,
        Words::tr("the catalogue %1 cannot be changed: %2").arg(storage->Path(), access.reason));
  }
  CheckNobodyElse();
}

void JetFile::Parts::WriteChanges() {
  CheckNobodyElse();
  if (storage->Stamp() != pager.Stamp()) {
    RaiseExecute(ErrorNumber::PermissionDenied,
                 Words::tr("another program has changed %1 meanwhile").arg(storage->Path()));
  }
  if (!backedUp) storage->Backup();
  backedUp = true;
  CommitJetChanges(*storage, pager);
  pager.NoteCommit(storage->Stamp());
}

void JetFile::Parts::GoBackTo(JetPager::Moment moment) {
  pager.GoBackTo(std::move(moment));
  updater.ForgetRooms();
}

JetFile::JetFile(std::unique_ptr<JetStorage> storage)
    : parts_(std::make_unique<Parts>(std::move(storage))) {
  parts_->notice = RecoverJetFile(*parts_->storage);
  for (JetTable &table : parts_->Load()) {
    parts_->tables.push_back(std::make_unique<JetTable>(std::move(table)));
  }
}

JetFile::~JetFile() = default;

std::unique_ptr<JetFile> JetFile::Open(std::unique_ptr<JetStorage> storage) {
  return std::unique_ptr<JetFile>(new JetFile(std::move(storage)));
}

QString JetFile::Path() const {
  return parts_->storage->Path();
}

QString JetFile::Notice() const {
  return parts_->notice;
}

QStringList JetFile::TableNames() const {
  QStringList names;
  for (const auto &table : parts_->tables) names += table->name;
  return names;
}

const JetTable *JetFile::FindTable(const QString &name) const {
  for (const auto &table : parts_->tables) {
    if (table->name.compare(name, Qt::CaseInsensitive) == 0) return table.get();
  }
  return nullptr;
}

void JetFile::Refresh() {
  if (parts_->inTransaction) return;
  if (const QString notice = RecoverJetFile(*parts_->storage); !notice.isEmpty()) {
    parts_->notice = notice;
  }
  if (parts_->storage->Stamp() == parts_->pager.Stamp()) return;
  try {
    parts_->Replace(parts_->Load());
  } catch (const RuntimeError &) {
    // No stamp is like this one: the next statement looks again.
    parts_->pager.Reset({});
    throw;
  }
}

QString JetFile::Damage() {
  Parts &parts = *parts_;
  if (!parts.checked) {
    for (const auto &table : parts.tables) CheckJetTable(parts.pager, *table);
    parts.checked = true;
  }
  return parts.pager.Damage();
}

const JetAccess &JetFile::Access() {
  Parts &parts = *parts_;
  QString reason = Damage();
  if (reason.isEmpty()) reason = parts.storage->WriteObjection();
  const JetAccessMode mode = reason.isEmpty() ? JetAccessMode::ReadWrite : JetAccessMode::ReadOnly;
  parts.access = {mode, reason};
  return parts.access;
}

JetCursor JetFile::Scan(const JetTable &table) {
  return {parts_->pager, table, JetTablePages(parts_->pager, table)};
}

void JetFile::Begin() {
  if (parts_->inTransaction) return;
  parts_->inTransaction = true;
  parts_->writing = false;
  parts_->savepoints.clear();
  parts_->begin = parts_->pager.Now();
}

void JetFile::Commit() {
  if (!parts_->inTransaction) return;
  try {
    if (!parts_->pager.Now().changes.empty()) parts_->WriteChanges();
  } catch (const RuntimeError &) {
    Rollback();
    throw;
  }
  parts_->inTransaction = false;
}

void JetFile::Rollback() {
  if (!parts_->inTransaction) return;
  parts_->GoBackTo(std::move(parts_->begin));
  parts_->inTransaction = false;
}

void JetFile::Savepoint(int number) {
  auto &savepoints = parts_->savepoints;
  if (!parts_->inTransaction) return;
  if (savepoints.empty() || savepoints.back().first < number) {
    savepoints.emplace_back(number, parts_->pager.Now());
  }
}

void JetFile::RollbackTo(int number) {
  auto &savepoints = parts_->savepoints;
  while (!savepoints.empty() && savepoints.back().first > number) savepoints.pop_back();
  if (savepoints.empty() || savepoints.back().first != number) return;
  parts_->GoBackTo(savepoints.back().second);
}

void JetFile::Release(int number) {
  auto &savepoints = parts_->savepoints;
  while (!savepoints.empty() && savepoints.back().first >= number) savepoints.pop_back();
}

void JetFile::UpdateRow(const JetTable &table, JetRowId row,
                        const QList<JetAssignment> &assignments) {
  Parts &parts = *parts_;
  if (!parts.inTransaction) {
    Begin();
    try {
      UpdateRow(table, row, assignments);
    } catch (const RuntimeError &) {
      Rollback();
      throw;
    }
    Commit();
    return;
  }
  if (!parts.writing) {
    Access();
    parts.CheckWritable();
    parts.writing = true;
  }
  parts.pager.Mark();
  try {
    parts.updater.Update(table, row, assignments);
  } catch (const RuntimeError &) {
    parts.pager.Undo();
    parts.updater.ForgetRooms();
    throw;
  }
  parts.pager.Mark();
}

}  // namespace velor
