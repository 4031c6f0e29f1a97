// SPDX-License-Identifier: GPL-3.0-or-later
// How texts of a Jet catalogue compare.
#include "catalogue/TextCollation.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace velor {
namespace {

class TextCollationTest : public ::testing::Test {
 protected:
  TextCollationTest() {
    sqlite3_open(":memory:", &database_);
    AddTextCollation(database_);
  }
  ~TextCollationTest() override { sqlite3_close(database_); }

  QString Answer(const QByteArray &expression) {
    sqlite3_stmt *statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(database_, ("Select " + expression).constData(), -1, &statement,
                                 nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(database_);
    sqlite3_step(statement);
    const QByteArray text(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    return QString::fromUtf8(text);
  }

  bool AreEqual(const char *a, const char *b) {
    return Answer(QByteArray("'") + a + "' = '" + b + "' collate CATALOGUE") == u"1";
  }

  /// Whether every text comes before the next one, both ways round.
  void ExpectOrder(const std::vector<const char *> &texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      for (std::size_t j = i + 1; j < texts.size(); ++j) {
        const QByteArray a = QByteArray("'") + texts[i] + "' collate CATALOGUE";
        const QByteArray b = QByteArray("'") + texts[j] + "' collate CATALOGUE";
        EXPECT_EQ(Answer(a + " < " + b), QStringLiteral("1")) << texts[i] << " " << texts[j];
        EXPECT_EQ(Answer(b + " < " + a), QStringLiteral("0")) << texts[i] << " " << texts[j];
      }
    }
  }

  sqlite3 *database_ = nullptr;
};

TEST_F(TextCollationTest, IgnoresLetterCaseInEveryScript) {
  EXPECT_TRUE(AreEqual("Home Page", "hOME pAGE"));
  EXPECT_TRUE(AreEqual("ÄRGER", "ärger"));
  EXPECT_TRUE(AreEqual("МАЯК", "маяк"));
  EXPECT_TRUE(AreEqual("", ""));
}

TEST_F(TextCollationTest, TellsAccentsAndLengthsApart) {
  EXPECT_FALSE(AreEqual("resume", "résumé"));
  EXPECT_FALSE(AreEqual("page", "page "));
  EXPECT_FALSE(AreEqual("page1", "page01"));
}

TEST_F(TextCollationTest, OrdersAsADictionaryDoes) {
  ExpectOrder({"", " a", "''a", "10", "2", "Alpha", "alpha 2", "alphabet", "ärger", "Arm", "beta",
               "Été", "Zebra", "маяк", "中文", "日本"});
}

TEST_F(TextCollationTest, SeesAMarkThatFollowsAPlainLetter) {
  ExpectOrder({"eb", "e\u0301b", "ec"});
  EXPECT_TRUE(AreEqual("\u00e9t\u00e9", "e\u0301te\u0301"));
}

}  // namespace
}  // namespace velor
