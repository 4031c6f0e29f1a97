// SPDX-License-Identifier: GPL-3.0-or-later
// Objects sized by their handles, and moved by the pointer and the arrow keys.
#include "tests/engine/bridge/ObjectsFixture.h"
#include "tests/support/Waiting.h"

namespace velor {
namespace {

class ObjectDrags : public Objects {};

TEST_F(ObjectDrags, ThePointerLooksLikeTheGripThatItIsOver) {
  Load(QString::fromLatin1(Box));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('div'))"));
  const auto looks = [this](QPoint place, const QString &cursor) {
    page_.Move(place);
    return Comes(
        QStringLiteral("{ const style = getComputedStyle(document.head,"
                       "  '::after');"
                       "  (style.pointerEvents === 'none' ? 'text' : style.cursor) === '%1' }")
            .arg(cursor));
  };
  EXPECT_TRUE(looks({360, 180}, QStringLiteral("se-resize")));
  EXPECT_TRUE(looks({285, 120}, QStringLiteral("n-resize")));
  EXPECT_TRUE(looks({280, 150}, QStringLiteral("move")));
  EXPECT_TRUE(looks({600, 400}, QStringLiteral("text")));
}

TEST_F(ObjectDrags, ABoxIsMovedByDraggingInOneStep) {
  Load(QString::fromLatin1(Box));
  Drag({250, 150}, {287, 133});
  ASSERT_TRUE(BecomesBody(QStringLiteral(
      "<p>one</p><div style=\"position: absolute; left: 247px; top: 103px; width: 150px; height: "
      "60px\">text</div>")))
      << qPrintable(Body());
  EXPECT_EQ(Selected(), QStringLiteral("DIV"));
  ExpectOneStep();
}

TEST_F(ObjectDrags, AMovedBoxKeepsToTheGridWhenItSnaps) {
  Load(QString::fromLatin1(Box));
  Evaluate(QStringLiteral("velor.setSnap(true)"));
  Drag({250, 150}, {283, 190});
  ASSERT_TRUE(Comes(QStringLiteral("document.querySelector('div').style.left === '250px'")))
      << qPrintable(Body());
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('div').style.top")),
            QStringLiteral("150px"));
}

TEST_F(ObjectDrags, ADragShowsItselfAndItsGridBeforeThePageChanges) {
  Load(QString::fromLatin1(Box));
  Evaluate(QStringLiteral("velor.setSnap(true)"));
  page_.Button(QEvent::MouseButtonPress, {250, 150});
  page_.Move({290, 190}, Qt::LeftButton);
  ASSERT_TRUE(
      Comes(QStringLiteral("document.querySelector('div').getBoundingClientRect().left === 250")));
  EXPECT_TRUE(Text(QStringLiteral("getComputedStyle(document.head, '::after')"
                                  ".backgroundSize"))
                  .contains(QStringLiteral("50px 50px")));
  EXPECT_EQ(Body(), loaded_);
  page_.Button(QEvent::MouseButtonRelease, {290, 190});
  EXPECT_TRUE(WaitFor([&] { return Body() != loaded_; }, 5000));
}

TEST_F(ObjectDrags, EscapeCancelsADrag) {
  Load(QString::fromLatin1(Box));
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
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
  EXPECT_EQ(Selected(), QStringLiteral("DIV"));
}

