// SPDX-License-Identifier: GPL-3.0-or-later
// Keys, mouse buttons and commands, and the states and notices that follow.
#include "tests/engine/EditingFixture.h"

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QWebEngineView>
#include <QWheelEvent>

namespace velor {

namespace {

TEST_F(Editing, TypedTextIsInTheDocument) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeText(QStringLiteral(" two"));
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One two</p>"))) << Seen().constData();
}

TEST_F(Editing, ATemplateSignIsDeletedWholeAndNeverTypedInto) {
  LoadWithCaret("<p>One <i>{{ two }}</i></p>", QStringLiteral("i"));
  Key(Qt::Key_Left);
  TypeText(QStringLiteral("x"));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("{{ two }}x")); }))
      << Seen().constData();
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  EXPECT_TRUE(WaitFor([&] { return !DocumentHolds(QStringLiteral("two")); })) << Seen().constData();
  EXPECT_FALSE(DocumentHolds(QStringLiteral("{")));
}

TEST_F(Editing, ATemplateSignIsTextWhereTheSettingSaysSo) {
  editor_->SetWholeSigns(false);
  LoadWithCaret("<p>One <i>{{ two }}</i></p>", QStringLiteral("i"));
  Key(Qt::Key_Left);
  TypeText(QStringLiteral("x"));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("{{ two }x}")); }))
      << Seen().constData();
  Key(Qt::Key_Backspace);
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("{{ two }}")); }))
      << Seen().constData();
}

TEST_F(Editing, EnterMakesAParagraphAndShiftEnterALineBreak) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Key(Qt::Key_Return);
  TypeText(QStringLiteral("two"));
  Key(Qt::Key_Return, Qt::ShiftModifier);
  TypeText(QStringLiteral("three"));
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p><p>two<br>three</p>")))
      << Seen().constData();
}

TEST_F(Editing, FormattingKeysFormatAndAreUndoneInTheSameHistoryAsTyping) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_B, Qt::ControlModifier);
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p><b>One</b></p>"))) << Seen().constData();
  Key(Qt::Key_I, Qt::ControlModifier);
  Key(Qt::Key_U, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] {
    return DocumentHolds(QStringLiteral("<i>")) && DocumentHolds(QStringLiteral("<u>"));
  })) << Seen().constData();
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p><b>One</b></p>"))) << Seen().constData();
  Key(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p>One</p>"))) << Seen().constData();
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p><b>One</b></p>"))) << Seen().constData();
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Y, Qt::ControlModifier);
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p><b>One</b></p>"))) << Seen().constData();
}

TEST_F(Editing, ACommandIsInTheDocumentReadRightAfterIt) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  for (int round = 0; round < 20; ++round) {
    Exec(EditingCommand::SelectAll);
    Exec(EditingCommand::Bold);
    EXPECT_EQ(DocumentHolds(QStringLiteral("<b>One</b>")), round % 2 == 0) << Seen().constData();
  }
}

TEST_F(Editing, TypedTextIsInTheDocumentReadRightAfterIt) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QString typed;
  for (int round = 0; round < 30; ++round) {
    TypeText(QStringLiteral("ab"));
    typed += QStringLiteral("ab");
    EXPECT_TRUE(DocumentHolds(typed + QStringLiteral("</p>"))) << Seen().constData();
  }
}

TEST_F(Editing, ACommandDoesNotOvertakeTheKeysBeforeIt) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  for (int round = 0; round < 30; ++round) {
    TypeText(QStringLiteral("ab"));
    Exec(EditingCommand::Undo);
    EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One</p>"))) << Seen().constData();
  }
}

TEST_F(Editing, AKeyDoesNotOvertakeTheCommandBeforeIt) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QString typed = QStringLiteral("<p>One");
  for (int round = 0; round < 30; ++round) {
    Exec(EditingCommand::Bold);
    TypeText(QStringLiteral("ab"));
    Exec(EditingCommand::Bold);
    TypeText(QStringLiteral("cd"));
    typed += QStringLiteral("<b>ab</b>cd");
  }
  EXPECT_TRUE(DocumentHolds(typed + QStringLiteral("</p>"))) << Seen().constData();
}

