// SPDX-License-Identifier: GPL-3.0-or-later
// Pasting, copying, markup inserted by the program, and input methods.
#include "tests/engine/EditingFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

namespace velor {

namespace {

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

TEST_F(Editing, APictureAloneIsPastedAsAFileBesideThePage) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QImage image(30, 20, QImage::Format_RGB32);
  image.fill(Qt::red);
  QApplication::clipboard()->setImage(image);
  const QString folder = folder_.path() + QLatin1Char('/');
  QFile taken(folder + QStringLiteral("picture1.png"));
  ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
  Exec(EditingCommand::Paste);
  const QString markup =
      QStringLiteral("<p>One<img src=\"picture2.png\" alt=\"\" width=\"30\" height=\"20\"></p>");
  ASSERT_TRUE(WaitFor([&] { return DocumentHolds(markup); })) << Seen().constData();
  EXPECT_EQ(QImage(folder + QStringLiteral("picture2.png")).convertToFormat(image.format()), image);
  EXPECT_EQ(taken.size(), 0);
  Exec(EditingCommand::Undo);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One</p>"))) << Seen().constData();
}

TEST_F(Editing, APictureAloneIsWithinThePageWhereThatHasNoFile) {
  editor_->SetDocumentHTML(QStringLiteral("<p>One</p>"));
  QImage image(3, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  QApplication::clipboard()->setImage(image);
  Exec(EditingCommand::Paste);
  EXPECT_TRUE(WaitFor([&] {
    return DocumentHolds(QStringLiteral("<img src=\"data:image/png;base64,"));
  })) << Seen().constData();
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

}  // namespace

}  // namespace velor
