// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RuntimeError.h"

#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace velor {

/// The database's current error as a RuntimeError. Its text names the file first, then who holds a
/// lock where that is the reason, and `subject` (the statement, or the file itself) last.
RuntimeError DatabaseError(sqlite3 *database, const QString &source, const QString &subject);

/// One prepared statement, finished when it goes out of scope. Failures raise DatabaseError with
/// the given source and subject; so does a text that holds more than one statement, or none.
class SqliteStatement {
 public:
  SqliteStatement(sqlite3 *database, const QString &text, const QString &source,
                  const QString &subject);

  /// Moves to the next row; false when there is none.
  bool Step();

  sqlite3_stmt *Handle() const { return statement_.get(); }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt *statement) const;
  };

  sqlite3 *database_;
  QString source_;
  QString subject_;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

}  // namespace velor