TEST_F(Editing, KeysBehindACommandDoNotReachAnotherPage) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Exec(EditingCommand::Bold);
  TypeText(QStringLiteral("lost"));
  editor_->LoadDocument(Write(QStringLiteral("other.htm"), "<p>Two</p>"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>Two</p>"))) << Seen().constData();
  EXPECT_FALSE(DocumentHolds(QStringLiteral("lost")));
}

TEST_F(Editing, PastedMarkupComesBehindTheKeysBeforeIt) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QString typed = QStringLiteral("One");
  for (int round = 0; round < 10; ++round) {
    TypeText(QStringLiteral("ab"));
    editor_->Document().Selection().CreateRange()->PasteHTML(QStringLiteral("-"));
    typed += QStringLiteral("ab-");
    EXPECT_TRUE(DocumentHolds(typed)) << Seen().constData();
  }
}

TEST_F(Editing, KeysAndCommandsKeepTheirOrder) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  TypeText(QStringLiteral("a"));
  Key(Qt::Key_B, Qt::ControlModifier);
  TypeText(QStringLiteral("b"));
  Key(Qt::Key_B, Qt::ControlModifier);
  TypeText(QStringLiteral("c"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("a<b>b</b>c"))) << Seen().constData();
}

TEST_F(Editing, TheTabKeyStaysInTheTable) {
  LoadWithCaret("<table><tr><td>a</td><td>b</td></tr></table>", QStringLiteral("td"));
  Key(Qt::Key_Tab);
  TypeText(QStringLiteral("x"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<td>xb</td>"))) << Seen().constData();
  EXPECT_TRUE(Input()->hasFocus());
}

TEST_F(Editing, AllTakenBackThePageIsWhatWasLoaded) {
  LoadWithCaret("<p>One two</p><ul><li>a</ul><table><tr><td>x</td></tr></table>",
                QStringLiteral("p"));
  const QString loaded = editor_->DocumentHTML();
  TypeText(QStringLiteral(" three four"));
  Exec(EditingCommand::SelectAll);
  Exec(EditingCommand::Bold);
  Exec(EditingCommand::JustifyCenter);
  Exec(EditingCommand::OrderList);
  editor_->Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<hr>"));
  EXPECT_NE(editor_->DocumentHTML(), loaded);
  for (int step = 0; step < 20; ++step) Exec(EditingCommand::Undo);
  EXPECT_EQ(editor_->DocumentHTML(), loaded);
  EXPECT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Disabled));
}

TEST_F(Editing, CommandsTakeTheirValues) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Exec(EditingCommand::SelectAll);
  Exec(EditingCommand::SetFontName, QStringLiteral("Courier New"));
  Exec(EditingCommand::SetFontSize, QStringLiteral("18"));
  Exec(EditingCommand::SetForeColor, QStringLiteral("#FF0000"));
  Exec(EditingCommand::SetBlockFormat, QStringLiteral("Heading 2"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<h2>"))) << Seen().constData();
  EXPECT_TRUE(DocumentHolds(QStringLiteral("face=\"Courier New\""))) << Seen().constData();
  const auto value = [this](EditingCommand command) { return Exec(command).toString(); };
  EXPECT_TRUE(WaitFor([&] { return value(EditingCommand::GetFontSize) == u"18"; }));
  EXPECT_EQ(value(EditingCommand::GetFontName), QStringLiteral("Courier New"));
  EXPECT_EQ(value(EditingCommand::GetForeColor).toUpper(), QStringLiteral("#FF0000"));
  EXPECT_EQ(value(EditingCommand::GetBackColor).toUpper(), QStringLiteral("#FFFFFF"));
  EXPECT_EQ(value(EditingCommand::GetBlockFormat), QStringLiteral("Heading 2"));
}

TEST_F(Editing, UnknownCommandsDoNothing) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString before = editor_->DocumentHTML();
  editor_->ExecCommand(static_cast<EditingCommand>(4711), ExecOption::Default,
                       QStringLiteral("x\"); velor.exec(5035"));
  EXPECT_EQ(editor_->DocumentHTML(), before);
  EXPECT_EQ(editor_->QueryStatus(static_cast<EditingCommand>(4711)), CommandStatus::NotSupported);
}

