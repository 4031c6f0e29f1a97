// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/FillList.h"
#include "projects/RecordsetReader.h"
#include "projects/RowTable.h"
#include "projects/Values.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeDatabase.h"

#include <algorithm>

namespace velor {
namespace {

const QString Statement = QStringLiteral("Select * from Things");

class NotedList final : public ListControl {
 public:
  explicit NotedList(CallLog &log) : log_(log) {}
  const RowTable *array = nullptr;

  void SetArray(const RowTable &table) override {
    array = &table;
    log_.push_back(QStringLiteral("Array"));
  }
  void ReBind() override { log_.push_back(QStringLiteral("ReBind")); }
  void Refresh() override { log_.push_back(QStringLiteral("Refresh")); }
  void FillFailed(const QString &description) override { failure = description; }
  QString failure;

 private:
  CallLog &log_;
};

TEST(RowTable, BeginsWithoutRows) {
  const RowTable table(2);
  EXPECT_EQ(table.HighestRow(), 0);
  EXPECT_EQ(table.HighestColumn(), 2);
}

TEST(RowTable, CountsRowsFromOneAndColumnsFromZero) {
  RowTable table(1);
  EXPECT_EQ(table.AppendRow(), 1);
  EXPECT_EQ(table.AppendRow(), 2);
  table.At(2, 0) = QStringLiteral("b");
  table.At(1, 1) = 5;
  EXPECT_EQ(table.At(2, 0), QVariant(QStringLiteral("b")));
  EXPECT_EQ(table.At(1, 1), QVariant(5));
  EXPECT_FALSE(table.At(1, 0).isValid());
}

TEST(RowTable, RefusesWhatLiesOutside) {
  RowTable table(1);
  table.AppendRow();
  const std::pair<int, int> outside[] = {{0, 0}, {2, 0}, {1, -1}, {1, 2}};
  for (const auto &place : outside) {
    EXPECT_EQ(ErrorOf([&] { table.At(place.first, place.second); }),
              ErrorNumber::SubscriptOutOfRange);
  }
}

struct ValueCase {
  ColumnType type;
  QVariant value;
  QVariant kept;
};

class NormalisedValueTest : public testing::TestWithParam<ValueCase> {};

TEST_P(NormalisedValueTest, FollowsTheTypeOfTheColumn) {
  const QVariant kept = NormalisedValue(GetParam().value, GetParam().type);
  EXPECT_EQ(kept, GetParam().kept);
  EXPECT_EQ(kept.typeId(), GetParam().kept.typeId());
}

QVariant Text(const char *text) {
  return QString::fromUtf8(text);
}
QVariant Short(std::int16_t value) {
  return QVariant::fromValue(value);
}

INSTANTIATE_TEST_SUITE_P(
    TextsAndDates, NormalisedValueTest,
    testing::Values(ValueCase{ColumnType::VarChar, Text("  a b  "), Text("a b")},
                    ValueCase{ColumnType::LongVarChar, Text(" \ta\n "), Text("\ta\n")},
                    ValueCase{ColumnType::VarWideChar, {}, Text("")},
                    ValueCase{ColumnType::LongVarWideChar, 12, Text("12")},
                    ValueCase{ColumnType::Date, Text(" 2004-05-06 "), Text("2004-05-06")},
                    ValueCase{ColumnType::Date, {}, Text("")}));

INSTANTIATE_TEST_SUITE_P(TruthValues, NormalisedValueTest,
                         testing::Values(ValueCase{ColumnType::Boolean, true, Short(-1)},
                                         ValueCase{ColumnType::Boolean, -1, Short(-1)},
                                         ValueCase{ColumnType::Boolean, 1, Short(-1)},
                                         ValueCase{ColumnType::Boolean, 0, Short(0)},
                                         ValueCase{ColumnType::Boolean, false, Short(0)},
                                         ValueCase{ColumnType::Boolean, {}, Short(0)}));

INSTANTIATE_TEST_SUITE_P(EverythingElse, NormalisedValueTest,
                         testing::Values(ValueCase{ColumnType::Integer, 12, 12.0},
                                         ValueCase{ColumnType::Double, 2.5, 2.5},
                                         ValueCase{ColumnType::Integer, {}, 0.0},
                                         ValueCase{ColumnType::Double, Text(" 12 apples"), 12.0},
                                         ValueCase{ColumnType::Double, Text("apples"), 0.0},
                                         ValueCase{static_cast<ColumnType>(72), Text("{1F2}"), 0.0},
                                         ValueCase{static_cast<ColumnType>(6), Text("-3.25"),
                                                   -3.25}));

class FillListTest : public testing::Test {
 protected:
  FillListTest() {
    connection->Open({}, {}, {}, -1);
    FakeRows rows;
    rows.columns = {{QStringLiteral("Id"), ColumnType::Integer},
                    {QStringLiteral("Name"), ColumnType::VarWideChar},
                    {QStringLiteral("Ignored"), ColumnType::VarWideChar},
                    {QStringLiteral("Made"), ColumnType::Boolean}};
    rows.rows = {{1, QStringLiteral(" one "), QStringLiteral("x"), -1},
                 {2, QVariant(), QStringLiteral("x"), 0},
                 {1, QStringLiteral("again"), QStringLiteral("x"), QVariant()}};
    database.results[Statement] = rows;
    log.clear();
  }

