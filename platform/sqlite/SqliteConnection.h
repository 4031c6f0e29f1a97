// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <memory>

struct sqlite3;

namespace velor {

struct SqliteClose {
  void operator()(sqlite3 *database) const;
};

/// A connection to a catalogue that is kept as an SQLite file, whatever its name ends in. The
/// provider named in the connection text is not consulted: the file's header says what it is.
/// Statements run as they are given.
///
/// Invariants: no file is ever created; a file that opens has a readable list of tables.
class SqliteConnection final : public DatabaseConnection {
 public:
  void Open(const QString &connectionText, const QString &user, const QString &password,
            int options) override;
  ObjectState State() const override;
  void Execute(const QString &statement, int options) override;
  std::unique_ptr<Recordset> CreateRecordset() override;

  /// The open database; raises ObjectNotSet (91) before Open.
  sqlite3 *Handle() const;

 private:
  std::unique_ptr<sqlite3, SqliteClose> database_;
};

}  // namespace velor