TEST_F(Editing, StatesFollowTheCaretAndEachChangeIsTold) {
  LoadWithCaret("<p>plain</p><h1 align=center><b>bold</b></h1><ol><li>item</ol>",
                QStringLiteral("p"));
  ASSERT_TRUE(Becomes(EditingCommand::Bold, CommandStatus::Enabled));
  ASSERT_TRUE(WaitFor([&] { return listener_.displayChanges > 0; }));
  const int told = listener_.displayChanges;
  Evaluate(QStringLiteral("getSelection().collapse(document.querySelector('b').firstChild, 2)"));
  ASSERT_TRUE(Becomes(EditingCommand::Bold, CommandStatus::Latched));
  EXPECT_EQ(Status(EditingCommand::JustifyCenter), CommandStatus::Latched);
  ASSERT_TRUE(WaitFor([&] { return listener_.displayChanges > told; }));
  Evaluate(QStringLiteral("getSelection().collapse(document.querySelector('li').firstChild, 2)"));
  ASSERT_TRUE(Becomes(EditingCommand::OrderList, CommandStatus::Latched));
  EXPECT_EQ(Status(EditingCommand::Bold), CommandStatus::Enabled);
}

TEST_F(Editing, ThePartlyBoldIsMixed) {
  LoadWithCaret("<p>plain <b>bold</b></p>", QStringLiteral("p"));
  Exec(EditingCommand::SelectAll);
  EXPECT_TRUE(Becomes(EditingCommand::Bold, CommandStatus::Ninched));
}

TEST_F(Editing, TheElementUnderTheCaretIsTheSelectionsParent) {
  LoadWithCaret("<p>x <a href='a%20b.htm' TITLE=\"t&amp;u\">link</a></p>", QStringLiteral("a"));
  DocumentSelection &selection = editor_->Document().Selection();
  const auto element = [&] {
    const auto range = selection.CreateRange();
    range->Collapse();
    return range->ParentElement();
  };
  ASSERT_TRUE(WaitFor([&] { return element().tagName == u"A"; }));
  EXPECT_EQ(element().Attribute(QStringLiteral("href")), QStringLiteral("a%20b.htm"));
  EXPECT_EQ(element().Attribute(QStringLiteral("title")), QStringLiteral("t&u"));
  EXPECT_EQ(selection.Type(), SelectionType::None);
  EXPECT_TRUE(selection.ControlElement().IsNull());
  Exec(EditingCommand::SelectAll);
  EXPECT_TRUE(WaitFor([&] { return selection.Type() == SelectionType::Text; }));
}

TEST_F(Editing, AClickedPictureIsAControlSelection) {
  LoadWithCaret("<p>x</p><img src='none.gif' width=200 height=100 id=pic>", QStringLiteral("p"));
  const QVariantList place =
      Evaluate(QStringLiteral("{ const r = document.images[0].getBoundingClientRect();"
                              "[r.left + 50, r.top + 50] }"))
          .toList();
  ASSERT_EQ(place.size(), 2);
  QTest::mouseClick(Input(), Qt::LeftButton, {}, {place[0].toInt(), place[1].toInt()});
  DocumentSelection &selection = editor_->Document().Selection();
  ASSERT_TRUE(WaitFor([&] { return selection.Type() == SelectionType::Control; }));
  EXPECT_EQ(selection.ControlElement().tagName, QStringLiteral("IMG"));
  EXPECT_EQ(selection.ControlElement().Attribute(QStringLiteral("id")), QStringLiteral("pic"));
  selection.CreateRange()->PasteHTML(QStringLiteral("<hr>"));
  EXPECT_FALSE(DocumentHolds(QStringLiteral("<img"))) << Seen().constData();
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<hr>"))) << Seen().constData();
}

