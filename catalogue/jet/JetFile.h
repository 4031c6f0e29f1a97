// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetCursor.h"
#include "catalogue/jet/JetStorage.h"
#include "catalogue/jet/JetTable.h"
#include "catalogue/jet/JetUpdater.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace velor {

enum class JetAccessMode { ReadWrite, ReadOnly };

struct JetAccess {
  JetAccessMode mode = JetAccessMode::ReadWrite;
  /// Why the file cannot be written; for people.
  QString reason;
};

/// A Jet 4 database file: its tables, their rows, and changes of text in place.
///
/// Changes are kept in memory until Commit, which brings them into the file whole: a journal beside
/// the file holds what the changed pages held before, and puts it back at the next opening when a
/// commit did not end. Before the first commit the file is copied to its name with ".bak" appended.
///
/// Invariants: a row's home slot never moves and an indexed value never changes, so that index
/// pages are never touched; table definitions never change; a file that is damaged is read as far
/// as possible and never written.
class JetFile {
 public:
  /// Raises RuntimeError that says what the file is, if it is no Jet 4 file that can be read here:
  /// an older or newer format, one with a password, no database.
  static std::unique_ptr<JetFile> Open(std::unique_ptr<JetStorage> storage);
  ~JetFile();

  JetFile(const JetFile &) = delete;
  JetFile &operator=(const JetFile &) = delete;

  QString Path() const;
  /// What opening the file did that a person should know (a journal put back or set aside); empty
  /// as a rule.
  QString Notice() const;

  /// User tables in the catalogue's order.
  QStringList TableNames() const;
  /// Letter case ignored; nullptr when there is none. Valid as long as the file is.
  const JetTable *FindTable(const QString &name) const;

  /// To be called at the start of each statement: reads definitions and pages again where another
  /// program has changed the file. Raises where the tables are no longer those that were opened, or
  /// the file is being written. Does nothing within a transaction.
  void Refresh();

  /// What is missing or damaged, for people; empty for a sound file. The first call, and the first
  /// after a change by another program, walks all tables and compares their rows with the counts in
  /// the definitions.
  QString Damage();

  /// Whether the file can be written as it is. A damaged file cannot.
  const JetAccess &Access();

  /// A cursor before the table's first row; valid as long as the file is.
  JetCursor Scan(const JetTable &table);

  /// Begin within a transaction, and Commit or Rollback outside one, do nothing.
  void Begin();
  /// Raises, leaving the file as it was, when another program has it open or has changed it, or
  /// when writing fails. The transaction has ended either way.
  void Commit();
  void Rollback();

  /// Savepoints of a transaction are numbered by the caller, in rising order. A number that exists
  /// is kept as it is; outside a transaction there are none.
  void Savepoint(int number);
  /// Undoes the changes after the savepoint, which remains.
  void RollbackTo(int number);
  /// Removes this savepoint and the later ones; the changes stay.
  void Release(int number);

  /// Changes text and memo values of a row. Raises with nothing changed for a column that is
  /// indexed, of fixed length or no text, for a value that is too long or holds U+0000, for a file
  /// that cannot be written, and while another program has the file open. Outside a transaction the
  /// change is committed at once.
  void UpdateRow(const JetTable &table, JetRowId row, const QList<JetAssignment> &assignments);

 private:
  explicit JetFile(std::unique_ptr<JetStorage> storage);

  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace velor
