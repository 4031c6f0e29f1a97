// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceText.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace velor {

namespace {

std::vector<SourceTextLine> LinesOf(const QString &source) {
  std::vector<SourceTextLine> lines;
  for (SourceTextReader reader(source); !reader.IsAtEnd();) lines.push_back(reader.Next());
  return lines;
}

/// The lines with text, without outer blanks; "*" for what is not judged, and "{de}" where a
/// language begins.
std::string Read(const char *source) {
  QStringList shown;
  for (const SourceTextLine &line : LinesOf(QString::fromUtf8(source))) {
    QString text = line.spelled.text;
    for (auto run = line.spelled.runs.rbegin(); run != line.spelled.runs.rend(); ++run)
      text.insert(run->start, u'{' + run->language + u'}');
    text = text.replace(QChar(0xFFFC), u'*').simplified();
    if (!text.isEmpty()) shown << text;
  }
  return shown.join(u'|').toStdString();
}

/// The source of a word of the first line that has it, its parts with "+" between them.
std::string SourceOf(const char *source, const char *word) {
  const QString text = QString::fromUtf8(source);
  for (const SourceTextLine &line : LinesOf(text)) {
    const QString wanted = QString::fromUtf8(word);
    const qsizetype at = line.spelled.text.indexOf(wanted);
    if (at < 0) continue;
    QStringList parts;
    for (const TextStretch &part : line.SourceOf(TextStretch{at, at + wanted.size()}))
      parts << text.sliced(part.start, part.end - part.start);
    return parts.join(u'+').toStdString();
  }
  return "nowhere";
}

}  // namespace

TEST(SourceText, TagsCommentsScriptsAndHeadsHaveNone) {
  EXPECT_EQ(Read("<!DOCTYPE html><HTML><HEAD><title>x</title><style>y{}</style></HEAD>"
                 "<BODY class='z'>one<!-- two --><script>three</script>"),
            "one");
  EXPECT_EQ(Read("<textarea>a</textarea><p title='b > c'>d<xmp>e</xmp><iframe>f</iframe>"), "d");
  EXPECT_EQ(Read("one<plaintext>two</plaintext>"), "one");
  EXPECT_EQ(Read("a < b & c <> <3"), "a < b & c <> <3");
  EXPECT_EQ(Read("one<p two"), "one");
}

TEST(SourceText, ALineEndsAtBlocksBreaksAndObjectsAndRunsThroughInlineElements) {
  EXPECT_EQ(Read("<p>ho<B>s</B>e<P>two</p>three<br>four<img src=x>five<hr>six"),
            "hose|two|three|four|five|six");
  EXPECT_EQ(Read("<table><tr><td>a<td>b</table><ul><li>c<li>d</ul>"), "a|b|c|d");
  EXPECT_EQ(Read("<p>one\r\n  two"), "one two");
}

TEST(SourceText, ServerCodeAndTemplateSignsHaveNone) {
  EXPECT_EQ(Read("one<% if (a > b) %>two<?php echo 'x > y'; ?> three<?= $z ?>"), "onetwo three");
  EXPECT_EQ(Read("<td <% if (a > b) %> class=x>one<a href=\"<%= \"c\" %>\">two</a>"), "onetwo");
  EXPECT_EQ(Read("one {{ name }} two {% if x > y %} ${z} three"), "one * two * * three");
  EXPECT_EQ(Read("a $b {c} #d"), "a $b {c} #d");
  EXPECT_EQ(Read("one<% never ends <p>two"), "one");
}

TEST(SourceText, CodeAndTextThatIsNotToBeTranslatedIsNotJudged) {
  EXPECT_EQ(Read("a<code>b<i>c</i></code>d<kbd>e</kbd><samp>f</samp><pre>g</pre>"), "a*d*|*");
  EXPECT_EQ(Read("<div translate=NO>a<b translate=yes>b</b>c</div>d"), "*b*|d");
  EXPECT_EQ(Read("<p spellcheck=\"false\">a<p spellcheck>b<p contenteditable=false>c"), "*|b|*");
  EXPECT_EQ(Read("a<select><option>b</select>c<button>d</button>e<video>f</video>g"),
            "a|*|c|*|e|*|g");
  EXPECT_EQ(Read("a<noscript>b</noscript><template>c</template>d"), "ad");
}

