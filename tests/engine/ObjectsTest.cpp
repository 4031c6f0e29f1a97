// SPDX-License-Identifier: GPL-3.0-or-later
// Selected objects in the whole component: what it answers of them, and that nothing of their
// handles, grid or glyphs is ever in the document.
#include "platform/EditingCommands.h"
#include "tests/engine/ComponentFixture.h"

#include <QMouseEvent>
#include <QTest>

namespace velor {

namespace {

const QByteArray PageSource =
    "<!DOCTYPE html>\r\n<html><head><title>x</title><style>body { margin: 0 }</style></head>\r\n"
    "<body>\r\n<p>One<br>two</p><!-- c -->\r\n"
    "<div style=\"position:absolute; left:210px; top:120px; width:150px; height:60px\">box</div>"
    "\r\n</body></html>\r\n";

class ObjectsOfThePage : public WebEditorTest {
 protected:
  ObjectsOfThePage() {
    editor_->LoadDocument(Write(QStringLiteral("page.htm"), PageSource));
    Show();
    // A hit test finds what has been painted, so this waits for a frame.
    Evaluate(
        QStringLiteral("globalThis.painted = false; requestAnimationFrame(() =>"
                       "requestAnimationFrame(() => { painted = true; }))"));
    EXPECT_TRUE(WaitFor([this] { return Evaluate(QStringLiteral("painted")).toBool(); }));
  }
  void Send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held) const {
    QMouseEvent event(type, place, Input()->mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(Input(), &event);
  }
  void Drag(QPoint from, QPoint to) const {
    Send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    Send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    Send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  }
  void Exec(EditingCommand command) { editor_->ExecCommand(command, ExecOption::Default, {}); }
  DocumentSelection &Selection() { return editor_->Document().Selection(); }
  bool BoxIsSelected() {
    return WaitFor([this] {
      return Selection().Type() == SelectionType::Control &&
             Selection().ControlElement().tagName == QStringLiteral("DIV");
    });
  }
  QByteArray Saved() {
    editor_->SaveDocument(Logic(QStringLiteral("saved.htm")));
    return Bytes(QStringLiteral("saved.htm"));
  }
};

TEST_F(ObjectsOfThePage, HandlesAndGlyphsAreNeverInTheDocument) {
  const QString document = editor_->DocumentHTML();
  QTest::mouseClick(Input(), Qt::LeftButton, Qt::NoModifier, {250, 150});
  ASSERT_TRUE(BoxIsSelected());
  editor_->SetShowDetails(true);
  editor_->SetSnapToGrid(true);
  ASSERT_TRUE(WaitFor([this] {
    return Evaluate(QStringLiteral("['::before', '::after'].every((name) =>"
                                   "getComputedStyle(document.head, name).content"
                                   "    !== 'none')"))
        .toBool();
  }));
  EXPECT_EQ(editor_->DocumentHTML(), document);
  EXPECT_EQ(Saved(), PageSource);
}

TEST_F(ObjectsOfThePage, ADragIsOneUndoStepAndChangesOnlyTheElementsStyleInTheFile) {
  editor_->SetSnapToGrid(true);
  editor_->DocumentHTML();  // the page answers in order: it has the setting now
  Drag({250, 150}, {283, 190});
  ASSERT_TRUE(WaitFor([this] {
    return Selection()
        .ControlElement()
        .Attribute(QStringLiteral("style"))
        .contains(QStringLiteral("left:250px"));
  }));
  QByteArray moved = PageSource;
  moved.replace("left:210px; top:120px", "left:250px; top:150px");
  EXPECT_EQ(Saved(), moved);
  Exec(EditingCommand::Undo);
  EXPECT_EQ(Saved(), PageSource);
  EXPECT_TRUE(WaitFor(
      [this] { return editor_->QueryStatus(EditingCommand::Undo) == CommandStatus::Disabled; }));
}

TEST_F(ObjectsOfThePage, WhereABoxIsAndHowLargeIsToldWhileItIsDragged) {
  const auto isToldAt = [this](const QRect &place) {
    return WaitFor([&] { return editor_->Document().ObjectPlace() == place; });
  };
  const auto move = [this](QPoint to) {
    Send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
  };
  const QRect loaded(210, 120, 150, 60);
  editor_->SetSnapToGrid(true);
  Send(QEvent::MouseButtonPress, {250, 150}, Qt::LeftButton, Qt::LeftButton);
  ASSERT_TRUE(isToldAt(loaded));
  for (const auto &[to, place] : {std::pair{QPoint(283, 190), QRect(250, 150, 150, 60)},
                                  {QPoint(330, 190), QRect(300, 150, 150, 60)}}) {
    move(to);
    EXPECT_TRUE(isToldAt(place)) << place.x();
  }
  QTest::keyClick(Input(), Qt::Key_Escape);
  EXPECT_TRUE(isToldAt(loaded)) << "the drag was given up";
  Send(QEvent::MouseButtonPress, {360, 180}, Qt::LeftButton, Qt::LeftButton);
  move({380, 180});
  move({390, 180});
  EXPECT_TRUE(WaitFor([&] { return editor_->Document().ObjectPlace().width() == 180; }));
  EXPECT_EQ(Saved(), PageSource);
}

TEST_F(ObjectsOfThePage, TheRightButtonSelectsAnObjectAndAsksForTheMenu) {
  Send(QEvent::MouseButtonPress, {250, 150}, Qt::RightButton, Qt::RightButton);
  Send(QEvent::MouseButtonRelease, {250, 150}, Qt::RightButton, Qt::NoButton);
  QContextMenuEvent menu(QContextMenuEvent::Mouse, {250, 150},
                         Input()->mapToGlobal(QPoint(250, 150)));
  QCoreApplication::sendEvent(Input(), &menu);
  EXPECT_TRUE(BoxIsSelected());
  EXPECT_TRUE(WaitFor([this] { return listener_.menus > 0; }));
  EXPECT_TRUE(BoxIsSelected());
}

TEST_F(ObjectsOfThePage, CommandsOnTextApplyToTheTextOfABoxAndCuttingItIsOn) {
  QTest::mouseClick(Input(), Qt::LeftButton, Qt::NoModifier, {250, 150});
  ASSERT_TRUE(BoxIsSelected());
  EXPECT_EQ(editor_->QueryStatus(EditingCommand::Bold), CommandStatus::Enabled);
  EXPECT_EQ(editor_->QueryStatus(EditingCommand::Cut), CommandStatus::Enabled);
  Exec(EditingCommand::Delete);
  EXPECT_FALSE(DocumentHolds(QStringLiteral("<div")));
  Exec(EditingCommand::Undo);
  EXPECT_EQ(Saved(), PageSource);
}

}  // namespace

}  // namespace velor
