// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"
#include "platform/RuntimeError.h"
#include "tests/support/CallLog.h"

#include <QVariant>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace velor {

/// What one statement answers.
struct FakeRows {
  struct Column {
    QString name;
    ColumnType type = ColumnType::VarWideChar;
  };
  std::vector<Column> columns;
  std::vector<std::vector<QVariant>> rows;
};

/// A database that answers a query with the rows that the test gave for exactly that text; any
/// other query fails as one with a syntax error does. Every statement can be executed unless it is
/// among the failures. It must outlive its connections and recordsets.
class FakeDatabase {
 public:
  explicit FakeDatabase(CallLog *log = nullptr) : log_(log) {}

  std::map<QString, FakeRows> results;
  /// Statements that fail, with the error they raise.
  std::map<QString, RuntimeError> failures;
  /// Raised by the next Open of a connection.
  std::optional<RuntimeError> openFailure;
  /// What DatabaseConnection::Notice answers.
  QString notice;
  /// What DatabaseConnection::Defect answers.
  QString defect;

  // What tests read.
  std::vector<QString> statements;  ///< every statement, queried or executed, in order
  QString connectionText;           ///< as last opened
  QString user;
  QString password;
  int openOptions = 0;
  int connectionsMade = 0;
  int recordsetsMade = 0;
  int recordsetsAlive = 0;

  std::unique_ptr<DatabaseConnection> CreateConnection();
  /// An open connection to a catalogue without a project.
  std::unique_ptr<DatabaseConnection> ConnectEmptyCatalogue();

 private:
  friend class FakeConnection;
  friend class FakeRecordset;
  CallLog *log_;
};

}  // namespace velor