TEST_F(Editing, TheProgramsShortcutsReachTheWindow) {
  LoadWithCaret("<p>On</p>", QStringLiteral("p"));
  // The engine claims keys once it knows that text is being typed.
  QTest::mouseClick(Input(), Qt::LeftButton, {}, {300, 20});
  TypeText(QStringLiteral("e"));
  ASSERT_TRUE(WaitFor([&] {
    return DocumentHolds(QStringLiteral("One")) &&
           Input()->inputMethodQuery(Qt::ImEnabled).toBool();
  }));
  for (const char *keys : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "F12", "Alt+F", "Ctrl+F4", "Ctrl+B"}) {
    auto *action = new QAction(window_.get());
    action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
    window_->addAction(action);
    int triggered = 0;
    QObject::connect(action, &QAction::triggered, [&triggered] { ++triggered; });
    const QKeyCombination combination = action->shortcut()[0];
    Key(combination.key(), combination.keyboardModifiers());
    EXPECT_EQ(triggered, 1) << keys;
    delete action;
  }
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p>"))) << Seen().constData();
}

TEST_F(Editing, TheBrowsersOwnKeysDoNothing) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeText(QStringLiteral("!"));
  Key(Qt::Key_F5);
  Key(Qt::Key_R, Qt::ControlModifier);
  Key(Qt::Key_Left, Qt::AltModifier);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace, Qt::AltModifier);
  const QPointF middle(100, 100);
  QWheelEvent wheel(middle, Input()->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Input(), &wheel);
  TypeText(QStringLiteral("?"));
  ASSERT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("?</p>")); }))
      << Seen().constData();
  EXPECT_EQ(Page()->zoomFactor(), 1.0);
  EXPECT_EQ(listener_.completions, 1);
}

TEST_F(Editing, ARightClickAsksForTheContextMenuAndShowsNone) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QPoint place(60, 40);
  QTest::mouseClick(Input(), Qt::RightButton, {}, place);
  ASSERT_TRUE(WaitFor([&] { return listener_.menus == 1; }));
  EXPECT_EQ(listener_.menuPosition, Input()->mapToGlobal(place));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Editing, ThePointersPlaceInThePageIsTold) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QTest::mouseMove(Input(), {33, 44});
  ASSERT_TRUE(WaitFor([&] { return listener_.mouse == QPoint(33, 44); }));
  QTest::mouseClick(Input(), Qt::LeftButton, {}, {120, 77});
  EXPECT_TRUE(WaitFor([&] { return listener_.mouse == QPoint(120, 77); }));
}

TEST_F(Editing, CompletionIsToldBeforeTheFirstKey) {
  Show();
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), "<p>One</p>"));
  ASSERT_EQ(listener_.completions, 0);
  QString atCompletion;
  listener_.onComplete = [&] { atCompletion = editor_->DocumentHTML(); };
  QTest::keyClick(Input(), Qt::Key_X);
  EXPECT_EQ(listener_.completions, 1);
  EXPECT_TRUE(atCompletion.contains(QStringLiteral("<p>One</p>")));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("<p>xOne</p>")); }))
      << Seen().constData();
}

TEST_F(Editing, TwoEditorsDoNotDisturbEachOther) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  WebEditor other(Engine(), files_, Logic(QString()), nullptr);
  other.SetDocumentHTML(QStringLiteral("<p>Two</p>"));
  TypeText(QStringLiteral("!"));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("<p>One!</p>")); }));
  EXPECT_TRUE(other.DocumentHTML().contains(QStringLiteral("<p>Two</p>")));
}

TEST_F(Editing, AnEditedPageShowsTheDetailsGlyphsButDoesNotContainThem) {
  LoadWithCaret("<!-- c --><p>One<br></p>", QStringLiteral("p"));
  const QString before = editor_->DocumentHTML();
  editor_->SetShowDetails(true);
  editor_->SetSnapToGrid(true);
  EXPECT_EQ(editor_->DocumentHTML(), before);
  editor_->SetShowDetails(false);
  EXPECT_EQ(editor_->DocumentHTML(), before);
}

}  // namespace

}  // namespace velor
