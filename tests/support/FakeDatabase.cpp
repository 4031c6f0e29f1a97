// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeDatabase.h"

#include <utility>

namespace velor {

namespace {

[[noreturn]] void Fail(ErrorNumber number, const QString &detail) {
  throw RuntimeError::Of(number, QStringLiteral("FakeDatabase"), detail);
}

}  // namespace

class FakeRecordset final : public Recordset {
 public:
  explicit FakeRecordset(FakeDatabase &database) : database_(database) {
    ++database_.recordsetsAlive;
  }
  ~FakeRecordset() override { --database_.recordsetsAlive; }

  void SetCursorLocation(CursorLocation location) override {
    Note(database_.log_, QStringLiteral("SetCursorLocation(%1)").arg(static_cast<int>(location)));
  }

  void Open(const QString &statement, DatabaseConnection &connection, CursorType cursor,
            LockType lock, int options) override {
    Note(database_.log_, QStringLiteral("OpenRecordset(%1, %2, %3, %4)")
                             .arg(statement)
                             .arg(static_cast<int>(cursor))
                             .arg(static_cast<int>(lock))
                             .arg(options));
    if (state_ == ObjectState::Open) Fail(ErrorNumber::InvalidProcedureCall, statement);
    if (connection.State() != ObjectState::Open) Fail(ErrorNumber::ObjectNotSet, statement);
    database_.statements.push_back(statement);
    const auto failure = database_.failures.find(statement);
    if (failure != database_.failures.end()) throw failure->second;
    const auto answer = database_.results.find(statement);
    if (answer == database_.results.end()) Fail(ErrorNumber::InvalidProcedureCall, statement);
    rows_ = answer->second;
    row_ = 0;
    state_ = ObjectState::Open;
  }

  void Close() override {
    Note(database_.log_, QStringLiteral("CloseRecordset()"));
    CheckOpen();
    rows_ = {};
    state_ = ObjectState::Closed;
  }

  ObjectState State() const override { return state_; }

  int RecordCount() const override {
    CheckOpen();
    return static_cast<int>(rows_.rows.size());
  }

  bool EndOfFile() const override {
    CheckOpen();
    return row_ >= rows_.rows.size();
  }

  void MoveNext() override {
    CheckRow();
    ++row_;
  }

  QStringList ColumnNames() const override {
    CheckOpen();
    QStringList names;
    for (const FakeRows::Column &column : rows_.columns) names.append(column.name);
    return names;
  }

  int ColumnIndex(const QString &column) const override {
    CheckOpen();
    for (std::size_t index = 0; index < rows_.columns.size(); ++index) {
      if (rows_.columns[index].name.compare(column, Qt::CaseInsensitive) == 0) {
        return static_cast<int>(index);
      }
    }
    Fail(ErrorNumber::ElementNotFound, column);
  }

  QVariant ValueAt(int columnIndex) const override {
    CheckRow();
    CheckColumn(columnIndex);
    return rows_.rows[row_][static_cast<std::size_t>(columnIndex)];
  }

  ColumnType TypeAt(int columnIndex) const override {
    CheckOpen();
    CheckColumn(columnIndex);
    return rows_.columns[static_cast<std::size_t>(columnIndex)].type;
  }

 private:
  void CheckOpen() const {
    if (state_ != ObjectState::Open) Fail(ErrorNumber::ObjectNotSet, QStringLiteral("closed"));
  }

  void CheckRow() const {
    if (EndOfFile()) Fail(ErrorNumber::InputPastEnd, QStringLiteral("past the last row"));
  }

  void CheckColumn(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= rows_.columns.size()) {
      Fail(ErrorNumber::SubscriptOutOfRange, QStringLiteral("no such column"));
    }
  }

  FakeDatabase &database_;
  FakeRows rows_;
  std::size_t row_ = 0;
  ObjectState state_ = ObjectState::Closed;
};

class FakeConnection final : public DatabaseConnection {
 public:
  explicit FakeConnection(FakeDatabase &database) : database_(database) {}

  void Open(const QString &connectionText, const QString &user, const QString &password,
            int options) override {
    Note(database_.log_, QStringLiteral("OpenConnection(%1)").arg(connectionText));
    if (state_ == ObjectState::Open) Fail(ErrorNumber::InvalidProcedureCall, connectionText);
    database_.connectionText = connectionText;
    database_.user = user;
    database_.password = password;
    database_.openOptions = options;
    if (const auto failure = std::exchange(database_.openFailure, std::nullopt)) throw *failure;
    state_ = ObjectState::Open;
  }

  ObjectState State() const override { return state_; }

  QString Notice() const override { return database_.notice; }
  QString Defect() override { return database_.defect; }

  void Execute(const QString &statement, int options) override {
    Note(database_.log_, QStringLiteral("Execute(%1, %2)").arg(statement).arg(options));
    if (state_ != ObjectState::Open) Fail(ErrorNumber::ObjectNotSet, statement);
    database_.statements.push_back(statement);
    const auto failure = database_.failures.find(statement);
    if (failure != database_.failures.end()) throw failure->second;
  }

  std::unique_ptr<Recordset> CreateRecordset() override {
    ++database_.recordsetsMade;
    return std::make_unique<FakeRecordset>(database_);
  }

 private:
  FakeDatabase &database_;
  ObjectState state_ = ObjectState::Closed;
};

std::unique_ptr<DatabaseConnection> FakeDatabase::CreateConnection() {
  ++connectionsMade;
  Note(log_, QStringLiteral("CreateDatabaseConnection()"));
  return std::make_unique<FakeConnection>(*this);
}

std::unique_ptr<DatabaseConnection> FakeDatabase::ConnectEmptyCatalogue() {
  results[QStringLiteral("Select * from Project where Created = true")] = {};
  auto connection = CreateConnection();
  connection->Open({}, {}, {}, -1);
  return connection;
}

}  // namespace velor
