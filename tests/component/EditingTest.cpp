// SPDX-License-Identifier: GPL-3.0-or-later
// A person's keys and buttons, the program's commands, and what comes back of them.
#include "platform/EditingCommands.h"
#include "tests/component/ComponentFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QWebEngineView>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace velor {

namespace {

class Editing : public WebEditorTest {
 protected:
  Editing() { QApplication::clipboard()->clear(); }

  QVariant Exec(EditingCommand command, const QVariant &value = {}) {
    return editor_->ExecCommand(Number(command), ExecOption::Default, value);
  }
  CommandStatus Status(EditingCommand command) const {
    return editor_->QueryStatus(Number(command));
  }
  bool Becomes(EditingCommand command, CommandStatus status) {
    return WaitFor([=, this] { return Status(command) == status; });
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Input(), key, modifiers);
  }
  bool BecomesDocument(const QString &body) {
    const QString whole = QStringLiteral("<body>") + body + QStringLiteral("</body>");
    return WaitFor([&] { return DocumentHolds(whole); });
  }
  QByteArray Seen() { return editor_->DocumentHTML().toUtf8(); }
};

TEST_F(Editing, TypedTextIsInTheDocument) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeText(QStringLiteral(" two"));
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One two</p>"))) << Seen().constData();
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

TEST_F(Editing, ClipboardKeysCutCopyAndPaste) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return !DocumentHolds(QStringLiteral("One")); })) << Seen().constData();
  ASSERT_TRUE(WaitFor([] { return QApplication::clipboard()->text() == QStringLiteral("One"); }));
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("OneOne")); }))
      << Seen().constData();
}

TEST_F(Editing, ClipboardCommandsCutCopyAndPaste) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Exec(EditingCommand::SelectAll);
  Exec(EditingCommand::Cut);
  ASSERT_TRUE(WaitFor([] { return QApplication::clipboard()->text() == QStringLiteral("One"); }));
  QApplication::clipboard()->setText(QStringLiteral("from elsewhere"));
  Exec(EditingCommand::Paste);
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("from elsewhere")); }))
      << Seen().constData();
  EXPECT_FALSE(DocumentHolds(QStringLiteral("One")));
}

TEST_F(Editing, ACopiedLinkOrPicturePastedAgainKeepsItsRelativeAddress) {
  LoadWithCaret(
      "<p>x<a href=\"sub/other.htm#part\">link</a><img src=\"pic.gif\">"
      "<a href=\"../up.htm\">up</a><a href=\"#top\">top</a></p><p>end</p>",
      QStringLiteral("p"));
  Exec(EditingCommand::SelectAll);
  Exec(EditingCommand::Copy);
  ASSERT_TRUE(WaitFor([] { return QApplication::clipboard()->text().contains(u"link"); }));
  Evaluate(QStringLiteral("getSelection().collapseToEnd()"));
  Exec(EditingCommand::Paste);
  ASSERT_TRUE(WaitFor([&] {
    return editor_->DocumentHTML().count(QStringLiteral("pic.gif")) == 2;
  })) << Seen().constData();
  EXPECT_EQ(editor_->DocumentHTML().count(QStringLiteral("src=\"pic.gif\"")), 2)
      << Seen().constData();
  EXPECT_EQ(editor_->DocumentHTML().count(QStringLiteral("href=\"sub/other.htm#part\"")), 2);
  EXPECT_EQ(editor_->DocumentHTML().count(QStringLiteral("href=\"../up.htm\"")), 2);
  EXPECT_EQ(editor_->DocumentHTML().count(QStringLiteral("href=\"#top\"")), 2);
  EXPECT_FALSE(DocumentHolds(QStringLiteral("velor-page"))) << Seen().constData();
  Exec(EditingCommand::Undo);
  EXPECT_EQ(editor_->DocumentHTML().count(QStringLiteral("pic.gif")), 1) << Seen().constData();
}

TEST_F(Editing, WhatIsCopiedHasTextAndMarkupThatHoldsElsewhere) {
  LoadWithCaret("<p>x <b><a href=\"sub/other.htm\">link</a></b> y</p>", QStringLiteral("p"));
  Evaluate(QStringLiteral("getSelection().selectAllChildren(document.querySelector('a'))"));
  Exec(EditingCommand::Copy);
  const QMimeData *data = nullptr;
  ASSERT_TRUE(WaitFor([&] {
    data = QApplication::clipboard()->mimeData();
    return data != nullptr && data->hasHtml();
  }));
  EXPECT_EQ(data->text(), QStringLiteral("link"));
  EXPECT_TRUE(data->html().contains(QStringLiteral("<b><a href=\"file://%1\">link</a></b>")
                                        .arg(Native(QStringLiteral("sub/other.htm")))))
      << qPrintable(data->html());
  EXPECT_FALSE(data->html().contains(u"velor-page"));
}

