// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Conversions.h"
#include "tests/support/Checks.h"

#include <QStringList>

#include <limits>

namespace velor {
namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(CInt, ReadsWholeNumbersWithOuterBlanksAndSign) {
  EXPECT_EQ(CInt(u"7"), 7);
  EXPECT_EQ(CInt(u"  -12\t"), -12);
  EXPECT_EQ(CInt(u"+3"), 3);
  EXPECT_EQ(CInt(u"- 4"), -4);
  EXPECT_EQ(CInt(u"007"), 7);
}

TEST(CInt, RoundsTiesToEven) {
  EXPECT_EQ(CInt(u"0.5"), 0);
  EXPECT_EQ(CInt(u"1.5"), 2);
  EXPECT_EQ(CInt(u"2.5"), 2);
  EXPECT_EQ(CInt(u"-0.5"), 0);
  EXPECT_EQ(CInt(u"-1.5"), -2);
  EXPECT_EQ(CInt(u"-2.5"), -2);
  EXPECT_EQ(CInt(u"2.500001"), 3);
  EXPECT_EQ(CInt(2.49), 2);
}

TEST(CInt, ReadsDecimalsExponentsAndBits) {
  EXPECT_EQ(CInt(u".9"), 1);
  EXPECT_EQ(CInt(u"9."), 9);
  EXPECT_EQ(CInt(u"1.2e2"), 120);
  EXPECT_EQ(CInt(u"1D3"), 1000);
  EXPECT_EQ(CInt(u"1500E-3"), 2);
  EXPECT_EQ(CInt(u"&H1f"), 31);
  EXPECT_EQ(CInt(u"&HFFFF"), -1);
  EXPECT_EQ(CInt(u"&O17"), 15);
  EXPECT_EQ(CInt(u"&17"), 15);
}

TEST(CInt, OverflowsOutsideSixteenBits) {
  EXPECT_EQ(CInt(u"32767"), 32767);
  EXPECT_EQ(CInt(u"-32768"), -32768);
  EXPECT_EQ(CInt(u"32767.4"), 32767);
  for (const QString &text : QStringList{"32768", "-32769", "32767.5", "1e9", "1e400", "&H10000"}) {
    EXPECT_EQ(ErrorOf([&] { CInt(text); }), ErrorNumber::Overflow) << text.toStdString();
  }
  EXPECT_EQ(ErrorOf([] { CInt(NaN); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { CInt(-Infinity); }), ErrorNumber::Overflow);
}

TEST(CInt, RefusesWhatIsNoNumber) {
  for (const QString &text : QStringList{"", " ", "a", "1a", "1 2", ".", "-", "1e", "&H", "&HG",
                                         "1,000", "--1", "nan", "inf", "True", "\u0661", "1.2.3"}) {
    EXPECT_EQ(ErrorOf([&] { CInt(text); }), ErrorNumber::TypeMismatch) << text.toStdString();
  }
}

TEST(CLng, CoversThirtyTwoBits) {
  EXPECT_EQ(CLng(u"2147483647"), 2147483647);
  EXPECT_EQ(CLng(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(CLng(u"8388608"), 8388608);
  EXPECT_EQ(CLng(u"&HFFFF"), 65535);
  EXPECT_EQ(CLng(u"&HFFFFFFFF"), -1);
  EXPECT_EQ(CLng(4.5), 4);
  EXPECT_EQ(CLng(5.5), 6);
  EXPECT_EQ(ErrorOf([] { CLng(u"2147483648"); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { CLng(u"&H100000000"); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { CLng(2147483647.5); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { CLng(u"blue"); }), ErrorNumber::TypeMismatch);
}

TEST(CBool, ReadsWordsInAnyCaseAndNumbers) {
  EXPECT_TRUE(CBool(u"True"));
  EXPECT_TRUE(CBool(u"tRUE"));
  EXPECT_FALSE(CBool(u"FALSE"));
  EXPECT_TRUE(CBool(u"-1"));
  EXPECT_TRUE(CBool(u" 0.25 "));
  EXPECT_FALSE(CBool(u"0"));
  EXPECT_FALSE(CBool(u"0.0"));
  EXPECT_EQ(ErrorOf([] { CBool(u"yes"); }), ErrorNumber::TypeMismatch);
  EXPECT_EQ(ErrorOf([] { CBool(u""); }), ErrorNumber::TypeMismatch);
  EXPECT_EQ(ErrorOf([] { CBool(u"1e999"); }), ErrorNumber::Overflow);
}

TEST(Val, ReadsTheNumberThatATextStartsWith) {
  EXPECT_EQ(Val(u"12px"), 12);
  EXPECT_EQ(Val(u"  1 615 198th"), 1615198);
  EXPECT_EQ(Val(u"24 and 57"), 24);
  EXPECT_EQ(Val(u"-3.5e1x"), -35);
  EXPECT_EQ(Val(u"1e"), 1);
  EXPECT_EQ(Val(u"7.1.2"), 7.1);
  EXPECT_EQ(Val(u"1,5"), 1);
  EXPECT_EQ(Val(u"&H10 rest"), 16);
  EXPECT_EQ(Val(u"&HFFFF"), -1);
  EXPECT_EQ(Val(u"&HFFFFFF"), 16777215);
}

TEST(Val, IsZeroForATextThatStartsWithNoNumber) {
  for (const QString &text : QStringList{"", "abc", ".", "-", "&", "&HZ", "$5", "e5"}) {
    EXPECT_EQ(Val(text), 0) << text.toStdString();
  }
}

TEST(Val, IsFiniteEvenForANumberBeyondTheRange) {
  EXPECT_EQ(Val(u"1e400"), std::numeric_limits<double>::max());
  EXPECT_EQ(Val(u"-1e400"), -std::numeric_limits<double>::max());
}

TEST(IsNumeric, AcceptsWholeNumbersOnly) {
  for (const QString &text : QStringList{"1", " 2 ", "-3.5", "4e2", ".5", "&H1F"}) {
    EXPECT_TRUE(IsNumeric(text)) << text.toStdString();
  }
  for (const QString &text : QStringList{"", " ", "1x", "x", "1 2", "1e999", "."}) {
    EXPECT_FALSE(IsNumeric(text)) << text.toStdString();
  }
}

TEST(NumberText, IsShortestAndReadsBack) {
  EXPECT_EQ(NumberText(0.0), "0");
  EXPECT_EQ(NumberText(-0.0), "0");
  EXPECT_EQ(NumberText(100.0), "100");
  EXPECT_EQ(NumberText(1000000.0), "1000000");
  EXPECT_EQ(NumberText(0.1), "0.1");
  EXPECT_EQ(NumberText(-2.5), "-2.5");
  EXPECT_EQ(NumberText(1e20), "1E+20");
  EXPECT_EQ(NumberText(42), "42");
  EXPECT_EQ(NumberText(-42), "-42");
  for (const double value : {1.0 / 3, 1e-7, 123456.789, 5e-324, 1.7976931348623157e308}) {
    EXPECT_EQ(Val(NumberText(value)), value);
  }
}

TEST(BoolText, IsTrueOrFalseWithACapital) {
  EXPECT_EQ(BoolText(true), "True");
  EXPECT_EQ(BoolText(false), "False");
}

TEST(Trims, TellBlanksFromWhiteSpace) {
  EXPECT_EQ(TrimBlanks(u"  a b \t "), "a b \t");
  EXPECT_EQ(TrimBlanks(u"   "), "");
  EXPECT_EQ(TrimBlanks(u"\u00a0x"), QStringView(u"\u00a0x").toString());
  EXPECT_EQ(TrimWhiteSpace(u"\r\n\t a b \n"), "a b");
}

TEST(LowerCase, KeepsTheLengthAndKnowsNoLanguage) {
  EXPECT_EQ(LowerCase(u"<BODY Text=#FFAA>"), "<body text=#ffaa>");
  EXPECT_EQ(LowerCase(u"I"), "i");
  const QString dottedCapitalI = QString(QChar(0x0130));
  EXPECT_EQ(LowerCase(dottedCapitalI).size(), 1);
  EXPECT_EQ(LowerCase(u"\u00c4\u03a3"), QStringView(u"\u00e4\u03c3").toString());
  EXPECT_EQ(LowerCase(u"\U00010400"), QStringView(u"\U00010428").toString());
  QString everything;
  for (char32_t c = 1; c < 0x20000; ++c) {
    if (c < 0xD800 || c > 0xDFFF) everything += QStringView(QChar::fromUcs4(c)).toString();
  }
  EXPECT_EQ(LowerCase(everything).size(), everything.size());
  const QString halfPair = QString(QChar(0xD801));
  EXPECT_EQ(LowerCase(halfPair), halfPair);
}

}  // namespace
}  // namespace velor