TEST_F(ObjectDrags, ABoxThatHangsOnTheFarSidesIsMovedThere) {
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

TEST_F(ObjectDrags, ArrowKeysMoveABoxByAPixelAndAllOfThemAreOneStep) {
  Load(QString::fromLatin1(Box));
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

TEST_F(ObjectDrags, ArrowKeysMoveABoxToTheNextLineOfTheGridWhenItSnaps) {
  Load(QString::fromLatin1(Box));
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

TEST_F(ObjectDrags, ControlAndAnArrowKeyMoveABoxToTheNextLineOfTheGridWhenItDoesNotSnap) {
  Load(QString::fromLatin1(Box));
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  const QString left = QStringLiteral("document.querySelector('div').style.left");
  page_.Press(QKeySequence(Qt::CTRL | Qt::Key_Right));
  EXPECT_EQ(Text(left), QStringLiteral("250px"));
  Evaluate(QStringLiteral("velor.start({ additions: false })"));
  page_.Press(QKeySequence(Qt::CTRL | Qt::Key_Right));
  EXPECT_EQ(Text(left), QStringLiteral("251px"));
}

const auto *const TwoBoxes =
    "<div style=\"position: absolute; left: 13px; top: 17px; width: 90px; height: 40px\">a</div>"
    "<div style=\"position: absolute; left: 210px; top: 120px; width: 50px; height: 60px\">b</div>";
const auto *const LinesAcross =
    "getComputedStyle(document.head, '::after').backgroundSize.split(', ')"
    ".filter((size) => size.startsWith('1px 600px') || size === '1px ' + innerHeight + "
    "'px').length";

TEST_F(ObjectDrags, ABoxInLineWithAnotherOneHasAGuide) {
  Load(QString::fromLatin1(TwoBoxes));
  page_.Button(QEvent::MouseButtonPress, {230, 150});
  page_.Move({130, 150}, Qt::LeftButton);
  EXPECT_TRUE(
      Comes(QStringLiteral("document.querySelectorAll('div')[1].getBoundingClientRect().left"
                           " === 110")));
  EXPECT_EQ(Evaluate(QString::fromLatin1(LinesAcross)).toInt(), 0);
  // The right edges of both are at 103 pixels.
  page_.Move({73, 150}, Qt::LeftButton);
  EXPECT_TRUE(Comes(QString::fromLatin1(LinesAcross) + QStringLiteral(" === 1")));
  EXPECT_EQ(Body(), loaded_);
  page_.Button(QEvent::MouseButtonRelease, {73, 150});
  EXPECT_TRUE(Comes(QStringLiteral("document.querySelectorAll('div')[1].style.left === '53px'")));
}

TEST_F(ObjectDrags, ASnappingBoxIsDrawnToTheGuidesNearItAndElseToTheGrid) {
  Load(QString::fromLatin1(TwoBoxes));
  Evaluate(QStringLiteral("velor.setSnap(true)"));
  Drag({230, 150}, {37, 239});
  const QString place = QStringLiteral(
      "(({ left, top }) => left + ' ' + top)(document.querySelectorAll('div')[1].style)");
  EXPECT_TRUE(Comes(place + QStringLiteral(" === '13px 200px'"))) << qPrintable(Text(place));
}

TEST_F(ObjectDrags, TheStateTellsThePlaceOfABox) {
  Load(QString::fromLatin1(Box));
  EXPECT_EQ(Text(QStringLiteral("String(velor.state().place)")), QString());
  page_.Click({250, 150});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  EXPECT_EQ(Text(QStringLiteral("String(velor.state().place)")), QStringLiteral("210,120,150,60"));
}

TEST_F(ObjectDrags, ACornerKeepsTheRatioOfThePictureUnlessShiftIsHeld) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  Drag({100, 50}, {200, 60});
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"200\" height=\"100\" alt=\"\">")))
      << qPrintable(Body());
  Drag({200, 100}, {150, 120}, Qt::ShiftModifier);
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"150\" height=\"120\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, ASideHandleChangesOneSideOnly) {
  Load(QStringLiteral("<img width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  Drag({100, 25}, {130, 40});
  EXPECT_TRUE(BecomesBody(QStringLiteral("<img width=\"130\" height=\"50\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, ASideKeepsTheRatioOfThePictureWhileShiftIsHeld) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  Drag({100, 25}, {200, 30}, Qt::ShiftModifier);
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"200\" height=\"100\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, TheSizeIsShownWhileAHandleIsDragged) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  const QString sign = QStringLiteral("getComputedStyle(document.head, '::after').content");
  page_.Move({100, 50});
  page_.Button(QEvent::MouseButtonPress, {100, 50});
  page_.Move({200, 60}, Qt::LeftButton);
  EXPECT_TRUE(Comes(sign + QStringLiteral(" === '\"200 × 100\"'"))) << qPrintable(Text(sign));
  page_.Button(QEvent::MouseButtonRelease, {200, 60});
  EXPECT_TRUE(Comes(sign + QStringLiteral(" === '\"\"'"))) << qPrintable(Text(sign));
}

TEST_F(ObjectDrags, SizesAreWrittenAsThePageHasThem) {
  // A style and an attribute, a percentage, and neither.
  Load(QStringLiteral(
      "<table style=\"COLOR:red;width:400px;border-collapse: collapse\" width=\"400\" "
      "height=\"100\"><tbody><tr><td>x</td></tr></tbody></table>"));
  const auto size = [this](const QPoint &from, const QPoint &by) {
    Evaluate(QStringLiteral("inside.selection.selectNode(document.body.firstElementChild)"));
    Drag(from, from + by);
    ASSERT_TRUE(WaitFor([&] { return Body() != loaded_; }, 5000));
  };
  size({400, 50}, {100, 0});
  EXPECT_TRUE(Body().startsWith(
      QStringLiteral("<table style=\"COLOR:red;width:500px;border-collapse: collapse\" "
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

TEST_F(ObjectDrags, TheSideOfACornerThatIsDrawnFurtherLeads) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"200\" height=\"100\" alt=\"\">"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  Drag({200, 100}, {100, 100});
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, APictureIsNeverSmallerThanAPixel) {
  Load(QStringLiteral("<p>x</p><img width=\"100\" height=\"50\" alt=\"\">"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  const int top =
      Evaluate(QStringLiteral("document.querySelector('img').getBoundingClientRect().top")).toInt();
  Drag({100, top + 25}, {-200, top + 25});
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>x</p><img width=\"1\" height=\"50\" alt=\"\">")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, WhatThePageDoesNotLetGrowIsNotWritten) {
  Load(
      QStringLiteral("<div style=\"width: 120px\"><img width=\"160\" height=\"100\" alt=\"\" "
                     "style=\"max-width: 100%; height: auto\"></div>"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  const int height = Evaluate(QStringLiteral("document.querySelector('img').offsetHeight")).toInt();
  Drag({120, height}, {160, height});
  Drag({120, height}, {160, height + 3});
  EXPECT_EQ(Body(), loaded_);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
}

TEST_F(ObjectDrags, LengthsKeepTheirUnits) {
  Load(
      QStringLiteral("<div style=\"position: absolute; left: 5em; top: 10%; width: 10em; height: "
                     "50px\">text</div>"));
  page_.Click({100, 70});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  Drag({100, 70}, {132, 100});
  ASSERT_TRUE(WaitFor([&] { return Body() != loaded_; }, 5000));
  Drag({272, 115}, {304, 115});
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<div style=\"position: absolute; left: 7em; top: 15%; width: 12em; height: "
                     "50px\">text</div>")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, FollowTheScaleThatAnObjectIsShownIn) {
  Load(
      QStringLiteral("<div style=\"zoom: 2\"><div style=\"position: absolute; left: 50px; top: "
                     "40px; width: 60px; height: 40px\">b</div></div>"));
  page_.Click({150, 100});
  ASSERT_TRUE(BecomesSelected(QStringLiteral("DIV")));
  Drag({150, 100}, {180, 120});
  EXPECT_TRUE(
      Comes(QStringLiteral("document.querySelector('div div').getAttribute('style').includes("
                           "'left: 65px; top: 50px')")))
      << qPrintable(Body());
  Load(
      QStringLiteral("<div style=\"transform: scale(0.5); transform-origin: 0 0\">"
                     "<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\"></div>"));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  Drag({50, 12}, {80, 12});
  EXPECT_TRUE(Comes(QStringLiteral("document.querySelector('img').width === 160")))
      << qPrintable(Body());
}

TEST_F(ObjectDrags, ThePageScrollsWhileThePointerIsOutsideTheWindow) {
  Load(
      QStringLiteral("<div style=\"height: 3000px\"></div><div style=\"position: absolute; left: "
                     "50px; top: 500px; width: 100px; height: 50px\">text</div>"));
  page_.Button(QEvent::MouseButtonPress, {100, 525});
  page_.Move({100, 560}, Qt::LeftButton);
  page_.Move({100, 620}, Qt::LeftButton);
  ASSERT_TRUE(Comes(QStringLiteral("scrollY > 100")));
  page_.Move({100, 325}, Qt::LeftButton);
  page_.Button(QEvent::MouseButtonRelease, {100, 325});
  ASSERT_TRUE(WaitFor([&] { return Body() != loaded_; }, 5000));
  EXPECT_EQ(Evaluate(QStringLiteral("parseFloat(document.querySelectorAll('div')[1].style.top) - "
                                    "scrollY"))
                .toInt(),
            300);
}

TEST_F(ObjectDrags, HandlesAreWhereTheyAreDrawnWhenThePageIsZoomed) {
  Load(QStringLiteral("<img style=\"display: block\" width=\"100\" height=\"50\" alt=\"\">"));
  page_.Engine().setZoomFactor(2);
  ASSERT_TRUE(Comes(QStringLiteral("innerWidth === 400")));
  Evaluate(QStringLiteral("inside.selection.selectNode(document.querySelector('img'))"));
  ASSERT_TRUE(FrameComesAround(QStringLiteral("img")));
  Drag({200, 100}, {300, 110});
  EXPECT_TRUE(BecomesBody(
      QStringLiteral("<img style=\"display: block\" width=\"150\" height=\"75\" alt=\"\">")))
      << qPrintable(Body());
  page_.Engine().setZoomFactor(1);
}

}  // namespace
}  // namespace velor
