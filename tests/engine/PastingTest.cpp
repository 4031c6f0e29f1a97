// SPDX-License-Identifier: GPL-3.0-or-later
// What the insert commands give the page: markup pasted in place of the selection.
#include "platform/EditingCommands.h"
#include "tests/engine/ComponentFixture.h"

#include <QRegularExpression>
#include <QTest>

namespace velor {

namespace {

const QString Table = QStringLiteral(
    "<Table border=\"1\" width=75%>\r\n   <TR>\r\n      "
    "<TD></TD>\r\n   </TR>\r\n</Table>\r\n");

class Pasting : public WebEditorTest {
 protected:
  void Paste(const QString &html) {
    editor_->Document().Selection().CreateRange()->PasteHTML(html);
  }
  void Exec(EditingCommand command) { editor_->ExecCommand(command, ExecOption::Default, {}); }
  /// Selects from and to places in the text nodes of two elements.
  void Select(const QString &from, int start, const QString &to, int end) {
    Evaluate(QStringLiteral("getSelection().setBaseAndExtent(document.querySelector('%1')"
                            ".firstChild, %2, document.querySelector('%3').firstChild, %4)")
                 .arg(from)
                 .arg(start)
                 .arg(to)
                 .arg(end));
  }
  /// The body's markup without white space between tags.
  std::string Body() {
    // The component reads behind what is on its way to the page; this test's own look would not.
    editor_->DocumentHTML();
    QString body = Evaluate(QStringLiteral("document.body.innerHTML")).toString();
    return body.replace(QRegularExpression(QStringLiteral(">\\s+<")), QStringLiteral("><"))
        .trimmed()
        .toStdString();
  }
  /// Undo takes the paste back whole, and redo brings it again whole.
  void ExpectOneStep(const std::string &before) {
    const std::string after = Body();
    EXPECT_NE(after, before);
    Exec(EditingCommand::Undo);
    EXPECT_EQ(Body(), before);
    Exec(EditingCommand::Redo);
    EXPECT_EQ(Body(), after);
  }
};

TEST_F(Pasting, ScriptsHandlersCommentsAndObjectsStayAndNothingOfThemRuns) {
  LoadWithCaret("<p id=p>One two</p>", QStringLiteral("p"));
  Select(QStringLiteral("p"), 3, QStringLiteral("p"), 4);
  const std::string before = Body();
  const QString markup = QStringLiteral(
      "<!-- note --><script>document.title = 'ran'</script><img src=\"x.gif\" onerror=\"document"
      ".title = 'ran'\"><object classid=\"clsid:1\"><param name=\"a\" value=\"b\"></object>");
  Paste(markup);
  EXPECT_EQ(Body(), "<p id=\"p\">One" + markup.toStdString() + "two</p>");
  EXPECT_NE(Evaluate(QStringLiteral("document.title")).toString(), QStringLiteral("ran"));
  ExpectOneStep(before);
}

TEST_F(Pasting, ATableSplitsItsParagraphAndDoublesNoId) {
  LoadWithCaret("<p id=p class=c>One two</p>", QStringLiteral("p"));
  Select(QStringLiteral("p"), 3, QStringLiteral("p"), 4);
  const std::string before = Body();
  Paste(Table);
  EXPECT_EQ(Body(),
            "<p id=\"p\" class=\"c\">One</p><table border=\"1\" width=\"75%\"><tbody><tr><td>"
            "</td></tr></tbody></table><p class=\"c\">two</p>");
  ExpectOneStep(before);
  Select(QStringLiteral("p"), 1, QStringLiteral("p"), 2);
  Paste(QStringLiteral("<b id=p>new</b>"));
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelectorAll('[id=p]').length")).toInt(), 1);
}

TEST_F(Pasting, ASelectionOverParagraphsIsReplacedInOneStep) {
  LoadWithCaret("<p id=a>One two</p><h2 id=b>Three four</h2>", QStringLiteral("p"));
  Select(QStringLiteral("#a"), 4, QStringLiteral("#b"), 6);
  const std::string before = Body();
  Paste(QStringLiteral("<img src=\"x.gif\">"));
  EXPECT_EQ(Body(), "<p id=\"a\">One <img src=\"x.gif\">four</p>");
  ExpectOneStep(before);
}

TEST_F(Pasting, ASelectedPictureIsReplacedInOneStep) {
  LoadWithCaret("<p>One <img src='none.gif' width=200 height=100> two</p>", QStringLiteral("p"));
  const std::string before = Body();
  const QVariantList place =
      Evaluate(QStringLiteral("{ const r = document.images[0].getBoundingClientRect();"
                              "[r.left + 50, r.top + 50] }"))
          .toList();
  ASSERT_EQ(place.size(), 2);
  Show();
  QTest::mouseClick(Input(), Qt::LeftButton, {}, {place[0].toInt(), place[1].toInt()});
  ASSERT_TRUE(
      WaitFor([&] { return editor_->Document().Selection().Type() == SelectionType::Control; }));
  Paste(QStringLiteral("<img src=\"new.gif\" alt=\"\">"));
  EXPECT_EQ(Body(), "<p>One <img src=\"new.gif\" alt=\"\"> two</p>");
  ExpectOneStep(before);
}

TEST_F(Pasting, TheEmptyTextRemovesTheSelectionInOneStepAndACaretLeavesThePageAlone) {
  LoadWithCaret("<p>One two</p>", QStringLiteral("p"));
  const std::string before = Body();
  Paste({});
  EXPECT_EQ(Body(), before);
  Select(QStringLiteral("p"), 0, QStringLiteral("p"), 4);
  Paste({});
  EXPECT_EQ(Body(), "<p>two</p>");
  ExpectOneStep(before);
}

TEST_F(Pasting, APictureOfAnUnusualNameKeepsItsAddress) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const QString name = QStringLiteral("a b'\"#50%&\u732b.gif");
  QString escaped = name;
  escaped.replace(u'&', QStringLiteral("&amp;")).replace(u'"', QStringLiteral("&quot;"));
  Paste(QStringLiteral("<IMG src=\"%1\" alt=\"\">").arg(escaped));
  EXPECT_EQ(Evaluate(QStringLiteral("document.images[0].getAttribute('src')")).toString(), name);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("src=\"%1\"").arg(escaped)))
      << editor_->DocumentHTML().toStdString();
}

TEST_F(Pasting, ALongTableIsPastedAndTakenBackWhole) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const std::string before = Body();
  Paste(
      QStringLiteral("<Table>") +
      (QStringLiteral("<TR>") + QStringLiteral("<TD></TD>").repeated(100) + QStringLiteral("</TR>"))
          .repeated(300) +
      QStringLiteral("</Table>"));
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelectorAll('td').length")).toInt(), 30'000);
  ExpectOneStep(before);
}

TEST_F(Pasting, ATableOfMillionsOfCellsIsRefusedWithWords) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  const std::string before = Body();
  listener_.reports.clear();
  const QString row =
      QStringLiteral("<TR>") + QStringLiteral("<TD></TD>").repeated(1800) + QStringLiteral("</TR>");
  Paste(QStringLiteral("<Table>") + row.repeated(1800) + QStringLiteral("</Table>"));
  EXPECT_TRUE(WaitFor([&] { return !listener_.reports.empty(); }));
  EXPECT_EQ(Body(), before);
}

}  // namespace

}  // namespace velor
