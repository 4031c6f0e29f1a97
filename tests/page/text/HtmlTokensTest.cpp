// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/HtmlTokens.h"

#include <QStringList>

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <utility>

namespace velor {

namespace {

QString Slices(const QString &html) {
  QStringList slices;
  for (const HtmlToken &token : TokenizeHtml(html))
    slices += html.sliced(token.offset, token.length);
  return slices.join(u'|');
}

std::vector<std::uint64_t> Keys(const QString &html) {
  std::vector<std::uint64_t> keys;
  for (const HtmlToken &token : TokenizeHtml(html)) keys.push_back(token.key);
  return keys;
}

struct Cut {
  const char16_t *html;
  const char16_t *slices;
};
class HtmlCuts : public ::testing::TestWithParam<Cut> {};

TEST_P(HtmlCuts, APageIsCutWhereAParserSeesItsParts) {
  EXPECT_EQ(Slices(QString::fromUtf16(GetParam().html)), QString::fromUtf16(GetParam().slices));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, HtmlCuts,
    ::testing::Values(Cut{u"", u""}, Cut{u"one two", u"one| |two"}, Cut{u"a  \t b", u"a|  \t |b"},
                      Cut{u"a\r\nb\rc\nd", u"a|\r\n|b|\r|c|\n|d"}, Cut{u"don't", u"don|'|t"},
                      Cut{u"caf&eacute;s &amp x", u"caf&eacute;s| |&amp| |x"},
                      Cut{u"\u4e2d\u6587", u"\u4e2d|\u6587"}, Cut{u"a\u00a0b", u"a|\u00a0|b"},
                      Cut{u"1 < 2 <3", u"1| |<| |2| |<|3"}, Cut{u"x<", u"x|<"},
                      Cut{u"a<b", u"a|<b"}, Cut{u"<!DOCTYPE html>\n<p>", u"<!DOCTYPE html>|\n|<p>"},
                      Cut{u"<a href='>' x>t</a >", u"<a href='>' x>|t|</a >"},
                      Cut{u"<!-- a > -- b --><p>", u"<!-- a > -- b -->|<p>"},
                      Cut{u"<!--><p>", u"<!-->|<p>"}, Cut{u"<!--->x", u"<!--->|x"},
                      Cut{u"<!-- a --!>b", u"<!-- a --!>|b"}, Cut{u"<?php a ?>b", u"<?php a ?>|b"},
                      Cut{u"</>a</ b>c", u"</>|a|</ b>|c"}, Cut{u"<![CDATA[a]]>", u"<![CDATA[a]]>"},
                      Cut{u"<svg><![CDATA[a<b]]></svg>", u"<svg>|a|<|b|</svg>"},
                      Cut{u"<svg><title><b>x</title></svg>",
                          u"<svg>|<title>|<b>|x|</title>|</svg>"},
                      Cut{u"<svg><style><a></style>", u"<svg>|<style>|<a>|</style>"},
                      Cut{u"<svg><p><style><a></style>", u"<svg>|<p>|<style>|<a>|</style>"},
                      Cut{u"<title>a <b> &amp;</title>", u"<title>|a| |<|b|>| |&amp;|</title>"},
                      Cut{u"<script>a<b>\n&amp;</script>", u"<script>|a<b>|\n|&amp;|</script>"},
                      Cut{u"<script></scripts></script>", u"<script>|</scripts>|</script>"},
                      Cut{u"<script><!--<script></script>--></script>x",
                          u"<script>|<!--<script></script>-->|</script>|x"},
                      Cut{u"<script><!--</script>x", u"<script>|<!--|</script>|x"},
                      Cut{u"<STYLE>p{}</style>", u"<STYLE>|p{}|</style>"},
                      Cut{u"<plaintext><b>", u"<plaintext>|<b>"},
                      Cut{u"<pre>\r\n\na</pre>", u"<pre>\r\n|\n|a|</pre>"},
                      Cut{u"<textarea>\n<b></textarea>", u"<textarea>\n|<|b|>|</textarea>"},
                      Cut{u"<noscript><p></noscript>", u"<noscript>|<p>|</noscript>"},
                      Cut{u"<p", u"<p"}, Cut{u"<p a=\"x", u"<p a=\"x"},
                      Cut{u"<p/><br/ >", u"<p/>|<br/ >"}));

TEST(Serialisations, EndAnElementThatNoPageCanEnd) {
  const QString html = QStringLiteral("<plaintext><b></plaintext>\n</plaintext></body>");
  const std::vector<HtmlToken> tokens = TokenizeHtml(html, HtmlOrigin::Serialisation);
  ASSERT_GT(tokens.size(), 3U);
  EXPECT_EQ(tokens[1].kind, HtmlTokenKind::Raw);
  EXPECT_EQ(tokens.back().kind, HtmlTokenKind::EndTag);
  EXPECT_EQ(tokens[tokens.size() - 2].offset, html.lastIndexOf(QStringLiteral("</plaintext>")));
}

struct Same {
  const char16_t *one;
  const char16_t *other;
};
class SameMeaning : public ::testing::TestWithParam<Same> {};

TEST_P(SameMeaning, TwoWaysToWriteOneThingHaveOneKey) {
  EXPECT_EQ(Keys(QString::fromUtf16(GetParam().one)), Keys(QString::fromUtf16(GetParam().other)));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, SameMeaning,
    ::testing::Values(Same{u"caf&eacute;", u"caf\u00e9"}, Same{u"&#233;t&#xE9", u"\u00e9t\u00e9"},
                      Same{u"&#146;", u"\u2019"}, Same{u"&copy2", u"\u00a92"},
                      Same{u"a\r\nb\rc", u"a\nb\nc"}, Same{u"&notit;", u"\u00acit;"},
                      Same{u"&NotEqualTilde;", u"\u2242\u0338"},
                      Same{u"<P ALIGN=left>", u"<p align=\"left\">"},
                      Same{u"<a b c=''>", u"<a b=\"\" c>"}, Same{u"<p a=1 A=2>", u"<p a=1>"},
                      Same{u"<image src=x>", u"<img src=x>"}, Same{u"<br/>", u"<br>"},
                      Same{u"<a href=?a&copy=1&amp;b>", u"<a href='?a&copy=1&b'>"},
                      Same{u"<p a=x/>", u"<p a='x/'>"}, Same{u"<?php 1 ?>", u"<!--?php 1 ?-->"},
                      Same{u"<!ELEMENT a>", u"<!--ELEMENT a-->"}, Same{u"</P>", u"</p >"},
                      Same{u"<!-- a\r\nb -->", u"<!-- a\nb -->"}, Same{u"&#1234567890;", u"\ufffd"},
                      Same{u"<pre>\nx", u"<pre>x"}, Same{u"&lt;&#32;&gt;", u"< >"}));

TEST(HtmlTokens, DifferentThingsHaveDifferentKeys) {
  const char16_t *const texts[] = {
      u"a",        u"A",      u"b",       u" ",           u"  ",       u"<a>",
      u"</a>",     u"<a b>",  u"<a b=c>", u"<a c=b>",     u"<!--a-->", u"<ab>",
      u"\n",       u"\u00a0", u"ab",      u"<a bc=\"\">", u"<a b c>",  u"<a b='' c=x>",
      u"<a c=x b>"};
  std::vector<std::uint64_t> keys;
  for (const char16_t *text : texts) {
    const auto all = Keys(QString::fromUtf16(text));
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(std::count(keys.begin(), keys.end(), all[0]), 0)
        << qPrintable(QString::fromUtf16(text));
    keys.push_back(all[0]);
  }
}

TEST(HtmlTokens, AWordIsTheSameWithNulsInIt) {
  EXPECT_EQ(Keys(QString::fromUtf16(u"w\0o\0rd", 6)), Keys(QStringLiteral("word")));
}

TEST(HtmlTokens, ATagComesApartIntoItsAttributes) {
  const QString html = QStringLiteral("x<IMG SRC = 'a b' alt=\"&lt;\" ismap width=3/>");
  const HtmlTagParts tag = ReadHtmlTag(html, 1);
  ASSERT_EQ(tag.attributes.size(), 4U);
  EXPECT_EQ(html.sliced(tag.name, tag.nameLength), u"IMG");
  EXPECT_EQ(tag.attributes[0].NameIn(html), u"SRC");
  EXPECT_EQ(tag.attributes[0].ValueIn(html), u"a b");
  EXPECT_EQ(tag.attributes[0].quote, u'\'');
  EXPECT_EQ(HtmlAttributeValue(tag.attributes[1].ValueIn(html)), u"<");
  EXPECT_EQ(tag.attributes[2].value, -1);
  EXPECT_EQ(tag.attributes[3].ValueIn(html), u"3/");
  EXPECT_EQ(tag.end, html.size());
  EXPECT_TRUE(tag.isClosed);
}

TEST(HtmlTokens, TheNthTagOfANameIsFoundByItsKeyInAnyLetterCase) {
  const QString html = QStringLiteral("<!--<td>--><TD>a<td class=x>b<script>'<td>'</script><Td>c");
  std::vector<int> places;
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (token.kind == HtmlTokenKind::StartTag && token.name == HtmlNameKey(u"td"))
      places.push_back(token.offset);
  }
  EXPECT_EQ(places, (std::vector<int>{11, 16, 52}));
}

/// What markup and its hazards are made of.
class RandomMarkup {
 public:
  QString Text(int parts) {
    QString html;
    for (int part = 0; part < parts; ++part) html += QStringView(Pieces[Below(std::size(Pieces))]);
    return html;
  }
  /// The text with one stretch exchanged.
  QString Edited(QString html) {
    const qsizetype start = Below(static_cast<std::size_t>(html.size()) + 1);
    const qsizetype length = std::min<qsizetype>(Below(12), html.size() - start);
    return html.replace(start, length, Text(static_cast<int>(Below(3))));
  }

