// SPDX-License-Identifier: GPL-3.0-or-later
// What is dragged within a page and into it: moved or copied to where it is let go, as one step.
#include "tests/engine/bridge/ObjectsFixture.h"

namespace velor {
namespace {

class Drags : public Objects {
 protected:
  /// Drags to just before or behind the text of an element.
  QString DragTo(const QString &from, const QString &to, const QString &side,
                 bool isCopied = false) {
    return Text(
        QStringLiteral("{ const range = document.createRange();"
                       "  range.selectNodeContents(document.querySelector('%2'));"
                       "  const r = range.getBoundingClientRect();"
                       "  markup.drag('%1', r.%3 + ('%3' === 'left' ? 1 : -1),"
                       "              r.top + r.height / 2, %4) }")
            .arg(from, to, side, isCopied ? QStringLiteral("true") : QStringLiteral("false")));
  }
  void ExpectOneStepBack() {
    const QString after = Body();
    EXPECT_EQ(Text(QStringLiteral("markup.faults()")), QString());
    EXPECT_EQ(Steps(), 1);
    Evaluate(QStringLiteral("velor.exec(5049)"));
    EXPECT_EQ(Body(), loaded_);
    Evaluate(QStringLiteral("velor.exec(5033)"));
    EXPECT_EQ(Body(), after);
  }
};

TEST_F(Drags, MoveSelectedWordsWithTheirFormatAndIdInOneStep) {
  Load(QStringLiteral("<p>one <b id=\"o\">^words|</b> two</p><p id=\"t\">target</p>"));
  DragTo(QStringLiteral("#o"), QStringLiteral("#t"), QStringLiteral("right"));
  EXPECT_EQ(Body(), QStringLiteral("<p>one two</p><p id=\"t\">target<b id=\"o\">words</b></p>"));
  ExpectOneStepBack();
}

TEST_F(Drags, CopyWhileControlIsHeldAndDoubleNoId) {
  Load(QStringLiteral("<p>one <b id=\"o\">^words|</b> two</p><p id=\"t\">target</p>"));
  DragTo(QStringLiteral("#o"), QStringLiteral("#t"), QStringLiteral("left"), true);
  EXPECT_EQ(Body(), QStringLiteral("<p>one <b id=\"o\">words</b> two</p>"
                                   "<p id=\"t\"><b>words</b>target</p>"));
  ExpectOneStepBack();
}

TEST_F(Drags, MoveAPictureWithinThePageWhateverItsAddress) {
  Load(
      QStringLiteral("<p>one<img src=\"data:image/gif;base64,R0lGODlhAQABAAAAACw=\" width=\"9\""
                     " height=\"9\" alt=\"\"></p><p id=\"t\">target</p>"));
  const QString given =
      DragTo(QStringLiteral("img"), QStringLiteral("#t"), QStringLiteral("right"));
  EXPECT_TRUE(given.contains(QStringLiteral("src=\"data:image/gif")));
  EXPECT_EQ(Body(), QStringLiteral("<p>one</p><p id=\"t\">target<img src=\"data:image/gif;base64,"
                                   "R0lGODlhAQABAAAAACw=\" width=\"9\" height=\"9\" "
                                   "alt=\"\"></p>"));
  EXPECT_EQ(Selected(), QStringLiteral("IMG"));
  ExpectOneStepBack();
}

TEST_F(Drags, MoveASelectedTableOutOfAParagraphsWay) {
  Load(
      QStringLiteral("<p>one</p>^<table id=\"o\"><tbody><tr><td>x</td></tr></tbody></table>|"
                     "<p id=\"t\">target</p>"));
  DragTo(QStringLiteral("#o"), QStringLiteral("#t"), QStringLiteral("right"));
  EXPECT_EQ(Body(), QStringLiteral("<p>one</p><p id=\"t\">target</p><table id=\"o\"><tbody><tr>"
                                   "<td>x</td></tr></tbody></table>"));
  EXPECT_EQ(Selected(), QStringLiteral("TABLE"));
  ExpectOneStepBack();
}

TEST_F(Drags, MoveWordsOfTwoParagraphsIntoAnItem) {
  Load(QStringLiteral("<p>one ^two</p><p id=\"o\">three| four</p><ul><li id=\"t\">item</li></ul>"));
  DragTo(QStringLiteral("#o"), QStringLiteral("#t"), QStringLiteral("right"));
  EXPECT_EQ(Body(), QStringLiteral("<p>one four</p><ul><li id=\"t\">item</li><li>two</li>"
                                   "<li id=\"o\">three</li></ul>"));
  ExpectOneStepBack();
}

TEST_F(Drags, ChangeNothingWhereTheyEndInThemselves) {
  Load(QStringLiteral("<p>one <b id=\"o\">^words|</b> two</p>"));
  DragTo(QStringLiteral("#o"), QStringLiteral("#o"), QStringLiteral("left"));
  EXPECT_EQ(Body(), loaded_);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
}

TEST_F(Drags, BringAnAddressThatComesAloneAsALink) {
  Load(QStringLiteral("<p id=\"t\">one|</p>"));
  Evaluate(
      QStringLiteral("{ const dataTransfer = new DataTransfer();"
                     "  dataTransfer.setData('text/uri-list', 'http://example.com/a\\r\\n');"
                     "  const r = document.querySelector('p').getBoundingClientRect();"
                     "  document.body.dispatchEvent(new DragEvent('drop', {dataTransfer,"
                     "    clientX: r.right - 1, clientY: r.top + 2, bubbles: true,"
                     "    cancelable: true})) }"));
  EXPECT_EQ(Body(), QStringLiteral("<p id=\"t\">one<a href=\"http://example.com/a\">"
                                   "http://example.com/a</a></p>"));
}

}  // namespace
}  // namespace velor
