// SPDX-License-Identifier: GPL-3.0-or-later
// The waves under unknown words, and what is done to these words. The program's part is played by a
// dictionary in the page: a word with two q in a row is unknown.
#include "tests/engine/bridge/BridgeFixture.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

class Waves : public BridgeFixture {
 protected:
  void Load(const QString &body, const QString &head = {}) {
    page_.Load(QStringLiteral("<!DOCTYPE html><html><head>%1</head><body>%2</body></html>")
                   .arg(head, body));
    text_ = Text(QStringLiteral("velor.serialize()"));
    Evaluate(
        QStringLiteral("globalThis.asked = [];"
                       "velor.host = {pushState() {}, pushMirror() {}, pushMouse() {},"
                       "  spellingWanted(json) {"
                       "    const {question, lines} = JSON.parse(json);"
                       "    asked.push(...lines);"
                       "    const places = ([text]) => [...text.matchAll(/[a-z]*qq[a-z]*/g)]"
                       "      .flatMap(({index, 0: {length}}) => [index, index + length]);"
                       "    queueMicrotask(() => velor.spelled(question, lines.map(places)));"
                       "  }};"
                       "velor.setSpelling(true)"));
  }
  /// Waits until that many waves are drawn.
  bool WavesCome(int count) {
    return Comes(QStringLiteral("getComputedStyle(document.head, '::before')"
                                ".backgroundImage.split('data:image').length === %1")
                     .arg(count + 1));
  }
  QString Asked() { return Text(QStringLiteral("JSON.stringify(asked)")); }

  QString text_;
};

TEST_F(Waves, AreUnderUnknownWordsAndNeverInThePage) {
  Load(QStringLiteral("<p>one tqqo three</p><p>a <b>wqq</b>ord</p>"));
  EXPECT_TRUE(WavesCome(3)) << "a word in two elements has one in each";
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), text_);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
  Evaluate(QStringLiteral("velor.setSpelling(false)"));
  EXPECT_TRUE(WavesCome(0));
}

TEST_F(Waves, EachStretchIsToldWithItsLanguage) {
  Load(QStringLiteral("<p>one</p><p lang=de>zwei <span lang=''>drei</span> <i lang=fr>quatre</i>"),
       QStringLiteral("<meta http-equiv=Content-Language content=en>"));
  ASSERT_TRUE(Comes(QStringLiteral("asked.length === 2")));
  EXPECT_EQ(Asked(), QStringLiteral("[[\"one\",[[0,\"en\"]]],"
                                    "[\"zwei drei quatre\",[[0,\"de\"],[5,\"\"],[9,\"de\"],"
                                    "[10,\"fr\"]]]]"));
}

TEST_F(Waves, CodeSignsAndWhatIsNotToBeTranslatedAreLeftOut) {
  Load(
      QStringLiteral("<p>a <code>qq</code> b <kbd>qq</kbd> c <span translate=no>qq</span> d"
                     " {{ qq }} e <span spellcheck=false>qq</span><pre>qq</pre><!-- qq -->"));
  ASSERT_TRUE(Comes(QStringLiteral("asked.length === 2")));
  EXPECT_FALSE(Asked().contains(QStringLiteral("qq"))) << Asked().toStdString();
  EXPECT_TRUE(Comes(QStringLiteral("asked[0][0].replace(/\\ufffc+/g, '') === 'a  b  c  d  e '")))
      << Asked().toStdString();
}

TEST_F(Waves, OnlyALineThatHasChangedIsAskedForAgain) {
  Load(QStringLiteral("<p id=x>one tqqo</p><p>three</p>"));
  ASSERT_TRUE(WavesCome(1));
  Evaluate(QStringLiteral("asked.length = 0; getSelection().collapse(x.firstChild, 3)"));
  page_.Type(QStringLiteral("s"));
  ASSERT_TRUE(Comes(QStringLiteral("asked.length > 0")));
  EXPECT_EQ(Asked(), QStringLiteral("[[\"ones tqqo\",[]]]"));
  EXPECT_TRUE(WavesCome(1));
}

TEST_F(Waves, TheWordThatIsBeingWrittenHasNoneUntilTheCaretLeavesIt) {
  Load(QStringLiteral("<p id=x>one </p>"));
  Evaluate(QStringLiteral("getSelection().collapse(x.firstChild, 4)"));
  page_.Type(QStringLiteral("tqq"));
  ASSERT_TRUE(Comes(QStringLiteral("asked.some(([text]) => text.includes('tqq'))")));
  EXPECT_TRUE(WavesCome(0));
  page_.Type(QStringLiteral(" a"));
  EXPECT_TRUE(WavesCome(1));
}

TEST_F(Waves, AChangeBetweenALookAndItsDrawingIsLookedAtToo) {
  Load(QStringLiteral("<p id=x>one</p>"));
  ASSERT_TRUE(Comes(QStringLiteral("asked.length === 1")));
  // The frame that the next look asks for; the line was judged, so that no answer is waited for.
  Evaluate(
      QStringLiteral("const frame = requestAnimationFrame;"
                     "globalThis.requestAnimationFrame = (draw) => {"
                     "  const isLook = /at look/.test(new Error().stack);"
                     "  if (isLook && x.textContent === 'one') x.firstChild.appendData(' tqqo');"
                     "  frame(draw);"
                     "};"
                     "getSelection().collapse(x.firstChild, 1)"));
  EXPECT_TRUE(WavesCome(1));
}

