// SPDX-License-Identifier: GPL-3.0-or-later
// Objects under the pointer and the keys: selected, sized, moved, deleted, as wholes.
#include "tests/bridge/BridgePage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

namespace velor {
namespace {

class Objects : public ::testing::Test {
 protected:
  void Load(const QString &body) {
    page_.Load(QStringLiteral("<!DOCTYPE html><html><head><style>body { margin: 0 }</style></head>"
                              "<body>") +
               body + QStringLiteral("</body></html>"));
    loaded_ = Body();
  }
  QVariant Evaluate(const QString &expression) { return page_.Evaluate(expression); }
  QString Text(const QString &expression) { return Evaluate(expression).toString(); }
  bool Comes(const QString &condition) {
    return QTest::qWaitFor([this, &condition] { return Evaluate(condition).toBool(); }, 5000);
  }
  QString Body() { return Text(QStringLiteral("document.body.innerHTML")); }
  bool BecomesBody(const QString &body) {
    return QTest::qWaitFor([&] { return Body() == body; }, 5000);
  }
  /// The tag of the selected object; empty for text.
  QString Selected() {
    return Text(
        QStringLiteral("{ const {selection, element} = velor.state();"
                       "  selection === 'Control' ? element.tag : '' }"));
  }
  bool BecomesSelected(const QString &tag) {
    return QTest::qWaitFor([&] { return Selected() == tag; }, 5000);
  }
  int Steps() {
    return Evaluate(QStringLiteral("{ let n = 0; while (velor.history.canUndo()) {"
                                   "velor.exec(5049); n++; }"
                                   "for (let i = 0; i < n; i++) velor.exec(5033); n }"))
        .toInt();
  }
  /// Whether the last drag is one step, which undo takes back to what was loaded.
  void ExpectOneStep() {
    EXPECT_EQ(Steps(), 1);
    Evaluate(QStringLiteral("velor.exec(5049)"));
    EXPECT_EQ(Body(), loaded_);
    EXPECT_NE(Selected(), QString());
    Evaluate(QStringLiteral("velor.exec(5033)"));
  }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    page_.Move(from);
    page_.Button(QEvent::MouseButtonPress, from, modifiers);
    page_.Move((from + to) / 2, Qt::LeftButton, modifiers);
    page_.Move(to, Qt::LeftButton, modifiers);
    page_.Button(QEvent::MouseButtonRelease, to, modifiers);
  }
  /// Whether the frame is drawn around this box of the viewport, with its eight handles.
  bool FrameComesAround(const QString &selector) {
    return Comes(QStringLiteral(
                     "{ const style = getComputedStyle(document.documentElement, '::after');"
                     "  const r = document.querySelector('%1').getBoundingClientRect();"
                     "  const near = (one, other) => Math.abs(one - other) < 6;"
                     "  style.content !== 'none' && near(parseFloat(style.left) - scrollX, r.left)"
                     "  && near(parseFloat(style.top) - scrollY, r.top)"
                     "  && near(parseFloat(style.width), r.width + 8)"
                     "  && near(parseFloat(style.height), r.height + 8)"
                     "  && style.backgroundImage.split('linear-gradient').length === 21 }")
                     .arg(selector));
  }

