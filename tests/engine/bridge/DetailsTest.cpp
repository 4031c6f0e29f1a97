// SPDX-License-Identifier: GPL-3.0-or-later
// Show details: a glyph for each thing that a page does not show, and the page left as it is.
#include "tests/engine/bridge/BridgeFixture.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

class Details : public BridgeFixture {
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
  QString Glyph(const QString &selector) {
    return Text(QStringLiteral("getComputedStyle(document.querySelector('%1'), '::before').content")
                    .arg(selector));
  }
  /// Waits until that many signs are drawn over the page; false at the time limit.
  bool SignsCome(int count) {
    return Comes(QStringLiteral("getComputedStyle(document.head, '::before')"
                                ".backgroundImage.split('data:image').length === %1")
                     .arg(count + 1));
  }
  void ExpectUntouchedPage() {
    EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), text_);
    EXPECT_EQ(Evaluate(QStringLiteral("records")).toInt(), 0);
    EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
  }

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

TEST_F(Details, MarkWhatIsHiddenAndWhatHtmlDoesNotKnow) {
  Load(
      QStringLiteral("<form><input type='hidden' name='a'><input></form><style>p {}</style>"
                     "<o:p>text</o:p><p>one<embed width='9' height='9'></p><map name='m'></map>"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  EXPECT_TRUE(SignsCome(5));
  for (const char *text : {"hidden", "style", "o:p", "embed", "map"}) {
    EXPECT_TRUE(Comes(QStringLiteral("decodeURIComponent(getComputedStyle(document.head, "
                                     "'::before').backgroundImage).includes('>%1</text>')")
                          .arg(QString::fromLatin1(text))))
        << text;
  }
  ExpectUntouchedPage();
}

TEST_F(Details, SelectAnObjectThatShowsNothingByItsSign) {
  Load(QStringLiteral("<p>one<embed width='9' height='9'></p><p>two</p>"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  ASSERT_TRUE(SignsCome(1));
  const QVariantMap sign =
      Evaluate(QStringLiteral("inside.glyphs.boxOf(document.querySelector('embed'))")).toMap();
  page_.Click({sign[QStringLiteral("left")].toInt() + 4, sign[QStringLiteral("top")].toInt() + 4});
  EXPECT_TRUE(Comes(QStringLiteral("velor.state().element.tag === 'EMBED'")));
  EXPECT_TRUE(
      Comes(QStringLiteral("getComputedStyle(document.head, '::after').content !== 'none'")));
  page_.Press(QKeySequence(Qt::Key_Delete));
  EXPECT_TRUE(Comes(QStringLiteral("document.querySelector('embed') === null")));
}

TEST_F(Details, PutSignsSideBySide) {
  Load(QStringLiteral("<p>one</p><!-- a --><!-- b --><script>x</script><p>two</p>"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  ASSERT_TRUE(SignsCome(3));
  EXPECT_TRUE(
      Evaluate(QStringLiteral("{ const [a, b, c] = [...document.body.childNodes].slice(1, 4)"
                              "    .map(inside.glyphs.boxOf);"
                              "  a.right < b.left && b.right < c.left && a.top === c.top }"))
          .toBool());
}

TEST_F(Details, LieBesideTextFromRightToLeft) {
  Load(QStringLiteral("<p dir='rtl'>\u05e9\u05dc\u05d5\u05dd<br>\u05e9</p>"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  ASSERT_TRUE(SignsCome(1));
  EXPECT_TRUE(Evaluate(QStringLiteral("{ const range = document.createRange();"
                                      "  range.selectNode(document.querySelector('p').firstChild);"
                                      "  inside.glyphs.boxOf(document.querySelector('br')).right <="
                                      "      range.getBoundingClientRect().left }"))
                  .toBool());
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
  EXPECT_TRUE(Comes(
      QStringLiteral("parseFloat(getComputedStyle(document.head, '::before').top) === 50000")));
  EXPECT_GT(Evaluate(signs).toInt(), 5);
  EXPECT_LT(Evaluate(signs).toInt(), 60);
}

}  // namespace
}  // namespace velor
