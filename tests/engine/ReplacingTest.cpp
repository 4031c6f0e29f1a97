// SPDX-License-Identifier: GPL-3.0-or-later
// A document loaded in another's place is a step that undo takes back.
#include "platform/EditingCommands.h"
#include "tests/engine/ComponentFixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>
#include <QTimer>

#include <csignal>

namespace velor {

namespace {

const QByteArray Head =
    "<!DOCTYPE html>\r\n<html><head><meta charset=utf-8><title>T</title></head>";

class Replacing : public WebEditorTest {
 protected:
  void LoadPage(const QByteArray &bytes, const char *name = "page.htm") {
    editor_->LoadDocument(Write(QString::fromLatin1(name), bytes));
  }
  void Undo() { editor_->ExecCommand(EditingCommand::Undo, ExecOption::Default, {}); }
  void Redo() { editor_->ExecCommand(EditingCommand::Redo, ExecOption::Default, {}); }
  bool Becomes(EditingCommand command, CommandStatus status) {
    return WaitFor([=, this] { return editor_->QueryStatus(command) == status; });
  }
  bool BecomesBody(const QString &body) {
    return WaitFor(
        [&] { return Evaluate(QStringLiteral("document.body.innerHTML")).toString() == body; });
  }
  QByteArray Saved() {
    editor_->SaveDocument(Logic(QStringLiteral("saved.htm")));
    return Bytes(QStringLiteral("saved.htm"));
  }
  QVariant Mark() { return Evaluate(QStringLiteral("globalThis.mark")); }
  void SetMark() { Evaluate(QStringLiteral("globalThis.mark = 'same page'")); }
};

TEST_F(Replacing, TheOtherDocumentComesInOneStepWithinThePage) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  SetMark();
  LoadPage(Head + "<body><p>Two</p><p>Three</p></body></html>", "copy.htm");
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>Two</p><p>Three</p>")));
  EXPECT_EQ(Mark().toString(), QStringLiteral("same page"));
  ASSERT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Enabled));
  Undo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
  EXPECT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Disabled));
  Redo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>Two</p><p>Three</p>")));
}

TEST_F(Replacing, AFirstSaveInAnotherFolderKeepsTheDocumentTheCaretAndUndo) {
  editor_->SetDocumentHTML(
      QStringLiteral("<html><head><title>T</title></head>\r\n<body>\r\n<p>One</p>\r\n"
                     "<p>Two</p>\r\n</body>"));
  Show();
  Evaluate(QStringLiteral("getSelection().collapse(document.querySelector('p').firstChild, 3)"));
  TypeText(QStringLiteral("x"));
  ASSERT_TRUE(WaitFor([&] { return editor_->DocumentHTML().contains(QStringLiteral("Onex")); }));
  SetMark();
  ASSERT_TRUE(QDir(QFileInfo(Native(QStringLiteral("a"))).path()).mkdir(QStringLiteral("site")));
  const QString file = Logic(QStringLiteral("site/first.htm"));
  editor_->SaveDocument(file);
  const QByteArray saved = Bytes(QStringLiteral("site/first.htm"));
  editor_->LoadDocument(file);
  EXPECT_EQ(Mark().toString(), QStringLiteral("same page"));
  EXPECT_TRUE(Evaluate(QStringLiteral("document.baseURI"))
                  .toString()
                  .contains(QStringLiteral("/site/first.htm")));
  TypeText(QStringLiteral("y"));
  ASSERT_TRUE(WaitFor([&] { return editor_->DocumentHTML().contains(QStringLiteral("Onexy")); }));
  Undo();
  Undo();
  EXPECT_TRUE(
      WaitFor([&] { return editor_->DocumentHTML().contains(QStringLiteral("<p>One</p>")); }));
  Redo();
  ASSERT_TRUE(
      WaitFor([&] { return editor_->DocumentHTML().contains(QStringLiteral("<p>Onex</p>")); }));
  editor_->SaveDocument(file);
  EXPECT_EQ(Bytes(QStringLiteral("site/first.htm")), saved);
}

TEST_F(Replacing, AnotherDocumentOfAnotherFolderIsLoaded) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  SetMark();
  ASSERT_TRUE(QDir(QFileInfo(Native(QStringLiteral("a"))).path()).mkdir(QStringLiteral("site")));
  LoadPage(Head + "<body><p>Two</p></body></html>", "site/other.htm");
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>Two</p>")));
  EXPECT_FALSE(Mark().isValid());
}