  BridgePage page_;
  QString loaded_;
};

const auto *const picture = "<p>one<img width=\"100\" height=\"50\" alt=\"\">two</p>";

TEST_F(Objects, AClickSelectsAPictureAndDrawsEightHandlesWithoutTouchingThePage) {
  Load(QString::fromLatin1(picture));
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
  EXPECT_FALSE(Evaluate(QStringLiteral("velor.history.canUndo()")).toBool());
}

TEST_F(Objects, TheFrameGoesWhenTextIsSelected) {
  Load(QString::fromLatin1(picture));
  page_.Click({80, 40});
  ASSERT_TRUE(FrameComesAround(QStringLiteral("img")));
  Evaluate(QStringLiteral("getSelection().collapse(document.querySelector('p').firstChild, 1)"));
  EXPECT_TRUE(Comes(
      QStringLiteral("getComputedStyle(document.documentElement, '::after').content === 'none'")));
}

TEST_F(Objects, TheFrameFollowsScrollingAndReflow) {
  Load(
      QStringLiteral("<p>x</p><p><img width='100' height='100' alt=''></p>"
                     "<div style='height: 3000px'></div>"));
  Evaluate(QStringLiteral("velor.selection.selectNode(document.querySelector('img'))"));
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
  Evaluate(QStringLiteral("velor.selection.selectNode(document.querySelector('img'))"));
  ASSERT_TRUE(Comes(
      QStringLiteral("getComputedStyle(document.documentElement, '::after').content !== 'none'")));
  EXPECT_EQ(Text(size), before);
}

class EveryObject : public Objects, public ::testing::WithParamInterface<const char *> {};

TEST_P(EveryObject, IsSelectedByAClick) {
  Load(QStringLiteral("<p>one</p>") + QString::fromLatin1(GetParam()));
  const QString tag = Text(QStringLiteral("document.body.children[1].tagName"));
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
  Evaluate(QStringLiteral("velor.selection.selectNode(document.body.children[1])"));
  const QString rect = QStringLiteral("document.body.children[1].getBoundingClientRect().%1");
  const QPoint corner(Evaluate(rect.arg(QStringLiteral("right"))).toInt(),
                      Evaluate(rect.arg(QStringLiteral("bottom"))).toInt());
  const int width = Evaluate(rect.arg(QStringLiteral("width"))).toInt();
  const int height = Evaluate(rect.arg(QStringLiteral("height"))).toInt();
  // A small object's handles stand apart from it.
  const QPoint apart(qMax(0, 24 - width) / 2, qMax(0, 24 - height) / 2);
  Drag(corner + apart, corner + apart + QPoint(40, 30), Qt::ShiftModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Body() != loaded_; }, 5000));
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

const auto *const box =
    "<p>one</p><div style=\"position: absolute; left: 210px; top: 120px; width: 150px; height: "
    "60px\">text</div>";

TEST_F(Objects, AFirstClickSelectsABoxAndASecondOneEntersIt) {
  Load(QString::fromLatin1(box));
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

TEST_F(Objects, ThePointerLooksLikeTheGripThatItIsOver) {
  Load(QString::fromLatin1(box));
  Evaluate(QStringLiteral("velor.selection.selectNode(document.querySelector('div'))"));
  const auto looks = [this](QPoint place, const QString &cursor) {
    page_.Move(place);
    return Comes(
        QStringLiteral("{ const style = getComputedStyle(document.documentElement,"
                       "  '::after');"
                       "  (style.pointerEvents === 'none' ? 'text' : style.cursor) === '%1' }")
            .arg(cursor));
  };
  EXPECT_TRUE(looks({360, 180}, QStringLiteral("se-resize")));
  EXPECT_TRUE(looks({285, 120}, QStringLiteral("n-resize")));
  EXPECT_TRUE(looks({280, 150}, QStringLiteral("move")));
  EXPECT_TRUE(looks({600, 400}, QStringLiteral("text")));
}

TEST_F(Objects, ABoxIsMovedByDraggingInOneStep) {
  Load(QString::fromLatin1(box));
  Drag({250, 150}, {287, 133});
  ASSERT_TRUE(BecomesBody(QStringLiteral(
      "<p>one</p><div style=\"position: absolute; left: 247px; top: 103px; width: 150px; height: "
      "60px\">text</div>")))
      << qPrintable(Body());
  EXPECT_EQ(Selected(), QStringLiteral("DIV"));
  ExpectOneStep();
}

TEST_F(Objects, AMovedBoxKeepsToTheGridWhenItSnaps) {
  Load(QString::fromLatin1(box));
  Evaluate(QStringLiteral("velor.setSnap(true)"));
  Drag({250, 150}, {283, 190});
  ASSERT_TRUE(Comes(QStringLiteral("document.querySelector('div').style.left === '250px'")))
      << qPrintable(Body());
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('div').style.top")),
            QStringLiteral("150px"));
}

