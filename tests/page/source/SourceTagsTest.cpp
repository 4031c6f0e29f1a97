// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourcePlaces.h"
#include "page/source/SourceTags.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

QByteArray Names(QByteArrayView source) {
  QByteArray names;
  VisitTags(source, [&](const SourceTag &tag) {
    if (tag.kind == SourceTag::Kind::End) names += '/';
    names += tag.kind == SourceTag::Kind::Other ? QByteArray("!") : tag.name;
    names += ' ';
    return true;
  });
  return names.trimmed();
}

/// The text of the tag that belongs to the one at "|"; "-" for none.
QByteArray Partner(QByteArray marked) {
  const qsizetype position = marked.indexOf('|');
  marked.remove(position, 1);
  const auto pair = MatchingTags(marked, position);
  if (!pair || !pair->other) return "-";
  return QByteArray::number(pair->other->begin) + ' ' +
         marked.mid(pair->other->begin, pair->other->end - pair->other->begin);
}

/// The source with "|" where the place is found.
QString Found(const QString &source, const ElementPlaces &places) {
  const auto at = FindPlace(source, places);
  return at ? QString(source).insert(*at, u'|') : QStringLiteral("nowhere");
}

ElementPlaces At(QString marked) {
  const qsizetype position = marked.indexOf(u'|');
  return PlacesAt(marked.remove(position, 1), position);
}

}  // namespace

TEST(SourceTags, AreToldInTheirOrder) {
  EXPECT_EQ(Names("<!DOCTYPE html><HTML><p class=a>x<br/></P>"), "! html p br /p");
}

TEST(SourceTags, MarksInValuesCommentsAndScriptsAreNoTags) {
  EXPECT_EQ(Names("<a title='<b>' alt=\"a > b\">x</a>"), "a /a");
  EXPECT_EQ(Names("<!-- <b> --><i>"), "! i");
  EXPECT_EQ(Names("<script>if (a<b) '<p>'</script><style>a>b{}</style>"),
            "script /script style /style");
  EXPECT_EQ(Names("a < b <3 <"), "");
  EXPECT_EQ(Names("<a b='never closed>"), "a");
  EXPECT_EQ(Names(QByteArrayView("<p\0>\xff<b>", 8)), QByteArray("p\0 b", 4));
}

TEST(SourceTags, AStartTagKnowsItsEndTagAndBack) {
  EXPECT_EQ(Partner("<d|iv><div>a</div></div>"), "17 </div>");
  EXPECT_EQ(Partner("<div><d|iv>a</div></div>"), "11 </div>");
  EXPECT_EQ(Partner("<div><div>a</div></d|iv>"), "0 <div>");
  EXPECT_EQ(Partner("<b>1</b><b>2</|b>"), "8 <b>");
  EXPECT_EQ(Partner("<style>a{}</st|yle>"), "0 <style>");
}

TEST(SourceTags, WhatIsNotClosedHasNoPartner) {
  EXPECT_EQ(Partner("<b|r>text</br>"), "-");
  EXPECT_EQ(Partner("<p|>text"), "-");
  EXPECT_EQ(Partner("text</p|>"), "-");
  EXPECT_EQ(Partner("<p>te|xt</p>"), "-");
}

TEST(SourcePlaces, AreFoundByNameNumberAndOffset) {
  const QString source = QStringLiteral("<p>One</p>\r\n<p class=x>Two <b>bold</b></p>");
  EXPECT_EQ(Found(source, {{QStringLiteral("p"), 1, 0}}),
            QStringLiteral("<p>One</p>\r\n<p class=x>|Two <b>bold</b></p>"));
  EXPECT_EQ(Found(source, {{QStringLiteral("p"), 1, 6}}),
            QStringLiteral("<p>One</p>\r\n<p class=x>Two <b>bo|ld</b></p>"));
  EXPECT_EQ(Found(source, {{QStringLiteral("p"), 0, 99}}),
            QStringLiteral("<p>One|</p>\r\n<p class=x>Two <b>bold</b></p>"));
}

TEST(SourcePlaces, CountCharactersAsTheDocumentHasThem) {
  const QString source = QStringLiteral("<p>a&amp;\r\n\U0001F600<!-- x -->\u4e2db</p>");
  EXPECT_EQ(Found(source, {{QStringLiteral("p"), 0, 6}}),
            QStringLiteral("<p>a&amp;\r\n\U0001F600<!-- x -->\u4e2d|b</p>"));
}

TEST(SourcePlaces, AnElementThatTheSourceLacksGivesWayToTheOneAround) {
  const QString source = QStringLiteral("<table><tr><td>a</table>");
  EXPECT_EQ(Found(source, {{QStringLiteral("tbody"), 0, 0}, {QStringLiteral("table"), 0, 0}}),
            QStringLiteral("<table>|<tr><td>a</table>"));
  EXPECT_EQ(Found(source, {{QStringLiteral("tbody"), 0, 0}}), QStringLiteral("nowhere"));
  EXPECT_EQ(Found(source, {}), QStringLiteral("nowhere"));
}

TEST(SourcePlaces, AreToldInnermostFirst) {
  const ElementPlaces places = At(QStringLiteral("<body><p>One<p>Two <b>b|old</b></body>"));
  ASSERT_EQ(places.size(), 4u);
  EXPECT_EQ(places[0], (ElementPlace{QStringLiteral("b"), 0, 1}));
  EXPECT_EQ(places[1], (ElementPlace{QStringLiteral("p"), 1, 5}));
  EXPECT_EQ(places[3].name, QStringLiteral("body"));
}

TEST(SourcePlaces, WithinATagAreItsElement) {
  EXPECT_EQ(At(QStringLiteral("<p>a</p><p cl|ass=x>b</p>")).at(0),
            (ElementPlace{QStringLiteral("p"), 1, 0}));
  EXPECT_EQ(At(QStringLiteral("<p>a<im|g>b</p>")).at(0),
            (ElementPlace{QStringLiteral("img"), 0, 0}));
  EXPECT_EQ(At(QStringLiteral("<p>a<img>b|</p>")).at(0), (ElementPlace{QStringLiteral("p"), 0, 2}));
}

TEST(SourcePlaces, GoThereAndBack) {
  const QString source =
      QStringLiteral("<html><body>\r\n<p>One</p>\n<ul><li>a<li>b &copy; \u00e4</ul></body>");
  for (const QString &word : {QStringLiteral("One"), QStringLiteral("a<"), QStringLiteral("b &"),
                              QStringLiteral("&copy;"), QStringLiteral("\u00e4<")}) {
    const qsizetype position = source.indexOf(word);
    EXPECT_EQ(FindPlace(source, PlacesAt(source, position)), position) << qPrintable(word);
  }
}

}  // namespace velor
