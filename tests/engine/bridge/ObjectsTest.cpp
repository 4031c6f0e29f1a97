// SPDX-License-Identifier: GPL-3.0-or-later
// Objects under the pointer and the keys: selected, framed, copied and deleted as wholes.
#include "tests/engine/bridge/ObjectsFixture.h"
#include "tests/support/Waiting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace velor {
namespace {

const auto *const PictureMarkup = R"(<p>one<img width="100" height="50" alt="">two</p>)";

TEST_F(Objects, AClickSelectsAPictureAndDrawsEightHandlesWithoutTouchingThePage) {
  Load(QString::fromLatin1(PictureMarkup));
  Evaluate(
      QStringLiteral("globalThis.records = 0;"
                     "new MutationObserver((all) => { records += all.length; })"
                     ".observe(document, {subtree: true, childList: true, attributes: true, "
                     "characterData: true})"));
  const QString text = Text(QStringLiteral("velor.serialize()"));
  page_.Click({80, 40});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("IMG")));
  EXPECT_TRUE(FrameComesAround(QStringLiteral("img")));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), text);
  EXPECT_EQ(Evaluate(QStringLiteral("records")).toInt(), 0);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
}

TEST_F(Objects, TheFrameGoesWhenTextIsSelected) {
  Load(QString::fromLatin1(PictureMarkup));
  page_.Click({80, 40});
  ASSERT_TRUE(FrameComesAround(QStringLiteral("img")));
  Evaluate(QStringLiteral("getSelection().collapse(document.querySelector('p').firstChild, 1)"));
  EXPECT_TRUE(
      Comes(QStringLiteral("getComputedStyle(document.head, '::after').content === 'none'")));
}

