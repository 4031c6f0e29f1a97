// SPDX-License-Identifier: GPL-3.0-or-later
// Clipboard content of other programs: several formats of one thing, files, large content, and
// addresses that must not be fetched.
#include "tests/engine/EditingFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QTcpServer>
#include <QTest>

namespace velor {

namespace {

class ForeignClipboard : public Editing {
 protected:
  static void Offer(QMimeData *data) { QApplication::clipboard()->setMimeData(data); }
  static void OfferHtml(const QString &html) {
    auto *data = new QMimeData;
    data->setHtml(html);
    data->setText(QStringLiteral("the text"));
    Offer(data);
  }
  static QImage Picture() {
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
  }
};

TEST_F(ForeignClipboard, MarkupIsTakenBeforeTextRichTextAndAPicture) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  auto *data = new QMimeData;
  data->setData(QStringLiteral("text/rtf"), "{\\rtf1 rich}");
  data->setHtml(QStringLiteral("<b>two</b>"));
  data->setText(QStringLiteral("plain"));
  data->setImageData(Picture());
  Offer(data);
  Exec(EditingCommand::Paste);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One<b>two</b></p>"))) << Seen().constData();
}

TEST_F(ForeignClipboard, TextIsTakenBeforeAPicture) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  auto *data = new QMimeData;
  data->setText(QStringLiteral(" two"));
  data->setImageData(Picture());
  Offer(data);
  Exec(EditingCommand::Paste);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One two</p>"))) << Seen().constData();
}

TEST_F(ForeignClipboard, MarkupInSixteenBitUnitsIsUnderstood) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString html = QStringLiteral("<b>zw\u00f6lf</b>");
  QByteArray codeUnits = QByteArray::fromHex("fffe");
  for (const QChar codeUnit : html) {
    codeUnits += static_cast<char>(codeUnit.unicode() & 0xff);
    codeUnits += static_cast<char>(codeUnit.unicode() >> 8);
  }
  auto *data = new QMimeData;
  data->setData(QStringLiteral("text/html"), codeUnits);
  Offer(data);
  Exec(EditingCommand::Paste);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One<b>zw\u00f6lf</b></p>"))) << Seen().constData();
}

TEST_F(ForeignClipboard, CopiedFilesAreTakenLikeDroppedOnesAndAreNoText) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  auto *data = new QMimeData;
  data->setUrls({QUrl::fromLocalFile(Native(QStringLiteral("a b.gif")))});
  data->setText(Native(QStringLiteral("a b.gif")));
  Offer(data);
  Exec(EditingCommand::Paste);
  EXPECT_TRUE(WaitFor([&] { return !listener_.files.isEmpty(); }));
  EXPECT_EQ(listener_.files, QStringList(Logic(QStringLiteral("a b.gif"))));
  TypeText(QStringLiteral("!"));
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One!</p>"))) << Seen().constData();
}

TEST_F(ForeignClipboard, TextOnlyTakesTheLooksOfWhereItGoes) {
  LoadWithCaret("<p><b>One</b></p>", QStringLiteral("b"));
  OfferHtml(QStringLiteral("<h1>the <i>text</i></h1>"));
  Key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p><b>Onethe text</b></p>"))) << Seen().constData();
}

TEST_F(ForeignClipboard, TextOnlyIsNoListAndHasNoLinks) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QApplication::clipboard()->setText(QStringLiteral(": a\n- b\n- http://c.example/"));
  Key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One: a<br>- b<br>- http://c.example/</p>")))
      << Seen().constData();
}

