// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetCipher.h"
#include "catalogue/jet/JetRow.h"
#include "catalogue/jet/JetText.h"
#include "tests/support/Checks.h"

#include <algorithm>
#include <bit>

namespace velor {
namespace {

JetBytes BytesOf(const QByteArray &bytes) {
  return {reinterpret_cast<const unsigned char *>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

QString Decoded(const QByteArray &bytes) {
  return DecodeJetText(BytesOf(bytes));
}

TEST(JetText, IsCompressedWhereTheColumnAllowsItAndEveryCharacterIsLatin1) {
  EXPECT_EQ(EncodeJetText(QStringLiteral("C:\\é"), JetCompression::WherePossible),
            "\xFF\xFE"
            "C:\\\xE9");
  EXPECT_EQ(EncodeJetText(QStringLiteral("abc"), JetCompression::Never),
            QByteArray("a\0b\0c\0", 6));
  EXPECT_EQ(EncodeJetText(QStringLiteral("ab"), JetCompression::WherePossible),
            QByteArray("a\0b\0", 4));
  EXPECT_EQ(EncodeJetText(QStringLiteral("ab中"), JetCompression::WherePossible),
            QByteArray("a\0b\0\x2D\x4E", 6));
}

TEST(JetText, IsCompressedUpToAThousandAndTwentyFourCharacters) {
  const QString longest(1024, u'a');
  EXPECT_EQ(EncodeJetText(longest, JetCompression::WherePossible)->size(), 1026);
  EXPECT_EQ(EncodeJetText(longest + u'a', JetCompression::WherePossible)->size(), 2050);
}

TEST(JetText, ThatCannotBeStoredIsRefused) {
  const QString withNull = QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
  EXPECT_FALSE(EncodeJetText(withNull, JetCompression::WherePossible));
  // Plain, it would be read as compressed text.
  EXPECT_FALSE(EncodeJetText(QChar(u'\xFEFF') + QStringLiteral("a"), JetCompression::Never));
}

TEST(JetText, IsReadInBothForms) {
  EXPECT_EQ(DecodeJetText({}), "");
  EXPECT_FALSE(DecodeJetText({}).isNull()) << "the empty text is not null";
  EXPECT_EQ(Decoded(QByteArray("a\0\x2D\x4E", 4)), QStringLiteral("a中"));
  EXPECT_EQ(Decoded("\xFF\xFE"
                    "abc\xE9"),
            QStringLiteral("abcé"));
  EXPECT_EQ(Decoded("\xFF\xFE"), "");
}

TEST(JetText, TogglesBetweenLatin1AndUtf16) {
  EXPECT_EQ(Decoded(QByteArray("\xFF\xFE"
                               "ab\0\x2D\x4E\x87\x65\0cd",
                               12)),
            QStringLiteral("ab中文cd"));
  EXPECT_EQ(Decoded(QByteArray("\xFF\xFE\0\x2D\x4E", 5)), QStringLiteral("中"));
}

TEST(JetText, ThatEndsInTheMiddleOfACharacterIsReadUpToThere) {
  EXPECT_EQ(Decoded(QByteArray("a\0b", 3)), "a");
  EXPECT_EQ(Decoded(QByteArray("\xFF\xFE"
                               "a\0\x2D",
                               5)),
            "a");
}

TEST(JetCipher, IsRc4) {
  QByteArray bytes("Plaintext");
  const std::array<unsigned char, 3> key = {'K', 'e', 'y'};
  ApplyRc4(key, {reinterpret_cast<unsigned char *>(bytes.data()),
                 static_cast<std::size_t>(bytes.size())});
  EXPECT_EQ(bytes.toHex(), "bbf316e8d940af0ad3");
}

/// Id Long at 0, When DateTime at 4, Flag Boolean; a deleted column of number 3 with variable index
/// 0; Name Text and Path Text with variable indexes 1 and 2.
JetTable Sample() {
  JetTable table;
  table.name = QStringLiteral("Sample");
  table.maximumColumns = 6;
  table.variableColumns = 3;
  const auto add = [&table](const char *name, JetType type, int number, JetStorageKind storage,
                            int place, int length) {
    JetColumn column;
    column.name = QString::fromLatin1(name);
    column.type = type;
    column.number = number;
    column.storage = storage;
    column.length = length;
    (storage == JetStorageKind::Fixed ? column.fixedOffset : column.variableIndex) = place;
    table.columns.push_back(column);
  };
  add("Id", JetType::Long, 0, JetStorageKind::Fixed, 0, 4);
  add("When", JetType::DateTime, 1, JetStorageKind::Fixed, 4, 8);
  add("Flag", JetType::Boolean, 2, JetStorageKind::Fixed, 0, 1);
  add("Name", JetType::Text, 4, JetStorageKind::Variable, 1, 100);
  add("Path", JetType::Text, 5, JetStorageKind::Variable, 2, 100);
  return table;
}

const JetColumn &Column(const JetTable &table, const char *name) {
  return table.columns[static_cast<std::size_t>(table.ColumnIndex(QString::fromLatin1(name)))];
}

QByteArray Number16(int value) {
  QByteArray bytes(2, '\0');
  jet::Put(reinterpret_cast<unsigned char *>(bytes.data()), static_cast<quint16>(value));
  return bytes;
}

QByteArray Number64(quint64 value) {
  QByteArray bytes(8, '\0');
  jet::Put(reinterpret_cast<unsigned char *>(bytes.data()), value);
  return bytes;
}

/// Id 7, When given, Flag on, "gone" in the deleted column, Name "ab", Path null.
QByteArray SampleRow(double when) {
  return Number16(6) + QByteArray("\7\0\0\0", 4) + Number64(std::bit_cast<quint64>(when)) + "gone" +
         QByteArray("a\0b\0", 4) + Number16(22) + Number16(22) + Number16(18) + Number16(14) +
         Number16(3) + QByteArray("\x1F", 1);
}

QVariant ValueIn(const JetTable &table, const QByteArray &row, const char *column) {
  const auto parsed = JetRow::Parse(table, BytesOf(row));
  return parsed ? JetFieldValue(Column(table, column), *parsed)
                : QVariant(QStringLiteral("no row"));
}

TEST(JetRow, GivesItsValues) {
  const JetTable table = Sample();
  const QByteArray row = SampleRow(37000.0);
  EXPECT_EQ(ValueIn(table, row, "Id"), 7);
  EXPECT_EQ(ValueIn(table, row, "When"), QStringLiteral("2001-04-19"));
  EXPECT_EQ(ValueIn(table, row, "Flag"), true);
  EXPECT_EQ(ValueIn(table, row, "Name"), QStringLiteral("ab"));
  EXPECT_FALSE(ValueIn(table, row, "Path").isValid());
}

TEST(JetRow, ShowsDatesAsIsoTextToTheSecond) {
  const JetTable table = Sample();
  const auto date = [&table](double when) { return ValueIn(table, SampleRow(when), "When"); };
  EXPECT_EQ(date(2.5), QStringLiteral("1900-01-01 12:00:00"));
  EXPECT_EQ(date(0.25), QStringLiteral("1899-12-30 06:00:00"));
  EXPECT_EQ(date(-1.25), QStringLiteral("1899-12-29 06:00:00"));
  EXPECT_EQ(date(37000.999999999), QStringLiteral("2001-04-20"));
  EXPECT_FALSE(date(1e300).isValid());
  EXPECT_FALSE(date(std::numeric_limits<double>::quiet_NaN()).isValid());
}

TEST(JetRow, KeepsEverythingElseWhenOneValueIsReplaced) {
  const JetTable table = Sample();
  const QByteArray old = SampleRow(37000.5);
  const auto parsed = JetRow::Parse(table, BytesOf(old));
  const QByteArray row =
      parsed->Replace(table, Column(table, "Name"), QByteArray("l\0o\0n\0g\0", 8));
  EXPECT_EQ(row.size(), old.size() + 4);
  EXPECT_EQ(row.left(18), old.left(18)) << "the fixed data and the deleted column's";
  EXPECT_EQ(ValueIn(table, row, "Name"), QStringLiteral("long"));
  EXPECT_EQ(ValueIn(table, row, "When"), QStringLiteral("2001-04-19 12:00:00"));
  EXPECT_EQ(ValueIn(table, row, "Flag"), true);
  EXPECT_FALSE(ValueIn(table, row, "Path").isValid());
}

TEST(JetRow, TakesNullAndTheEmptyTextAsTwoThings) {
  const JetTable table = Sample();
  const QByteArray old = SampleRow(1);
  const auto parsed = JetRow::Parse(table, BytesOf(old));
  EXPECT_FALSE(ValueIn(table, parsed->Replace(table, Column(table, "Name"), std::nullopt), "Name")
                   .isValid());
  EXPECT_EQ(ValueIn(table, parsed->Replace(table, Column(table, "Path"), QByteArray()), "Path"),
            QStringLiteral(""));
  EXPECT_EQ(parsed->Replace(table, Column(table, "Path"), std::nullopt), old);
}

TEST(JetRow, IsMadeLongerForAColumnThatItDoesNotReach) {
  const JetTable table = Sample();
  // Written when the table had only Id and the deleted column.
  const QByteArray old =
      Number16(1) + QByteArray("\7\0\0\0", 4) + Number16(6) + Number16(0) + QByteArray("\xFF", 1);
  const auto parsed = JetRow::Parse(table, BytesOf(old));
  ASSERT_TRUE(parsed);
  EXPECT_FALSE(JetFieldValue(Column(table, "Path"), *parsed).isValid());
  EXPECT_EQ(JetFieldValue(Column(table, "Flag"), *parsed), false);
  const QByteArray row = parsed->Replace(table, Column(table, "Path"), QByteArray("x\0", 2));
  EXPECT_EQ(ValueIn(table, row, "Id"), 7);
  EXPECT_EQ(ValueIn(table, row, "Path"), QStringLiteral("x"));
  EXPECT_EQ(ValueIn(table, row, "Flag"), false) << "unused bits of the old mask are not values";
  EXPECT_FALSE(ValueIn(table, row, "When").isValid());
  EXPECT_FALSE(ValueIn(table, row, "Name").isValid());
}

TEST(JetRow, OfBytesThatCannotBeOneIsNone) {
  const JetTable table = Sample();
  const QByteArray good = SampleRow(1);
  EXPECT_TRUE(JetRow::Parse(table, BytesOf(good)));
  EXPECT_FALSE(JetRow::Parse(table, {}));
  for (qsizetype size = 0; size < good.size(); ++size) {
    const QByteArray part = good.left(size);
    // Must not read past the end; most of them are no rows.
    JetRow::Parse(table, BytesOf(part));
  }
  QByteArray tooManyColumns = good;
  tooManyColumns[0] = 7;
  EXPECT_FALSE(JetRow::Parse(table, BytesOf(tooManyColumns)));
  QByteArray crossedOffsets = good;
  crossedOffsets[24] = 1;
  EXPECT_FALSE(JetRow::Parse(table, BytesOf(crossedOffsets)));
}

QVariant Fixed(JetType type, const QByteArray &stored, int scale = 0) {
  JetTable table;
  table.maximumColumns = 1;
  JetColumn column;
  column.type = type;
  column.storage = JetStorageKind::Fixed;
  column.length = static_cast<int>(stored.size());
  column.scale = scale;
  table.columns = {column};
  const QByteArray row = Number16(1) + stored + QByteArray("\1", 1);
  const auto parsed = JetRow::Parse(table, BytesOf(row));
  return JetFieldValue(column, *parsed);
}

TEST(JetValues, OfEveryNumberTypeAreRead) {
  EXPECT_EQ(Fixed(JetType::Byte, "\xFF"), 255);
  EXPECT_EQ(Fixed(JetType::Short, "\xFE\xFF"), -2);
  EXPECT_EQ(Fixed(JetType::Long, "\xFE\xFF\xFF\xFF"), -2);
  EXPECT_EQ(Fixed(JetType::Currency, Number64(12500)), 1.25);
  EXPECT_EQ(Fixed(JetType::Single, QByteArray("\0\0\xC0\x3F", 4)), 1.5);
  EXPECT_EQ(Fixed(JetType::Double, Number64(std::bit_cast<quint64>(-0.5))), -0.5);
  QByteArray numeric(17, '\0');
  numeric[0] = '\x80';
  numeric[13] = '\x39';
  numeric[14] = '\x30';
  EXPECT_EQ(Fixed(JetType::Numeric, numeric, 2), -123.45);
}

TEST(JetValues, OfGuidsAreText) {
  EXPECT_EQ(Fixed(JetType::Guid, QByteArray::fromHex("f9a420016a199e3fb9f523f31f914da7")),
            QStringLiteral("{0120A4F9-196A-3F9E-B9F5-23F31F914DA7}"));
}

TEST(JetValues, ThatAreTooShortForTheirTypeAreNull) {
  EXPECT_FALSE(Fixed(JetType::Long, "\1\2").isValid());
}

}  // namespace
}  // namespace velor
