// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/HtmlTokens.h"
#include "page/text/TemplateSigns.h"
#include "page/text/TextPlaces.h"

#include <QString>

#include <gtest/gtest.h>

namespace velor {

namespace {

TEST(TemplateSigns, EndWhereTheirLanguageEndsThem) {
  for (const char16_t *sign : {u"{{#each rows}}",
                               u"{{{raw}}}",
                               u"{{!-- a }} note --}}",
                               u"{% for r in rows %}",
                               u"{%- if a < b -%}",
                               u"{# a note #}",
                               u"<#list rows as r>",
                               u"</#list>",
                               u"<@row a=\">\"/>",
                               u"<#-- <tr> -->",
                               u"[#list rows as r]",
                               u"[[${name}]]",
                               u"[(${name})]",
                               u"${a['}']}",
                               u"$!{name}",
                               u"$row.cell(1).name",
                               u"#foreach($r in $rows.of(\")\"))",
                               u"#end",
                               u"#else",
                               u"#{if}",
                               u"#* a note *#",
                               u"@for (r of rows; track r.id) {",
                               u"@else {",
                               u"}"}) {
    const QString text = QString::fromUtf16(sign) + QStringLiteral("<tr>");
    EXPECT_EQ(TemplateSigns(text).EndOf(0, SignPlace::BetweenTags), QStringView(sign).size())
        << qPrintable(text);
  }
}

TEST(TemplateSigns, AreNotWhatOnlyBeginsLikeThem) {
  for (const char16_t *text : {u"{{ open", u"{ x }", u"<p>", u"<#", u"[x]", u"$5.00", u"# one",
                               u"#ends", u"@media (x) {", u"a", u"{% x }}"})
    EXPECT_EQ(TemplateSigns(text).EndOf(0, SignPlace::BetweenTags), 0);
  // Names and values of attributes.
  for (const char16_t *text :
       {u"[(model)]=\"a\"", u"[[a]]", u"##ff0000 size=2>", u"#name", u"@click=\"f() {\"", u"}"})
    EXPECT_EQ(TemplateSigns(text).EndOf(0, SignPlace::InTag), 0);
}

TEST(TemplateSigns, CostLittleWhereNothingClosesThem) {
  const QString text = QStringLiteral("{{$a(#if(<#x ").repeated(400'000);
  TemplateSigns signs(text);
  qsizetype found = 0;
  for (qsizetype at = 0; at < text.size(); ++at)
    found += signs.EndOf(at, SignPlace::BetweenTags) > at ? 1 : 0;
  EXPECT_LT(found, 2000);
}

/// The words of a page that stand between the parts of a table, joined.
QString MovedWords(const char *html) {
  const QString page = QString::fromUtf8(html);
  TextPlaces places;
  QString words;
  for (const HtmlToken &token : TokenizeHtml(page)) {
    if (token.kind == HtmlTokenKind::StartTag) places.StartTag(token.name);
    if (token.kind == HtmlTokenKind::EndTag) places.EndTag(token.name);
    if (token.kind == HtmlTokenKind::Word && places.IsBetweenTableParts())
      words += QStringView(page).sliced(token.offset, token.length);
  }
  return words;
}

TEST(TextPlaces, AreNotBetweenThePartsOfATable) {
  EXPECT_EQ(MovedWords("a<table>b<tr>c<td>d</td>e</tr>f</table>g"), QStringLiteral("bcef"));
  EXPECT_EQ(MovedWords("<table><caption>a</caption>b<tbody>c<tr><th>d<td>e<tr>f<td>g</table>h"),
            QStringLiteral("bcf"));
}

TEST(TextPlaces, AreInWhatStandsInTheCellOrBesideItsTable) {
  EXPECT_EQ(MovedWords("<table><tr><td>a<table>b<tr><td>c</table>d</td></tr></table>"),
            QStringLiteral("b"));
  EXPECT_EQ(MovedWords("<table><p>a<b>b</b></p>c<tr>d"), QStringLiteral("cd"));
  EXPECT_EQ(MovedWords("<table><form><input>a<img>b"), QStringLiteral("ab"));
  EXPECT_EQ(MovedWords("</table>a<td>b"), QString());
}

}  // namespace

}  // namespace velor