  std::int16_t Fill(LeadingColumn leading = LeadingColumn::None, std::int32_t key = 0,
                    const QString &keyColumn = {},
                    const QStringList &names = {QStringLiteral("name"), QStringLiteral("ID"),
                                                QStringLiteral("Made")}) {
    return FillList(list, table, Statement, leading, key, keyColumn, names, *connection);
  }

  CallLog log;
  FakeDatabase database{&log};
  std::unique_ptr<DatabaseConnection> connection = database.CreateConnection();
  NotedList list{log};
  RowTable table;
};

TEST_F(FillListTest, CopiesTheNamedColumnsInTheirOrder) {
  EXPECT_EQ(Fill(), 0);
  ASSERT_EQ(table.HighestRow(), 3);
  ASSERT_EQ(table.HighestColumn(), 2);
  EXPECT_EQ(table.At(1, 0), Text("one"));
  EXPECT_EQ(table.At(1, 1), QVariant(1.0));
  EXPECT_EQ(table.At(1, 2), Short(-1));
  EXPECT_EQ(table.At(2, 0), Text(""));
  EXPECT_EQ(table.At(3, 2), Short(0));
}

TEST_F(FillListTest, ReadsAFreshResultSetAndRebuildsTheListOnce) {
  Fill();
  EXPECT_EQ(log, (CallLog{QStringLiteral("SetCursorLocation(3)"),
                          QStringLiteral("OpenRecordset(Select * from Things, 3, 1, -1)"),
                          QStringLiteral("Array"), QStringLiteral("ReBind"),
                          QStringLiteral("Refresh"), QStringLiteral("Refresh")}));
  EXPECT_EQ(list.array, &table);
  Fill();
  EXPECT_EQ(database.recordsetsMade, 2);
}

TEST_F(FillListTest, EmptiesTheTableFirst) {
  Fill();
  Fill(LeadingColumn::None, 0, {}, {QStringLiteral("Id")});
  EXPECT_EQ(table.HighestRow(), 3);
  EXPECT_EQ(table.HighestColumn(), 0);
}

TEST_F(FillListTest, KeepsALeadingColumnOfNoughts) {
  Fill(LeadingColumn::Reserved, 0, {}, {QStringLiteral("Name")});
  ASSERT_EQ(table.HighestColumn(), 1);
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(table.At(row, 0), QVariant(0.0));
  EXPECT_EQ(table.At(1, 1), Text("one"));
}

TEST_F(FillListTest, AnswersTheLastRowWithTheKey) {
  EXPECT_EQ(Fill(LeadingColumn::None, 1, QStringLiteral("Id")), 3);
  EXPECT_EQ(Fill(LeadingColumn::None, 2, QStringLiteral("id")), 2);
  EXPECT_EQ(Fill(LeadingColumn::None, 7, QStringLiteral("Id")), 0);
  EXPECT_EQ(Fill(LeadingColumn::None, 1, {}), 0);
}

TEST_F(FillListTest, FindsNoKeyInNullOrText) {
  EXPECT_EQ(Fill(LeadingColumn::None, 0, QStringLiteral("Name")), 0);
  EXPECT_EQ(Fill(LeadingColumn::None, -1, QStringLiteral("Made")), 1);
  EXPECT_EQ(Fill(LeadingColumn::None, 0, QStringLiteral("Made")), 2);
}

TEST_F(FillListTest, ShowsAnEmptyListForNoRows) {
  database.results[Statement].rows.clear();
  EXPECT_EQ(Fill(), 0);
  EXPECT_EQ(table.HighestRow(), 0);
  EXPECT_EQ(table.HighestColumn(), 2);
  EXPECT_EQ(log.back(), QStringLiteral("Refresh"));
}

TEST_F(FillListTest, AFailingStatementEmptiesTheListWhichIsToldWhy) {
  Fill();
  log.clear();
  database.results.clear();
  EXPECT_EQ(Fill(), 0);
  EXPECT_EQ(table.HighestRow(), 0);
  EXPECT_EQ(table.HighestColumn(), 2);
  EXPECT_EQ(std::count(log.begin(), log.end(), QStringLiteral("ReBind")), 1);
  EXPECT_FALSE(list.failure.isEmpty());
}

TEST_F(FillListTest, AnUnknownColumnEmptiesTheListToo) {
  Fill();
  EXPECT_EQ(Fill(LeadingColumn::None, 0, {}, {QStringLiteral("Nowhere")}), 0);
  EXPECT_EQ(Fill(LeadingColumn::None, 1, QStringLiteral("Nowhere")), 0);
  EXPECT_EQ(table.HighestRow(), 0);
}

TEST_F(FillListTest, AsksForNoColumnWhereThereAreNoRows) {
  Fill();
  database.results[Statement].rows.clear();
  EXPECT_EQ(Fill(LeadingColumn::None, 1, QStringLiteral("Nowhere"), {QStringLiteral("Nowhere")}),
            0);
  EXPECT_EQ(table.HighestRow(), 0);
  EXPECT_EQ(log.back(), QStringLiteral("Refresh"));
}

TEST_F(FillListTest, FailsWhereTheRowNumberLeavesSixteenBits) {
  auto &rows = database.results[Statement].rows;
  rows.assign(40000, rows.front());
  EXPECT_EQ(Fill(LeadingColumn::None, 1, QStringLiteral("Id")), 32767);
  EXPECT_EQ(Fill(), 0);
  EXPECT_EQ(table.HighestRow(), 40000);
}

TEST(OpenRecordset, ClosesWhatIsOpenFirst) {
  CallLog log;
  FakeDatabase database(&log);
  database.results[Statement] = {};
  const auto connection = database.CreateConnection();
  connection->Open({}, {}, {}, -1);
  const auto records = connection->CreateRecordset();
  log.clear();
  OpenRecordset(*records, Statement, *connection);
  OpenRecordset(*records, Statement, *connection);
  const QString location = QStringLiteral("SetCursorLocation(3)");
  const QString open = QStringLiteral("OpenRecordset(Select * from Things, 3, 1, -1)");
  EXPECT_EQ(log, (CallLog{location, open, QStringLiteral("CloseRecordset()"), location, open}));
}

TEST(ExecuteSql, GoesStraightToTheConnection) {
  CallLog log;
  FakeDatabase database(&log);
  const auto connection = database.CreateConnection();
  connection->Open({}, {}, {}, -1);
  log.clear();
  ExecuteSql(*connection, QStringLiteral("Update Things set Id = 1"));
  EXPECT_EQ(log, CallLog{QStringLiteral("Execute(Update Things set Id = 1, -1)")});
}

}  // namespace
}  // namespace velor