 private:
  static constexpr char16_t Pieces[][12] = {
      u"<",        u">",      u"a",      u" ",   u"&",    u"&amp;",     u"\r",
      u"\n",       u"<p ",    u"=\"",    u"'",   u"<!--", u"-->",       u"</",
      u"/",        u"<svg>",  u"</svg>", u"<b>", u"</b>", u"<pre>",     u"<script>",
      u"</script", u"\xd83d", u"&#x",    u"]]>", u"<td>", u"<![CDATA[", u"<title>"};

  qsizetype Below(std::size_t limit) { return static_cast<qsizetype>(random_() % limit); }

  std::mt19937 random_{7};
};

TEST(HtmlTokens, EveryTextIsCutInOrderWithoutOverlap) {
  RandomMarkup markup;
  for (int round = 0; round < 3000; ++round) {
    const QString html = markup.Text(24);
    int end = 0;
    for (const HtmlToken &token : TokenizeHtml(html)) {
      ASSERT_GE(token.offset, end) << qPrintable(html);
      ASSERT_GT(token.length, 0) << qPrintable(html);
      end = token.End();
      ASSERT_LE(end, html.size()) << qPrintable(html);
    }
  }
}

TEST(HtmlTokens, AnEditedTextIsCutFromTheOneBeforeAsFromNothing) {
  RandomMarkup markup;
  for (int text = 0; text < 1000; ++text) {
    QString html = markup.Text(40);
    std::vector<HtmlToken> tokens = TokenizeHtml(html);
    for (int edit = 0; edit < 20; ++edit) {
      const QString after = markup.Edited(html);
      tokens = TokenizeHtmlLike(after, html, std::move(tokens));
      ASSERT_EQ(tokens, TokenizeHtml(after)) << qPrintable(html) << "\n" << qPrintable(after);
      html = after;
    }
  }
}

}  // namespace

}  // namespace velor