TEST_F(Replacing, WhatWasDoneBeforeIsTakenBackBehindIt) {
  LoadWithCaret(Head + "<body><p>One</p></body></html>", QStringLiteral("p"));
  TypeText(QStringLiteral("!"));
  ASSERT_TRUE(BecomesBody(QStringLiteral("<p>One!</p>")));
  LoadPage(Head + "<body><h1>Applied</h1></body></html>");
  ASSERT_TRUE(BecomesBody(QStringLiteral("<h1>Applied</h1>")));
  Undo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One!</p>")));
  Undo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
  Redo();
  Redo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<h1>Applied</h1>")));
}

TEST_F(Replacing, DoctypeCommentsHeadAndRootAttributesAreExchangedToo) {
  const QByteArray before =
      "<!DOCTYPE html><!-- a --><html lang=en><head><title>A</title></head>"
      "<body bgcolor=white><p>One</p></body></html><!-- z -->";
  LoadPage(before);
  const QString first = editor_->DocumentHTML();
  LoadPage(
      "<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01//EN\" "
      "\"http://www.w3.org/TR/html4/strict.dtd\">"
      "<html lang=fr class=b><head><title>B</title></head><body "
      "text=red><p>Deux</p></body></html>");
  const QString second = editor_->DocumentHTML();
  EXPECT_TRUE(second.contains(QStringLiteral("strict.dtd"))) << qPrintable(second);
  EXPECT_TRUE(second.contains(QStringLiteral("lang=\"fr\"")));
  EXPECT_FALSE(second.contains(QStringLiteral("<!--")));
  Undo();
  EXPECT_TRUE(WaitFor([&] { return editor_->DocumentHTML() == first; }));
  EXPECT_EQ(Saved(), before);
  Redo();
  EXPECT_TRUE(WaitFor([&] { return editor_->DocumentHTML() == second; }));
}

TEST_F(Replacing, EachDocumentIsSavedWithItsOwnBytesCharsetAndLineEnds) {
  const QByteArray big5 = "<META charset=big5>\r\n<p>\xa4\xa4</P>\r\n";
  const QByteArray utf8 = "<META charset=utf-8>\n<p>\xe4\xb8\xad</P>\n";
  LoadPage(big5);
  LoadPage(utf8);
  EXPECT_EQ(Saved(), utf8);
  EXPECT_EQ(editor_->Charset(), QStringLiteral("utf-8"));
  Undo();
  EXPECT_EQ(Saved(), big5);
  EXPECT_EQ(editor_->Charset(), QStringLiteral("big5"));
  Redo();
  EXPECT_EQ(Saved(), utf8);
}

TEST_F(Replacing, TheTextFormIsTheShownDocumentsWhenADisplayChangeIsTold) {
  LoadPage("<META charset=big5>\r\n<p>\xa4\xa4</P>\r\n");
  LoadPage("<META charset=utf-8>\n<p>\xe4\xb8\xad</P>\n");
  EXPECT_EQ(editor_->TextForm(), QStringLiteral("utf-8, LF"));
  QString told;
  listener_.onDisplayChange = [&] { told = editor_->TextForm(); };
  ASSERT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Enabled));
  Undo();
  EXPECT_TRUE(WaitFor([&] { return told == QStringLiteral("big5, CR LF"); }));
  Redo();
  EXPECT_TRUE(WaitFor([&] { return told == QStringLiteral("utf-8, LF"); }));
}

TEST_F(Replacing, AfterTakingItBackEditingGoesOnInTheOldCharset) {
  LoadWithCaret("<meta charset=big5>\r\n<p>\xa4\xa4</p>", QStringLiteral("p"));
  LoadPage("<meta charset=utf-8>\n<p>\xe4\xb8\xad</p>");
  Undo();
  ASSERT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("big5")); }));
  editor_->Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<b>x</b>"));
  EXPECT_TRUE(Saved().contains("\xa4\xa4"));
  EXPECT_TRUE(Saved().contains("<b>x</b>"));
}

