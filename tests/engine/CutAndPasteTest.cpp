// SPDX-License-Identifier: GPL-3.0-or-later
// What is cut with Ctrl+X and pasted with Ctrl+V in its place, with the real clipboard and keys:
// the page is the loaded one again, and its file has the bytes that it had.
#include "engine/BridgeScript.h"
#include "tests/engine/EditingFixture.h"

namespace velor {

namespace {

struct CutPart {
  const char *name;
  QByteArray page;
  /// Selected from the start of the first text to the end of the second.
  const char *from;
  const char *to;
};

void PrintTo(const CutPart &part, std::ostream *out) {
  *out << part.name;
}

class CutParts : public Editing, public ::testing::WithParamInterface<CutPart> {
 protected:
  void Select() {
    Show();
    ASSERT_TRUE(Evaluate(QStringLiteral(
                             "(() => { const texts = []; const walker = document.createTreeWalker("
                             "document.body, NodeFilter.SHOW_TEXT);"
                             "while (walker.nextNode()) texts.push(walker.currentNode);"
                             "const has = (word) => texts.find(({data}) => data.includes(word));"
                             "const [from, to] = [has(%1), has(%2)];"
                             "getSelection().setBaseAndExtent(from, from.data.indexOf(%1),"
                             " to, to.data.indexOf(%2) + %2.length); return true; })()")
                             .arg(ScriptValue(QString::fromUtf8(GetParam().from)),
                                  ScriptValue(QString::fromUtf8(GetParam().to))))
                    .toBool());
  }
  bool IsOnClipboard(const char *text) {
    return QApplication::clipboard()->text().contains(QString::fromUtf8(text));
  }
};

TEST_P(CutParts, ComeBackInTheirPlaceAsTheyWere) {
  const QString path = Write(QStringLiteral("page.htm"), GetParam().page);
  editor_->LoadDocument(path);
  const QString loaded = editor_->DocumentHTML();
  Select();
  Key(Qt::Key_X, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return IsOnClipboard(GetParam().to); })) << Seen().constData();
  ASSERT_TRUE(WaitFor([&] { return editor_->DocumentHTML() != loaded; }));
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return DocumentHolds(QString::fromUtf8(GetParam().to)); }));
  EXPECT_EQ(Seen(), loaded.toUtf8());
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), GetParam().page);
  Exec(EditingCommand::Undo);
  Exec(EditingCommand::Undo);
  EXPECT_EQ(Seen(), loaded.toUtf8());
}

INSTANTIATE_TEST_SUITE_P(
    Clipboard, CutParts,
    ::testing::Values(
        CutPart{"word", "<P>One two three</P>\n<P>Four</P>\n", "two", "two"},
        CutPart{"word and blank", "<P>One two three</P>\n", "two ", "two "},
        CutPart{"word of a source line's end", "<p>One two\n      three</p>\n", "two", "two"},
        CutPart{"line between breaks", "<P>One<BR>\nTwo two<BR>\nThree</P>\n", "Two", "Two two"},
        CutPart{"all of a paragraph", "<p class=a>One</p>\n<p ID=b>Two two</p>\n", "Two",
                "Two two"},
        CutPart{"across inline elements",
                "<p>One <B>two <I>three</I></B> <a href=x.htm>four five</a>"
                " six</p>\n",
                "wo", "four"},
        CutPart{"all of a link", "<p>One <a href=\"x.htm\" CLASS=c>two</a> three</p>\n", "two",
                "two"},
        CutPart{"within a list item", "<ul>\n  <li>One <b>two</b> three\n  <li>Four\n</ul>\n",
                "two", " thr"},
        CutPart{"over list items",
                "<ul>\n  <li>One two</li>\n  <li>Three</li>\n  <li>Four</li>\n"
                "</ul>\n",
                "two", "Thr"},
        CutPart{"over paragraphs", "<p>One two</p>\n<p align=center>Three <i>four</i></p>\n", "two",
                "Thr"},
        CutPart{"within a cell", "<table>\n<tr><td>One <b>two</b> three<td>Four\n</table>\n", "wo",
                " thr"},
        CutPart{"all of a cell", "<table>\n<tr><td>One two</td><td>Three</td></tr>\n</table>\n",
                "One", "two"},
        CutPart{"preformatted lines", "<pre>One\n  two\nthree</pre>\n", "two", "thr"},
        CutPart{"template sign", "<p>One {{ two }} three</p>\n", "{{ two", "}} thr"}));

}  // namespace

}  // namespace velor