TEST_F(Objects, ADragShowsItselfAndItsGridBeforeThePageChanges) {
  Load(QString::fromLatin1(box));
  Evaluate(QStringLiteral("velor.setSnap(true)"));
  page_.Button(QEvent::MouseButtonPress, {250, 150});
  page_.Move({290, 190}, Qt::LeftButton);
  ASSERT_TRUE(
      Comes(QStringLiteral("document.querySelector('div').getBoundingClientRect().left === 250")));
  EXPECT_TRUE(Text(QStringLiteral("getComputedStyle(document.documentElement, '::after')"
                                  ".backgroundSize"))
                  .contains(QStringLiteral("50px 50px")));
  EXPECT_EQ(Body(), loaded_);
  page_.Button(QEvent::MouseButtonRelease, {290, 190});
  EXPECT_TRUE(QTest::qWaitFor([&] { return Body() != loaded_; }, 5000));
}

TEST_F(Objects, EscapeCancelsADrag) {
  Load(QString::fromLatin1(box));
  page_.Button(QEvent::MouseButtonPress, {250, 150});
  page_.Move({290, 190}, Qt::LeftButton);
  ASSERT_TRUE(
      Comes(QStringLiteral("document.querySelector('div').getBoundingClientRect().left === 250")));
  page_.Press(QKeySequence(Qt::Key_Escape));
  EXPECT_TRUE(
      Comes(QStringLiteral("document.querySelector('div').getBoundingClientRect().left === 210")));
  page_.Button(QEvent::MouseButtonRelease, {290, 190});
  page_.Type(QStringLiteral(""));
  EXPECT_EQ(Body(), loaded_);
  EXPECT_FALSE(Evaluate(QStringLiteral("velor.history.canUndo()")).toBool());
  EXPECT_EQ(Selected(), QStringLiteral("DIV"));
}

TEST_F(Objects, ABoxThatHangsOnTheFarSidesIsMovedThere) {
  Load(
      QStringLiteral("<div style=\"position: absolute; right: 100px; bottom: 100px; width: 100px; "
                     "height: 100px\">text</div>"));
  page_.Click({650, 450});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Press(QKeySequence(Qt::Key_Left));
  page_.Press(QKeySequence(Qt::Key_Up));
  EXPECT_EQ(Body(), QStringLiteral("<div style=\"position: absolute; right: 101px; bottom: 101px; "
                                   "width: 100px; height: 100px\">text</div>"));
}

TEST_F(Objects, ArrowKeysMoveABoxByAPixelAndAllOfThemAreOneStep) {
  Load(QString::fromLatin1(box));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Press(QKeySequence(Qt::Key_Right));
  page_.Press(QKeySequence(Qt::Key_Right));
  page_.Press(QKeySequence(Qt::Key_Up));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('div').getAttribute('style')")),
            QStringLiteral("position: absolute; left: 212px; top: 119px; width: 150px; height: "
                           "60px"));
  ExpectOneStep();
}

TEST_F(Objects, ArrowKeysMoveABoxToTheNextLineOfTheGridWhenItSnaps) {
  Load(QString::fromLatin1(box));
  Evaluate(QStringLiteral("velor.setSnap(true)"));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  const QString left = QStringLiteral("document.querySelector('div').style.left");
  page_.Press(QKeySequence(Qt::Key_Right));
  EXPECT_EQ(Text(left), QStringLiteral("250px"));
  page_.Press(QKeySequence(Qt::Key_Right));
  EXPECT_EQ(Text(left), QStringLiteral("300px"));
  page_.Press(QKeySequence(Qt::Key_Down));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('div').style.top")),
            QStringLiteral("150px"));
  page_.Press(QKeySequence(Qt::CTRL | Qt::Key_Left));
  EXPECT_EQ(Text(left), QStringLiteral("299px"));
}