TEST_F(ForeignClipboard, TextIsPastedAsATableAndAsMarkdownInOneStepEach) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QApplication::clipboard()->setText(QStringLiteral("a\tb\nc\td"));
  Exec(EditingCommand::Paste, QStringLiteral("table"));
  EXPECT_TRUE(BecomesDocument(QStringLiteral(
      "<p>One</p><table border=\"1\"><tbody><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td>"
      "</tr></tbody></table>")))
      << Seen().constData();
  Exec(EditingCommand::Undo);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p>"))) << Seen().constData();
  QApplication::clipboard()->setText(QStringLiteral("# Two\n\nand *three*"));
  Exec(EditingCommand::Paste, QStringLiteral("markdown"));
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p><h1>Two</h1><p>and <em>three</em></p>")))
      << Seen().constData();
  Exec(EditingCommand::Undo);
  EXPECT_TRUE(BecomesDocument(QStringLiteral("<p>One</p>"))) << Seen().constData();
}

TEST_F(ForeignClipboard, EscapeStopsALongPasteAndThePageIsAsItWas) {
  const QByteArray page = "<P>One\n<P id=x>Two";
  LoadWithCaret(page, QStringLiteral("p"));
  const QString line = QStringLiteral("<p class=MsoNormal>words and <b>more</b><o:p></o:p></p>\n");
  OfferHtml(line.repeated(4'000'000 / static_cast<int>(line.size())));
  Exec(EditingCommand::Paste);
  ASSERT_TRUE(WaitFor([&] {
    return !listener_.reports.empty() && listener_.reports.back().contains(u"Escape stops it");
  }));
  TypeText(QStringLiteral("not now"));
  Key(Qt::Key_Escape);
  ASSERT_TRUE(WaitFor([&] { return listener_.reports.back().contains(u"was stopped"); }));
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelectorAll('p').length")).toInt(), 2);
  EXPECT_EQ(editor_->TextToSave().toUtf8(), page);
  EXPECT_EQ(Status(EditingCommand::Undo), CommandStatus::Disabled);
  TypeText(QStringLiteral("!"));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("One!")); })) << Seen().constData();
}

TEST_F(ForeignClipboard, ALongPasteThatIsNotStoppedIsOneStep) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString line = QStringLiteral("<p class=MsoNormal>words and <b>more</b><o:p></o:p></p>\n");
  const int count = 400'000 / static_cast<int>(line.size());
  OfferHtml(line.repeated(count));
  Exec(EditingCommand::Paste);
  const QString paragraphs = QStringLiteral("document.querySelectorAll('p').length");
  ASSERT_TRUE(WaitFor([&] { return Evaluate(paragraphs).toInt() == count + 1; }));
  EXPECT_TRUE(WaitFor([&] { return listener_.reports.back().isEmpty(); }));
  Exec(EditingCommand::Undo);
  EXPECT_EQ(Evaluate(paragraphs).toInt(), 1);
}

TEST_F(ForeignClipboard, NothingIsFetchedForIt) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString site = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
  OfferHtml(QStringLiteral("<link rel=stylesheet href=\"%1a.css\"><style>@import '%1b.css';"
                           "</style><p background=\"%1c.png\">two<img src=\"%1d.png\" "
                           "srcset=\"%1e.png 2x\"><object data=\"%1f\"></object></p>"
                           "<p style=\"background: url(%1g)\">three</p>")
                .arg(site));
  Exec(EditingCommand::Paste);
  ASSERT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("d.png")); }));
  ASSERT_TRUE(
      WaitFor([&] { return Evaluate(QStringLiteral("document.images[0].complete")).toBool(); }));
  EXPECT_FALSE(server.hasPendingConnections());
  EXPECT_FALSE(DocumentHolds(QStringLiteral("e.png")));
}

TEST_F(ForeignClipboard, MuchOfItIsPastedAsOneStep) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString line = QStringLiteral(
      "<p class=MsoNormal style='mso-x:y'><span style='font-size:9pt'>words and <b>more</b></span>"
      "<o:p></o:p></p>\n");
  OfferHtml(line.repeated(256 * 1024 / static_cast<int>(line.size())));
  Exec(EditingCommand::Paste);
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(QStringLiteral("document.querySelectorAll('p').length")).toInt() > 2'000;
  }));
  Exec(EditingCommand::Undo);
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelectorAll('p').length")).toInt(), 1);
}

}  // namespace

}  // namespace velor