TEST_F(Waves, OnlyWhatIsInSightIsAskedFor) {
  Load(QStringLiteral("<p>first qq</p>") + QStringLiteral("<p>line of many</p>").repeated(2000) +
       QStringLiteral("<p>last qq</p>"));
  ASSERT_TRUE(WavesCome(1));
  EXPECT_LT(Evaluate(QStringLiteral("asked.length")).toInt(), 200);
  EXPECT_FALSE(Asked().contains(QStringLiteral("last")));
  Evaluate(QStringLiteral("document.body.lastElementChild.scrollIntoView()"));
  EXPECT_TRUE(Comes(QStringLiteral("asked.some(([text]) => text === 'last qq')")));
  EXPECT_TRUE(WavesCome(1));
}

TEST_F(Waves, AWordAtTheCaretIsCorrectedByItsOwnLineAlone) {
  Load(QStringLiteral("<p>line of many</p>").repeated(500) +
       QStringLiteral("<p id=x>a <b>tqqo</b>") +
       QStringLiteral("<p>line of many</p>").repeated(500));
  Evaluate(
      QStringLiteral("getSelection().collapse(x.querySelector('b').firstChild, 2);"
                     "globalThis.told = velor.spelledText('line')"));
  EXPECT_EQ(Text(QStringLiteral("JSON.stringify(told)")),
            QStringLiteral("{\"lines\":[[\"a tqqo\",[]]],\"from\":[0,4],\"to\":[0,4]}"));
  EXPECT_EQ(Evaluate(QStringLiteral("velor.correctWord([[0, 2, 6]], 'tqqo', 'two')")).toInt(), 1);
  EXPECT_EQ(Text(QStringLiteral("x.innerHTML")), QStringLiteral("a <b>two</b>"));
  Evaluate(QStringLiteral("velor.spelledText('line'); x.remove()"));
  EXPECT_EQ(Evaluate(QStringLiteral("velor.correctWord([[0, 2, 5]], 'two', 'to')")).toInt(), 0);
}

TEST_F(Waves, AVeryLongLineIsLeftOut) {
  Load(QStringLiteral("<p>") + QStringLiteral("many words qq ").repeated(5000) +
       QStringLiteral("</p>"));
  Evaluate(QStringLiteral("document.body.append(document.createElement('p'))"));
  EXPECT_TRUE(WavesCome(0));
  EXPECT_EQ(Evaluate(QStringLiteral("asked.length")).toInt(), 0);
}

TEST_F(Waves, WordsThatWereAddedAreAskedForAgain) {
  Load(QStringLiteral("<p>one tqqo</p>"));
  ASSERT_TRUE(WavesCome(1));
  Evaluate(
      QStringLiteral("asked.length = 0; velor.host.spellingWanted = (json) => {"
                     " const {question, lines} = JSON.parse(json); asked.push(...lines);"
                     " velor.spelled(question, lines.map(() => [])); }; velor.checkAgain()"));
  EXPECT_TRUE(Comes(QStringLiteral("asked.length === 1")));
  EXPECT_TRUE(WavesCome(0));
}

TEST_F(Waves, AWordIsToldSelectedAndCorrectedAsOneStep) {
  Load(QStringLiteral("<p>one\n  t<b>qq</b>o<!-- c --> three</p><p id=x>tqqo</p>"));
  Evaluate(QStringLiteral("getSelection().collapse(x.firstChild, 2)"));
  EXPECT_EQ(Text(QStringLiteral("JSON.stringify(velor.spelledText())")),
            QStringLiteral("{\"lines\":[[\"one tqqo three\",[]],[\"tqqo\",[]]],"
                           "\"from\":[1,2],\"to\":[1,2]}"));
  EXPECT_TRUE(Evaluate(QStringLiteral("velor.selectWord([0, 4, 8], 'tqqo')")).toBool());
  EXPECT_EQ(Text(QStringLiteral("String(getSelection())")), QStringLiteral("tqqo"));
  EXPECT_EQ(
      Evaluate(QStringLiteral("velor.correctWord([[0, 4, 8], [1, 0, 4]], 'tqqo', 'two')")).toInt(),
      2);
  EXPECT_EQ(Text(QStringLiteral("document.body.innerHTML")),
            QStringLiteral("<p>one\n  two<!-- c --> three</p><p id=\"x\">two</p>"));
  Evaluate(QStringLiteral("velor.exec(inside.Command.Undo)"));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), text_);
}

TEST_F(Waves, AWordThatIsGoneIsNeitherSelectedNorCorrected) {
  Load(QStringLiteral("<p id=x>one tqqo</p>"));
  Evaluate(QStringLiteral("velor.spelledText(); x.firstChild.data = 'one two three'"));
  EXPECT_FALSE(Evaluate(QStringLiteral("velor.selectWord([0, 4, 8], 'tqqo')")).toBool());
  EXPECT_EQ(Evaluate(QStringLiteral("velor.correctWord([[0, 4, 8]], 'tqqo', 'two')")).toInt(), 0);
  EXPECT_EQ(Text(QStringLiteral("x.textContent")), QStringLiteral("one two three"));
}

}  // namespace
}  // namespace velor