TEST_F(Editing, ControlShiftAndVPasteTheTextOnly) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  auto *data = new QMimeData;
  data->setHtml(QStringLiteral("<h1><b>two</b></h1>"));
  data->setText(QStringLiteral("two"));
  QApplication::clipboard()->setMimeData(data);
  Key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>Onetwo</p>"))) << Seen().constData();
}

TEST_F(Editing, APasteFromElsewhereIsCleaned) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  auto *data = new QMimeData;
  data->setHtml(QStringLiteral(
      "<p class=MsoNormal style='mso-x:y'>two <b>three</b><o:p></o:p></p><p>four</p>"));
  data->setText(QStringLiteral("two three"));
  QApplication::clipboard()->setMimeData(data);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p><p>two <b>three</b></p><p>four</p>")))
      << Seen().constData();
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

TEST_F(Editing, AnInputMethodsTextComesAndGoesAsOneStep) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeText(QStringLiteral(" "));
  for (const QString &preedit :
       {QStringLiteral("n"), QStringLiteral("ni"), QStringLiteral("\u4f60")}) {
    QInputMethodEvent compose(preedit, {});
    QApplication::sendEvent(Input(), &compose);
    ASSERT_TRUE(WaitFor([&] { return DocumentHolds(preedit + QStringLiteral("</p>")); }));
  }
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("\u4f60\u597d"));
  QApplication::sendEvent(Input(), &commit);
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p>One \u4f60\u597d</p>"))) << Seen().constData();
  TypeText(QStringLiteral("!"));
  ASSERT_TRUE(BecomesDocument(QStringLiteral("<p>One \u4f60\u597d!</p>"))) << Seen().constData();
  while (Status(EditingCommand::Undo) != CommandStatus::Disabled) {
    Exec(EditingCommand::Undo);
    EXPECT_FALSE(DocumentHolds(QStringLiteral("<p>One n"))) << Seen().constData();
  }
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p>"))) << Seen().constData();
}

TEST_F(Editing, AnAbandonedCompositionLeavesNothing) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QInputMethodEvent compose(QStringLiteral("ni"), {});
  QApplication::sendEvent(Input(), &compose);
  ASSERT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("Oneni")); }));
  QInputMethodEvent abandon;
  QApplication::sendEvent(Input(), &abandon);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p>"))) << Seen().constData();
}

TEST_F(Editing, ADeadKeysLetterAnEmojiAndTextFromRightToLeftAreTyped) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString texts[] = {QStringLiteral("\u00e9"), QStringLiteral("\U0001f600"),
                           QStringLiteral("\u05e9\u05dc\u05d5\u05dd")};
  QString typed = QStringLiteral("One");
  for (const QString &text : texts) {
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QApplication::sendEvent(Input(), &commit);
    typed += text;
    EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>%1</p>").arg(typed))) << Seen().constData();
  }
  Key(Qt::Key_Backspace);
  typed.chop(1);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>%1</p>").arg(typed))) << Seen().constData();
}

TEST_F(Editing, AComposedTextTakesTheFormatChosenForIt) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Exec(EditingCommand::Bold);
  ASSERT_TRUE(Becomes(EditingCommand::Bold, CommandStatus::Latched));
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("\u4f60"));
  QApplication::sendEvent(Input(), &commit);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One<b>\u4f60</b></p>"))) << Seen().constData();
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
  editor_->ExecCommand(4711, ExecOption::Default, QStringLiteral("x\"); velor.exec(5035"));
  EXPECT_EQ(editor_->DocumentHTML(), before);
  EXPECT_EQ(editor_->QueryStatus(4711), CommandStatus::NotSupported);
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

TEST_F(Editing, PastedMarkupReplacesTheSelectionAndStaysAsItStands) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Exec(EditingCommand::SelectAll);
  const QString markup = QStringLiteral(
      "<!-- note --><object classid=\"clsid:x\" onclick=\"go('\\u2028')\"></object>"
      "<script>if (a < b) go(\"x\\\\y\");</script>");
  editor_->Document().Selection().CreateRange()->PasteHTML(markup);
  EXPECT_TRUE(DocumentHolds(markup)) << Seen().constData();
  EXPECT_FALSE(DocumentHolds(QStringLiteral("One")));
  Exec(EditingCommand::Undo);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One</p>"))) << Seen().constData();
}

TEST_F(Editing, ACollapsedRangePastesBeforeTheSelection) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Exec(EditingCommand::SelectAll);
  const auto range = editor_->Document().Selection().CreateRange();
  range->Collapse();
  range->PasteHTML(QStringLiteral("<i>x</i>"));
  EXPECT_LT(editor_->DocumentHTML().indexOf(u"<i>x</i>"), editor_->DocumentHTML().indexOf(u"One"))
      << Seen().constData();
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<i>x</i>")));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("One")));
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