TEST_F(Objects, TheFrameFollowsScrollingAndReflow) {
  Load(
      QStringLiteral("<p>x</p><p><img width='100' height='100' alt=''></p>"
                     "<div style='height: 3000px'></div>"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  ASSERT_TRUE(FrameComesAround(QStringLiteral("img")));
  Evaluate(QStringLiteral("scrollTo(0, 40)"));
  EXPECT_TRUE(FrameComesAround(QStringLiteral("img")));
  Evaluate(QStringLiteral("document.querySelector('p').style.height = '90px'"));
  EXPECT_TRUE(FrameComesAround(QStringLiteral("img")));
}

TEST_F(Objects, TheFrameDoesNotMakeThePageLonger) {
  Load(QStringLiteral("<img style='display: block; width: 100vw; height: 1000px' alt=''>"));
  const QString size = QStringLiteral(
      "`${document.scrollingElement.scrollWidth} ${document.scrollingElement.scrollHeight}`");
  const QString before = Text(size);
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  ASSERT_TRUE(
      Comes(QStringLiteral("getComputedStyle(document.head, '::after').content !== 'none'")));
  EXPECT_EQ(Text(size), before);
}

class EveryObject : public Objects, public ::testing::WithParamInterface<const char *> {};

TEST_P(EveryObject, IsSelectedByAClick) {
  Load(QStringLiteral("<p>one</p>") + QString::fromLatin1(GetParam()));
  const QString tag = Text(QStringLiteral("document.body.children[1].tagName.toUpperCase()"));
  const QPoint middle(
      Evaluate(QStringLiteral("{ const r = document.body.children[1].getBoundingClientRect();"
                              "r.left + r.width / 2 }"))
          .toInt(),
      Evaluate(QStringLiteral("{ const r = document.body.children[1].getBoundingClientRect();"
                              "r.top + r.height / 2 }"))
          .toInt());
  page_.Click(middle);
  EXPECT_TRUE(BecomesSelected(tag));
  EXPECT_EQ(Body(), loaded_);
}

TEST_P(EveryObject, IsSizedByItsCorner) {
  Load(QStringLiteral("<p>one</p>") + QString::fromLatin1(GetParam()));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.body.children[1])"));
  const QString rect = QStringLiteral("document.body.children[1].getBoundingClientRect().%1");
  const QPoint corner(Evaluate(rect.arg(QStringLiteral("right"))).toInt(),
                      Evaluate(rect.arg(QStringLiteral("bottom"))).toInt());
  const int width = Evaluate(rect.arg(QStringLiteral("width"))).toInt();
  const int height = Evaluate(rect.arg(QStringLiteral("height"))).toInt();
  // A small object's handles stand apart from it.
  const QPoint apart(qMax(0, 24 - width) / 2, qMax(0, 24 - height) / 2);
  Drag(corner + apart, corner + apart + QPoint(40, 30), Qt::ShiftModifier);
  ASSERT_TRUE(WaitFor([&] { return Body() != loaded_; }, 5000));
  EXPECT_EQ(Evaluate(rect.arg(QStringLiteral("width"))).toInt(), width + 40) << qPrintable(Body());
  EXPECT_EQ(Evaluate(rect.arg(QStringLiteral("height"))).toInt(), height + 30)
      << qPrintable(Body());
  ExpectOneStep();
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, EveryObject,
    ::testing::Values("<img width=\"100\" height=\"50\" alt=\"\">",
                      "<img style=\"width: 100px; height: 50px; border: 3px solid\" alt=\"\">",
                      "<hr width=\"200\" size=\"20\" noshade=\"\">",
                      "<svg width=\"100\" height=\"50\"></svg>",
                      "<iframe width=\"200\" height=\"80\"></iframe>",
                      "<object width=\"200\" height=\"80\"></object>",
                      "<marquee width=\"200\" height=\"80\">text</marquee>",
                      "<video width=\"200\" height=\"80\"></video>", "<input size=\"30\">",
                      "<textarea rows=\"4\"></textarea>", "<button>Press here</button>",
                      "<select><option>one</option></select>",
                      "<div style=\"position: absolute; left: 200px; top: 100px; width: 150px; "
                      "height: 60px\">text</div>"));

TEST_F(Objects, ATableIsSelectedAtItsBorderAndNotInItsCells) {
  Load(
      QStringLiteral("<p>one</p><table style='position: static; margin: 20px' border='0' "
                     "width='300' cellspacing='0'><tbody><tr><td>cell</td></tr></tbody></table>"));
  const QString rect = QStringLiteral("document.querySelector('table').getBoundingClientRect().%1");
  const int left = Evaluate(rect.arg(QStringLiteral("left"))).toInt();
  const int top = Evaluate(rect.arg(QStringLiteral("top"))).toInt();
  page_.Click({left + 12, top + 10});
  ASSERT_TRUE(Comes(QStringLiteral("getSelection().anchorNode.data === 'cell'")));
  EXPECT_EQ(Selected(), QString());
  page_.Click({left - 2, top + 10});
  EXPECT_TRUE(BecomesSelected(QStringLiteral("TABLE")));
}

TEST_F(Objects, AFirstClickSelectsABoxAndASecondOneEntersIt) {
  Load(QString::fromLatin1(Box));
  page_.Click({220, 130});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Click({220, 130});
  ASSERT_TRUE(Comes(QStringLiteral("getSelection().anchorNode.data === 'text'")));
  page_.Click({235, 130});
  page_.Type(QStringLiteral("x"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('div').textContent.length")),
            QStringLiteral("5"));
  EXPECT_EQ(Selected(), QString());
}

TEST_F(Objects, ShiftAndArrowSelectPicturesTablesAndBoxes) {
  const auto select = [this](const QString &body, Qt::Key key) {
    Load(body);
    page_.Press(QKeySequence(Qt::SHIFT | key));
    return Selected();
  };
  EXPECT_EQ(select(QStringLiteral("<p>one|<img width='9' height='9'>two</p>"), Qt::Key_Right),
            QStringLiteral("IMG"));
  EXPECT_EQ(select(QStringLiteral("<p>one<b><img width='9' height='9'></b>|two</p>"), Qt::Key_Left),
            QStringLiteral("IMG"));
  const QString table = QStringLiteral("<table><tbody><tr><td>x</td></tr></tbody></table>");
  EXPECT_EQ(
      select(QStringLiteral("<p>one|</p>\n") + table + QStringLiteral("<p>two</p>"), Qt::Key_Right),
      QStringLiteral("TABLE"));
  EXPECT_EQ(
      select(QStringLiteral("<p>one|</p>") + table + QStringLiteral("<p>two</p>"), Qt::Key_Down),
      QStringLiteral("TABLE"));
  EXPECT_EQ(
      select(QStringLiteral("<p>one</p>") + table + QStringLiteral("<p>|two</p>"), Qt::Key_Up),
      QStringLiteral("TABLE"));
  EXPECT_EQ(
      select(QStringLiteral("<p>one|</p><div style='position: absolute'>x</div>"), Qt::Key_Right),
      QStringLiteral("DIV"));
  EXPECT_EQ(select(QStringLiteral("<p>one|</p><p>two</p>"), Qt::Key_Right), QString());
  EXPECT_EQ(select(QStringLiteral("<p>on|e<img width='9' height='9'></p>"), Qt::Key_Right),
            QString());
}

TEST_F(Objects, AreDeletedAsWholes) {
  Load(QStringLiteral("<p>one|</p><table><tbody><tr><td>x</td></tr></tbody></table><p>two</p>"));
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
  page_.Press(QKeySequence(Qt::Key_Delete));
  EXPECT_EQ(Body(), QStringLiteral("<p>one</p><p>two</p>"));
  Load(QString::fromLatin1(Box));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Press(QKeySequence(Qt::Key_Backspace));
  EXPECT_EQ(Body(), QStringLiteral("<p>one</p>"));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Objects, AreCutAndCopiedAsWholes) {
  QGuiApplication::clipboard()->clear();
  Load(QString::fromLatin1(Box));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Engine().triggerAction(QWebEnginePage::Cut);
  ASSERT_TRUE(BecomesBody(QStringLiteral("<p>one</p>"))) << qPrintable(Body());
  EXPECT_TRUE(WaitFor([] {
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->html().contains(QStringLiteral(
                                  "left: 210px; top: 120px; width: 150px; height: 60px\">text"
                                  "</div>"));
  }));
}

TEST_F(Objects, APlacedTableIsEnteredByASecondClick) {
  Load(
      QStringLiteral("<p>one</p><table style='position: absolute; left: 100px; top: 100px' "
                     "width='200' height='100'><tbody><tr><td>cell</td></tr></tbody></table>"));
  page_.Click({110, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("TABLE")));
  page_.Click({110, 150});
  EXPECT_TRUE(Comes(QStringLiteral("getSelection().anchorNode.data === 'cell'")));
}

TEST_F(Objects, APictureMapIsItsPicture) {
  Load(
      QStringLiteral("<img usemap='#m' width='100' height='100' alt=''>"
                     "<map name='m'><area shape='rect' coords='0,0,100,100' href='x'></map>"));
  page_.Click({50, 50});
  EXPECT_TRUE(BecomesSelected(QStringLiteral("IMG")));
}

TEST_F(Objects, ABlockThatIsPlacedInTheFlowIsSelectedAtItsEdgeOnly) {
  Load(
      QStringLiteral("<p>one</p><div style='position: relative; margin: 50px; padding: 20px'>text"
                     "</div>"));
  const int top =
      Evaluate(QStringLiteral("document.querySelector('div').getBoundingClientRect().top")).toInt();
  page_.Click({75, top + 25});
  ASSERT_TRUE(Comes(QStringLiteral("getSelection().anchorNode.data === 'text'")));
  page_.Click({51, top + 25});
  EXPECT_TRUE(BecomesSelected(QStringLiteral("DIV")));
}

TEST_F(Objects, TypingReplacesASelectedObjectByAParagraphOfItsOwn) {
  const QString objects[] = {
      QStringLiteral("<hr>"),
      QStringLiteral("<div style=\"position: absolute; left: 100px; top: 100px\">box</div>")};
  for (const QString &object : objects) {
    Load(QStringLiteral("<p>one|</p>%1<p>two</p>").arg(object));
    page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
    page_.Type(QStringLiteral("yz"));
    EXPECT_EQ(Body(), QStringLiteral("<p>one</p><p>yz</p><p>two</p>"));
    ExpectOneStep();
  }
}

TEST_F(Objects, TypingGoesBehindATableThatIsSelected) {
  const QString table = QStringLiteral("<table><tbody><tr><td>x</td></tr></tbody></table>");
  Load(QStringLiteral("<p>one|</p>%1<p>two</p>").arg(table));
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
  page_.Type(QStringLiteral("yz"));
  EXPECT_EQ(Body(), QStringLiteral("<p>one</p>%1<p>yz</p><p>two</p>").arg(table));
  ExpectOneStep();
}

TEST_F(Objects, TypingGoesBehindTheSelectedTableOfACell) {
  Load(
      QStringLiteral("<table><tbody><tr><td><table id=\"in\"><tbody><tr><td>x</td></tr></tbody>"
                     "</table></td></tr></tbody></table>"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('#in'))"));
  page_.Type(QStringLiteral("y"));
  EXPECT_EQ(Body(), QString(loaded_).replace(QStringLiteral("</table></td>"),
                                             QStringLiteral("</table><p>y</p></td>")));
  ExpectOneStep();
}

TEST_F(Objects, AClickIntoASmallCellPutsTheCaretThere) {
  Load(
      QStringLiteral("<p>one</p><table border='1' cellspacing='0' cellpadding='0'><tbody><tr>"
                     "<td style='width: 6px'></td><td id='c' style='width: 6px'></td></tr></tbody>"
                     "</table><p>two</p>"));
  const QString rect = QStringLiteral("document.querySelector('#c').getBoundingClientRect().%1");
  EXPECT_GT(Evaluate(rect.arg(QStringLiteral("height"))).toInt(), 14);
  const int left = Evaluate(rect.arg(QStringLiteral("left"))).toInt();
  const int top = Evaluate(rect.arg(QStringLiteral("top"))).toInt();
  page_.Click({left + 3, top + 3});
  EXPECT_TRUE(
      Comes(QStringLiteral("document.querySelector('#c').contains(getSelection().anchorNode)")));
  EXPECT_EQ(Selected(), QString());
  page_.Type(QStringLiteral("x"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('#c').textContent")), QStringLiteral("x"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('table').textContent")),
            QStringLiteral("x"));
}

TEST_F(Objects, EscapeInACellSelectsItsTable) {
  Load(QStringLiteral("<table><tbody><tr><td>on|e</td></tr></tbody></table>"));
  page_.Press(QKeySequence(Qt::Key_Escape));
  EXPECT_TRUE(BecomesSelected(QStringLiteral("TABLE")));
}

TEST_F(Objects, ATableThatIsPutInHasTheCaretInItsFirstCell) {
  Load(QStringLiteral("<p>one|</p>"));
  Evaluate(
      QStringLiteral("velor.pasteHTML('<table><tr><td></td><td></td></tr><tr><td></td><td></td>"
                     "</tr></table>')"));
  page_.Type(QStringLiteral("a"));
  page_.Press(QKeySequence(Qt::Key_Tab));
  page_.Type(QStringLiteral("b"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('table').rows[0].innerHTML")),
            QStringLiteral("<td>a</td><td>b</td>"));
}

TEST_F(Objects, ALineEndBehindATableThatIsPutInMakesNoDifferenceToTheCaret) {
  Load(QStringLiteral("<p>one|</p>"));
  Evaluate(
      QStringLiteral("velor.pasteHTML('<Table border=1>\\r\\n<TR>\\r\\n<TD></TD>\\r\\n</TR>\\r\\n"
                     "</Table>\\r\\n')"));
  page_.Type(QStringLiteral("a"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('td').innerHTML")), QStringLiteral("a"));
}

TEST_F(Objects, EnterBeginsAParagraphBehindATableAndARule) {
  for (const char *object : {"<table><tbody><tr><td>x</td></tr></tbody></table>", "<hr>"}) {
    Load(QStringLiteral("<p>one|</p>%1<p>two</p>").arg(QString::fromLatin1(object)));
    page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
    page_.Press(QKeySequence(Qt::Key_Return));
    page_.Type(QStringLiteral("y"));
    EXPECT_EQ(Body(),
              QStringLiteral("<p>one</p>%1<p>y</p><p>two</p>").arg(QString::fromLatin1(object)));
  }
}

TEST_F(Objects, EnterGoesIntoABoxAndEscapeOutOfItAndBehindIt) {
  Load(QString::fromLatin1(Box));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('div'))"));
  page_.Press(QKeySequence(Qt::Key_Return));
  page_.Type(QStringLiteral("!"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('div').textContent")),
            QStringLiteral("text!"));
  page_.Press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(Selected(), QStringLiteral("DIV"));
  page_.Press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(Selected(), QString());
  EXPECT_EQ(Steps(), 1);
}

}  // namespace
}  // namespace velor