TEST_F(Replacing, TheSameDocumentAgainLeavesNoStep) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  ASSERT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Disabled));
  const QByteArray same = Head + "<body><P>One</P></body></html>";
  LoadPage(same, "other.htm");
  EXPECT_EQ(Saved(), same);
  EXPECT_EQ(editor_->QueryStatus(EditingCommand::Undo), CommandStatus::Disabled);
}

TEST_F(Replacing, TheCaretStaysWhereItWas) {
  LoadWithCaret(Head + "<body><p>One</p><p>Two</p></body></html>", QStringLiteral("p"));
  LoadPage(Head + "<body><p>One</p><p>Two more</p></body></html>");
  editor_->SetFocus();
  TypeText(QStringLiteral("!"));
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One!</p><p>Two more</p>")));
}

TEST_F(Replacing, CompletionIsToldForEachDocument) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  ASSERT_TRUE(WaitFor([&] { return listener_.completions == 1; }));
  LoadPage(Head + "<body><p>Two</p></body></html>");
  EXPECT_EQ(listener_.completions, 1);
  EXPECT_TRUE(WaitFor([&] { return listener_.completions == 2; }));
}

TEST_F(Replacing, PicturesOfTheNewDocumentShow) {
  QImage picture(3, 2, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(Native(QStringLiteral("a.png")), "PNG"));
  LoadPage(Head + "<body><p>One</p></body></html>");
  LoadPage(Head + "<body><img src=a.png></body></html>");
  EXPECT_TRUE(WaitFor(
      [&] { return Evaluate(QStringLiteral("document.images[0].naturalWidth")).toInt() == 3; }));
}

class ReplacingByLoad : public Replacing, public ::testing::WithParamInterface<QByteArray> {};

TEST_P(ReplacingByLoad, UndoComesBackToTheEarlierDocumentAndRedoToThisOne) {
  const QByteArray before = Head + "<body><P>One</P></body></html>";
  LoadPage(before);
  SetMark();
  LoadPage(GetParam());
  EXPECT_FALSE(Mark().isValid()) << "only a load can bring this document";
  EXPECT_EQ(Saved(), GetParam());
  Undo();
  ASSERT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
  EXPECT_EQ(Saved(), before);
  ASSERT_TRUE(Becomes(EditingCommand::Redo, CommandStatus::Enabled));
  EXPECT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Disabled));
  Redo();
  ASSERT_TRUE(WaitFor([&] { return !DocumentHolds(QStringLiteral("<p>One</p>")); }));
  EXPECT_EQ(Saved(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Contents, ReplacingByLoad,
    ::testing::Values(QByteArray("<html><body><P>Quirks</P></body></html>"),
                      Head + "<body><meta http-equiv=Content-Security-Policy "
                             "content=\"img-src 'none'\"><P>x</P></body></html>"));

TEST_F(Replacing, AFramesetIsLoadedAndAPageAfterItAsWell) {
  LoadPage("<html><body><p>One</p></body></html>");
  LoadPage("<frameset cols='*,*'><frame src=a.htm><frame src=b.htm></frameset>");
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<frameset")));
  LoadPage("<html><body><p>Two</p></body></html>");
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>Two</p>")));
  ASSERT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Enabled));
  Undo();
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("<frameset")); }));
}

TEST_F(Replacing, AnEditAfterComingBackHasNoWayOnwards) {
  LoadWithCaret(Head + "<body><p>One</p></body></html>", QStringLiteral("p"));
  LoadPage("<html><body><p>Quirks</p></body></html>");
  Undo();
  ASSERT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
  ASSERT_TRUE(Becomes(EditingCommand::Redo, CommandStatus::Enabled));
  editor_->SetFocus();
  TypeText(QStringLiteral("!"));
  EXPECT_TRUE(Becomes(EditingCommand::Redo, CommandStatus::Disabled));
}

TEST_F(Replacing, ADocumentOfAnotherFolderHasAHistoryOfItsOwn) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("other")));
  LoadPage(Head + "<body><p>One</p></body></html>");
  LoadPage(Head + "<body><p>Two</p></body></html>", "other/page.htm");
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>Two</p>")));
  EXPECT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Disabled));
}

TEST_F(Replacing, APageWhoseProcessEndsMeanwhileTakesTheDocumentAndCanComeBack) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  QByteArray page = Head + "<body><p>long</p>";
  while (page.size() < 2'000'000) page += "<p>One more paragraph of a long page.</p>\n";
  const QString path = Write(QStringLiteral("long.htm"), page);
  const auto process = static_cast<pid_t>(Page()->renderProcessPid());
  QTimer::singleShot(5, window_.get(), [process] { ::kill(process, SIGKILL); });
  editor_->LoadDocument(path);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>long</p>")));
  ASSERT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Enabled));
  Undo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
}