TEST(SourceText, TheLanguageIsThatOfTheNearestElementThatSaysOne) {
  EXPECT_EQ(Read("<html lang=en><p>a<b lang=de>b</b>c<p lang='fr'>d<p>e"),
            "{en}a{de}b{en}c|{fr}d|{en}e");
  EXPECT_EQ(Read("<ul lang=de><li lang=fr>a<li>b</ul>c"), "{fr}a|{de}b|c");
  EXPECT_EQ(Read("<table><tr lang=de><td lang=fr>a<td>b<tr><td>c</table>"), "{fr}a|{de}b|c");
  EXPECT_EQ(Read("<div lang=de><div></div>a</div>b</b>"), "{de}a|b");
  EXPECT_EQ(Read("<dl><dt lang=de>a<dd>b</dl><p lang=de>c<h2>d</h2>"), "{de}a|b|{de}c|d");
  EXPECT_EQ(Read("<p lang=de>a<span lang=''>b</span>"), "{de}a{}b");
}

TEST(SourceText, ThePagesOwnLanguageMayBeInItsHead) {
  EXPECT_EQ(Read("<meta http-equiv=Content-Language content=' de-AT, en'>a<p lang=en>b"),
            "{de-AT}a|{en}b");
  EXPECT_EQ(Read("<meta name=language content=de>a"), "a");
}

TEST(SourceText, ReferencesAreWhatTheyStandFor) {
  EXPECT_EQ(Read("caf&eacute; A&amp;B &lt;p> &#233;t&#xe9; &nope; &"), "café A&B <p> été &nope; &");
}

TEST(SourceText, AWordKnowsItsPlaceInTheSource) {
  EXPECT_EQ(SourceOf("<p>the hose in", "hose"), "hose");
  EXPECT_EQ(SourceOf("<p>ho<B>s</B>e<!-- x -->d", "hosed"), "ho+s+e+d");
  EXPECT_EQ(SourceOf("<p>un caf&eacute;s ici", "cafés"), "caf&eacute;s");
  EXPECT_EQ(SourceOf("<i>{{ a }}</i> hose", "hose"), "hose");
  EXPECT_EQ(SourceOf("<code>abc</code> \U0001F600 hose", "hose"), "hose");
}

TEST(SourceText, LinesTileTheSourceAndCanBeReadAgainFromWhereTheyBegin) {
  const QString source = QStringLiteral(
      "<html lang=en><head><title>x</title></head><body><p>one<div lang=de><p>zwei<b>drei</b>"
      "<p><code>x</code>vier</div>&copy; five<br>six</body></html>\r\n");
  qsizetype end = 0;
  for (SourceTextReader reader(source); !reader.IsAtEnd();) {
    const SourceTextState state = reader.State();
    const SourceTextLine line = reader.Next();
    EXPECT_EQ(line.begin, end);
    end = line.end;
    const SourceTextLine again = SourceTextReader(source.left(line.end), line.begin, state).Next();
    EXPECT_EQ(again.spelled, line.spelled) << line.spelled.text.toStdString();
  }
  EXPECT_EQ(end, source.size());
}

TEST(SourceText, StatesAreTheSameWhereTheSameElementsAreOpen) {
  const auto after = [](const char *text) {
    const QString source = QString::fromUtf8(text);
    SourceTextReader reader(source);
    while (!reader.IsAtEnd()) reader.Next();
    return reader.State();
  };
  EXPECT_EQ(after("<div lang=de>a<p>b</p>"), after("<div lang=de><b>x</b>"));
  EXPECT_FALSE(after("<div lang=de>a") == after("<div lang=fr>a"));
  EXPECT_FALSE(after("<div>a") == after("<div><div>a"));
  EXPECT_FALSE(after("<div>a") == after("a"));
}

TEST(SourceText, HostileSourceIsReadToItsEnd) {
  const QString deep = QStringLiteral("<b>").repeated(200'000) + QStringLiteral("word");
  EXPECT_EQ(LinesOf(deep).back().spelled.text, QStringLiteral("word"));
  const QString one = QStringLiteral("word ").repeated(50'000);
  const auto lines = LinesOf(one);
  EXPECT_GT(lines.size(), 5U) << "no line is very long";
  EXPECT_EQ(lines.back().end, one.size());
  EXPECT_EQ(LinesOf(QStringLiteral("{{").repeated(3'000)).back().end, 6'000);
}

}  // namespace velor
