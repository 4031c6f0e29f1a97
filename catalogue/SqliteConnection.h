// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <memory>

struct sqlite3;

namespace velor {

struct SqliteClose {
  void operator()(sqlite3 *database) const;
};

class JetFile;

/// A connection to a catalogue, whatever its name ends in. The provider named in the connection
/// text is not consulted: the file's header says what it is. An SQLite file is opened as it is; a
/// Jet 4 file's tables are attached to a database in memory (JetModule.h). Statements run as they
/// are given on either.
///
/// Invariants: no file is ever created; a file that opens has a readable list of tables.
class SqliteConnection final : public DatabaseConnection {
 public:
  SqliteConnection();
  ~SqliteConnection() override;

  void Open(const QString &connectionText, const QString &user, const QString &password,
            int options) override;
  ObjectState State() const override;
  void Execute(const QString &statement, int options) override;
  std::unique_ptr<Recordset> CreateRecordset() override;

  QString Notice() const override;
  QString Defect() override;

  /// The open database, for one statement, which sees what other programs have written so far.
  /// Raises ObjectNotSet (91) before Open.
  sqlite3 *BeginStatement();

 private:
  /// Declared before the database, whose tables may read from it.
  std::unique_ptr<JetFile> jet_;
  std::unique_ptr<sqlite3, SqliteClose> database_;
};

}  // namespace velor