TEST_F(Objects, ACornerKeepsTheRatioOfThePictureUnlessShiftIsHeld) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("velor.selection.selectNode(document.querySelector('img'))"));
  Drag({100, 50}, {200, 60});
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"200\" height=\"100\" alt=\"\">")))
      << qPrintable(Body());
  Drag({200, 100}, {150, 120}, Qt::ShiftModifier);
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"150\" height=\"120\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(Objects, ASideHandleChangesOneSideOnly) {
  Load(QStringLiteral("<img width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("velor.selection.selectNode(document.querySelector('img'))"));
  Drag({100, 25}, {130, 40});
  EXPECT_TRUE(BecomesBody(QStringLiteral("<img width=\"130\" height=\"50\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(Objects, SizesAreWrittenAsThePageHasThem) {
  // A style and an attribute, a percentage, and neither.
  Load(QStringLiteral(
      "<table style=\"COLOR:red;width:400px;border-collapse: collapse\" width=\"400\" "
      "height=\"100\"><tbody><tr><td>x</td></tr></tbody></table>"));
  const auto size = [this](const QPoint &from, const QPoint &by) {
    Evaluate(QStringLiteral("velor.selection.selectNode(document.body.firstElementChild)"));
    Drag(from, from + by);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Body() != loaded_; }, 5000));
  };
  size({400, 50}, {100, 0});
  EXPECT_TRUE(Body().startsWith(
      QStringLiteral("<table style=\"COLOR:red;width: 500px;border-collapse: collapse\" "
                     "width=\"500\" height=\"100\">")))
      << qPrintable(Body());
  Load(
      QStringLiteral("<table width=\"50%\" height=\"100\" border=\"1\"><tbody><tr><td>x</td></tr>"
                     "</tbody></table>"));
  size({400, 50}, {200, 0});
  EXPECT_TRUE(
      Body().startsWith(QStringLiteral("<table width=\"75%\" height=\"100\" border=\"1\">")))
      << qPrintable(Body());
  Load(QStringLiteral("<table border=\"1\"><tbody><tr><td>x<br>y<br>z</td></tr></tbody></table>"));
  const int right = Evaluate(QStringLiteral("document.querySelector('table').offsetWidth")).toInt();
  size(
      {right, Evaluate(QStringLiteral("document.querySelector('table').offsetHeight / 2")).toInt()},
      {100, 0});
  EXPECT_TRUE(
      Body().startsWith(QStringLiteral("<table border=\"1\" width=\"%1\">").arg(right + 100)))
      << qPrintable(Body());
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
  Load(QString::fromLatin1(box));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Press(QKeySequence(Qt::Key_Backspace));
  EXPECT_EQ(Body(), QStringLiteral("<p>one</p>"));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Body(), loaded_);
}

TEST_F(Objects, AreCutAndCopiedAsWholes) {
  QGuiApplication::clipboard()->clear();
  Load(QString::fromLatin1(box));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  page_.Engine().triggerAction(QWebEnginePage::Cut);
  ASSERT_TRUE(BecomesBody(QStringLiteral("<p>one</p>"))) << qPrintable(Body());
  EXPECT_TRUE(QTest::qWaitFor([] {
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->html().contains(QStringLiteral(
                                  "left: 210px; top: 120px; width: 150px; height: 60px\">text"
                                  "</div>"));
  }));
}

TEST_F(Objects, HandlesAreWhereTheyAreDrawnWhenThePageIsZoomed) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">"));
  page_.Engine().setZoomFactor(2);
  ASSERT_TRUE(Comes(QStringLiteral("innerWidth === 400")));
  Evaluate(QStringLiteral("velor.selection.selectNode(document.querySelector('img'))"));
  ASSERT_TRUE(FrameComesAround(QStringLiteral("img")));
  Drag({200, 100}, {300, 110});
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"150\" height=\"75\" alt=\"\">")))
      << qPrintable(Body());
  page_.Engine().setZoomFactor(1);
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

TEST_F(Objects, TypingReplacesASelectedTableAsAWhole) {
  Load(QStringLiteral("<p>one|</p><table><tbody><tr><td>x</td></tr></tbody></table><p>two</p>"));
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Right));
  page_.Type(QStringLiteral("y"));
  EXPECT_FALSE(Body().contains(QStringLiteral("<table"))) << qPrintable(Body());
  EXPECT_TRUE(Body().contains(QStringLiteral("y"))) << qPrintable(Body());
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Body(), loaded_);
}

}  // namespace
}  // namespace velor