TEST_F(Replacing, APageClosedMeanwhileIsNoHarm) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  const QString path = Write(QStringLiteral("two.htm"), Head + "<body><p>Two</p></body></html>");
  QTimer::singleShot(0, qApp, [&] { editor_.reset(); });
  editor_->LoadDocument(path);
  EXPECT_EQ(editor_, nullptr);
}

TEST_F(Replacing, AMissingFileLeavesThePageAsItWas) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  EXPECT_ANY_THROW(editor_->LoadDocument(Logic(QStringLiteral("missing.htm"))));
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
}

TEST_F(Replacing, TextIsTakenWithoutItsFileAndLinksResolveBesideIt) {
  QImage picture(3, 2, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("site")));
  ASSERT_TRUE(picture.save(Native(QStringLiteral("site/a.png")), "PNG"));
  LoadPage("<meta charset=big5>\r\n<p>\xa4\xa4</p>", "site/page.htm");
  editor_->LoadText(QStringLiteral("<p>\u4e2d</p><img src=a.png>"),
                    Logic(QStringLiteral("site/none.htm")));
  EXPECT_TRUE(WaitFor(
      [&] { return Evaluate(QStringLiteral("document.images[0].naturalWidth")).toInt() == 3; }));
  EXPECT_FALSE(QFile::exists(Native(QStringLiteral("site/none.htm"))));
  Undo();
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("charset=\"big5\"")); }));
}

TEST_F(Replacing, ControlCharactersAndWrongUnitsInTheTextAreNoHarm) {
  LoadPage(Head + "<body><p>One</p></body></html>");
  QString text = QStringLiteral("<!DOCTYPE html><p>a");
  text += QChar(0);
  text += QChar(0xD800);
  text += QStringLiteral("b</p>");
  editor_->LoadText(text, Logic(QStringLiteral("page.htm")));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("b</p>")); }));
  EXPECT_TRUE(Evaluate(QStringLiteral("document.body.textContent.startsWith('a')")).toBool());
  Undo();
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One</p>")));
}

TEST_F(Replacing, TheCaretsPlaceIsToldByElementAndOffset) {
  LoadWithCaret(Head + "<body><p>One</p><p>Two <b>bold</b></p></body></html>", QStringLiteral("b"));
  const ElementPlaces places = editor_->CaretPlaces();
  ASSERT_GE(places.size(), 4u);
  EXPECT_EQ(places[0], (ElementPlace{QStringLiteral("b"), 0, 4}));
  EXPECT_EQ(places[1], (ElementPlace{QStringLiteral("p"), 1, 8}));
  EXPECT_EQ(places[2].name, QStringLiteral("body"));
}

TEST_F(Replacing, TheCaretGoesToTheFirstPlaceThatThereIs) {
  LoadWithCaret(Head + "<body><p>One</p><p>Two <b>bold</b></p></body></html>", QStringLiteral("p"));
  editor_->ShowPlace({{QStringLiteral("font"), 7, 1}, {QStringLiteral("p"), 1, 6}});
  EXPECT_EQ(editor_->CaretPlaces().at(1), (ElementPlace{QStringLiteral("p"), 1, 6}));
  TypeText(QStringLiteral("!"));
  EXPECT_TRUE(BecomesBody(QStringLiteral("<p>One</p><p>Two <b>bo!ld</b></p>")));
}

TEST_F(Replacing, ThePlaceIsBroughtIntoSight) {
  QByteArray page = Head + "<body>";
  for (int number = 0; number < 300; ++number) page += "<p>line</p>";
  LoadWithCaret(page, QStringLiteral("p"));
  editor_->ShowPlace({{QStringLiteral("p"), 290, 1}});
  EXPECT_TRUE(WaitFor([&] {
    return Evaluate(QStringLiteral("(() => { const box = document.querySelectorAll('p')[290]"
                                   ".getBoundingClientRect(); return box.top >= 0 && "
                                   "box.bottom <= innerHeight; })()"))
        .toBool();
  }));
}

}  // namespace

}  // namespace velor
