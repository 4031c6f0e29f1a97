// SPDX-License-Identifier: GPL-3.0-or-later
// Show details: a glyph for each thing that a page does not show, and the page left as it is.
#include "tests/bridge/BridgePage.h"

#include <QTest>

#include <gtest/gtest.h>

namespace velor {
namespace {

class Details : public ::testing::Test {
 protected:
  void Load(const QString &body) {
    page_.Load(QStringLiteral("<!DOCTYPE html><html><head><style>body { margin: 0 }</style></head>"
                              "<body>") +
               body + QStringLiteral("</body></html>"));
    text_ = Text(QStringLiteral("velor.serialize()"));
    Evaluate(
        QStringLiteral("globalThis.records = 0;"
                       "new MutationObserver((all) => { records += all.length; })"
                       ".observe(document, {subtree: true, childList: true, attributes: true,"
                       "                    characterData: true})"));
  }
  QVariant Evaluate(const QString &expression) { return page_.Evaluate(expression); }
  QString Text(const QString &expression) { return Evaluate(expression).toString(); }
  bool Comes(const QString &condition) {
    return QTest::qWaitFor([this, &condition] { return Evaluate(condition).toBool(); }, 5000);
  }
  QString Glyph(const QString &selector) {
    return Text(QStringLiteral("getComputedStyle(document.querySelector('%1'), '::before').content")
                    .arg(selector));
  }
  /// Whether that many signs come to be drawn over the page.
  bool SignsCome(int count) {
    return Comes(QStringLiteral("getComputedStyle(document.head, '::before')"
                                ".backgroundImage.split('data:image').length === %1")
                     .arg(count + 1));
  }
  void ExpectUntouchedPage() {
    EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), text_);
    EXPECT_EQ(Evaluate(QStringLiteral("records")).toInt(), 0);
    EXPECT_FALSE(Evaluate(QStringLiteral("velor.history.canUndo()")).toBool());
  }

  BridgePage page_;
  QString text_;
};

TEST_F(Details, MarkParagraphsAnchorsAndForms) {
  Load(QStringLiteral("<p>one</p><a name='x'></a><a href='y'>link</a><form><p>two</p></form>"));
  for (const char *selector : {"p", "a[name]", "form", "form p"}) {
    EXPECT_EQ(Glyph(QString::fromLatin1(selector)), QStringLiteral("none")) << selector;
  }
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  EXPECT_EQ(Glyph(QStringLiteral("p")), QStringLiteral("\"¶\""));
  EXPECT_EQ(Glyph(QStringLiteral("form")), QStringLiteral("\"form\""));
  EXPECT_NE(Glyph(QStringLiteral("a[name]")), QStringLiteral("none"));
  EXPECT_EQ(Glyph(QStringLiteral("a[href]")), QStringLiteral("none"));
  ExpectUntouchedPage();
  Evaluate(QStringLiteral("velor.setDetails(false)"));
  EXPECT_EQ(Glyph(QStringLiteral("p")), QStringLiteral("none"));
}

TEST_F(Details, DrawTheBordersOfTablesThatHaveNone) {
  Load(
      QStringLiteral("<table id='none'><tbody><tr><td>x</td></tr></tbody></table>"
                     "<table id='some' border='1'><tbody><tr><td>x</td></tr></tbody></table>"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  const QString line =
      QStringLiteral("getComputedStyle(document.querySelector('%1')).outlineStyle");
  EXPECT_EQ(Text(line.arg(QStringLiteral("#none"))), QStringLiteral("dotted"));
  EXPECT_EQ(Text(line.arg(QStringLiteral("#none td"))), QStringLiteral("dotted"));
  EXPECT_EQ(Text(line.arg(QStringLiteral("#some"))), QStringLiteral("none"));
  EXPECT_EQ(Text(line.arg(QStringLiteral("#some td"))), QStringLiteral("none"));
  ExpectUntouchedPage();
}

TEST_F(Details, MarkBreaksCommentsAndScripts) {
  Load(QStringLiteral("<p>one<br>two</p><!-- a comment --><p>three</p><script>x</script>"));
  EXPECT_TRUE(SignsCome(0));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  EXPECT_TRUE(SignsCome(3));
  ExpectUntouchedPage();
  Evaluate(QStringLiteral("velor.setDetails(false)"));
  EXPECT_TRUE(SignsCome(0));
}

TEST_F(Details, FollowWhatIsTyped) {
  Load(QStringLiteral("<p>one</p>"));
  Evaluate(
      QStringLiteral("velor.setDetails(true); velor.host = {pushState() {}, pushMirror() {}}"));
  page_.Press(QKeySequence(Qt::SHIFT | Qt::Key_Return));
  page_.Type(QStringLiteral("x"));
  EXPECT_TRUE(SignsCome(1));
}

TEST_F(Details, DrawOnlyWhatIsInSightOfALongPage) {
  QString body;
  for (int line = 0; line < 3000; ++line) body += QStringLiteral("<p>a line<br>and more</p>");
  Load(body);
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  const QString signs = QStringLiteral(
      "getComputedStyle(document.head, '::before').backgroundImage"
      ".split('data:image').length - 1");
  ASSERT_TRUE(Comes(signs + QStringLiteral(" > 5")));
  EXPECT_LT(Evaluate(signs).toInt(), 60);
  Evaluate(QStringLiteral("scrollTo(0, 50000)"));
  EXPECT_TRUE(Comes(QStringLiteral(
      "parseFloat(getComputedStyle(document.head, '::before').top) === 50000")));
  EXPECT_GT(Evaluate(signs).toInt(), 5);
  EXPECT_LT(Evaluate(signs).toInt(), 60);
}

}  // namespace
}  // namespace velor
