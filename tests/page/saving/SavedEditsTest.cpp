// SPDX-License-Identifier: GPL-3.0-or-later
// What is written for an edit, on small pages with one hazard each.
#include "tests/page/saving/FaithfulPageFixture.h"

#include <gtest/gtest.h>
#include <ostream>

namespace velor {

namespace {

struct Edit {
  const char *name;
  QByteArray file;
  const char16_t *before;
  const char16_t *now;
  QByteArray saved;
};

void PrintTo(const Edit &edit, std::ostream *out) {
  *out << edit.name;
}

class SavedEdits : public ::testing::TestWithParam<Edit> {};

TEST_P(SavedEdits, ChangeNothingElse) {
  const Edit &edit = GetParam();
  const QString now = QString::fromUtf16(edit.now);
  ScriptedVerifier verifier(now);
  const SavedPage saved = Save(edit.file, QString::fromUtf16(edit.before), now, verifier);
  EXPECT_EQ(saved.page.bytes, edit.saved);
  EXPECT_EQ(saved.rung, SaveRung::Edits);
  EXPECT_EQ(saved.page.text, DecodePage(edit.saved).text);
}

const char16_t *const Plain =
    u"<html><head></head><body><p>one two three</p><p>four</p>\n</body></html>";

INSTANTIATE_TEST_SUITE_P(
    Edits, SavedEdits,
    ::testing::Values(
        Edit{
            "a word, where tags and quotes are the author's own",
            "<P Class=a>one two three<p>four\r\n",
            u"<html><head></head><body><p class=\"a\">one two three</p><p>four\n</p></body></html>",
            u"<html><head></head><body><p class=\"a\">one new two three</p><p>four\n</p></body>"
            u"</html>",
            "<P Class=a>one new two three<p>four\r\n"},
        Edit{"an attribute that needs no value", "<p><TD WIDTH=3>x</TD></p>",
             u"<html><head></head><body><p><td width=\"3\">x</td></p></body></html>",
             u"<html><head></head><body><p><td width=\"3\" nowrap=\"\" "
             u"alt=\"\">x</td></p></body></html>",
             "<p><TD WIDTH=3 NOWRAP ALT=\"\">x</TD></p>"},
        Edit{"an attribute that needs a value as an XML page has it", "<p>a<br />x</p>",
             u"<html><head></head><body><p>a<br>x</p></body></html>",
             u"<html><head></head><body><p hidden=\"\">a<br>x</p></body></html>",
             "<p hidden=\"\">a<br />x</p>"},
        Edit{"a word between references", "<p>caf&eacute; &#233;t&eacute; &copy</p>",
             u"<html><head></head><body><p>caf\u00e9 \u00e9t\u00e9 \u00a9</p></body></html>",
             u"<html><head></head><body><p>caf\u00e9 \u00e9t\u00e9s \u00a9</p></body></html>",
             "<p>caf&eacute; &#233;t&eacute;s &copy</p>"},
        Edit{"bold", "<p>one two three</p><p>four</p>", Plain,
             u"<html><head></head><body><p>one <b>two</b> three</p><p>four</p>\n</body></html>",
             "<p>one <b>two</b> three</p><p>four</p>"},
        Edit{"a paragraph taken away", "<P>one two three</P>\n<P>four</P>\n<P>five</P>",
             u"<html><head></head><body><p>one two "
             u"three</p>\n<p>four</p>\n<p>five</p></body></html>",
             u"<html><head></head><body><p>one two three</p>\n\n<p>five</p></body></html>",
             "<P>one two three</P>\n\n<P>five</P>"},
        Edit{"a row where the body of the table is implied",
             "<table>\r\n<TR><TD>a\r\n<TR><TD>b\r\n</table>\r\n",
             u"<html><head></head><body><table>\n<tbody><tr><td>a\n</td></tr><tr><td>b\n</td></tr>"
             u"</tbody></table>\n</body></html>",
             u"<html><head></head><body><table>\n<tbody><tr><td>a\n</td></tr><tr><td>b\n</td></tr>"
             u"<tr><td>c</td></tr></tbody></table>\n</body></html>",
             "<table>\r\n<TR><TD>a\r\n<TR><TD>b\r\n<TR><TD>c</table>\r\n"},
        Edit{"an item whose end tag nothing else ends, where others have none",
             "<ul><li>a<li>b</ul>",
             u"<html><head></head><body><ul><li>a</li><li>b</li></ul></body></html>",
             u"<html><head></head><body><ul><li>a</li><li>b</li><li>c</li>d</ul></body></html>",
             "<ul><li>a<li>b<li>c</li>d</ul>"},
        Edit{
            "an item as the nearest one is, and a paragraph as those are",
            "<li>a<p>b</p><li>c</li>",
            u"<html><head></head><body><li>a<p>b</p></li><li>c</li></body></html>",
            u"<html><head></head><body><li>a<p>b</p></li><li>c</li><li><p>d</p></li></body></html>",
            "<li>a<p>b</p><li>c</li><li><p>d</p></li>"},
        Edit{"line breaks in the page's own form", "<p>one</p>\r<p>two</p>\r",
             u"<html><head></head><body><p>one</p>\n<p>two</p>\n</body></html>",
             u"<html><head></head><body><p>one</p>\n<p>new</p>\n<p>two</p>\n</body></html>",
             "<p>one</p>\r<p>new</p>\r<p>two</p>\r"},
        Edit{"an attribute among others", "<IMG  SRC='a.gif' ALT=x\n border = 0 >",
             u"<html><head></head><body><img src=\"a.gif\" alt=\"x\" border=\"0\"></body></html>",
             u"<html><head></head><body><img src=\"b.gif\" alt=\"x\" border=\"0\" "
             u"title=\"it's\"></body></html>",
             "<IMG  SRC='b.gif' ALT=x\n border = 0 title=\"it's\" >"},
        Edit{
            "a paragraph with a line and a picture, where tags and attributes are upper case",
            "<BODY>\n<p>old<P ALIGN=left TITLE='x y'>one<BR>two</P>\n</BODY>",
            u"<html><head></head><body>\n<p>old</p><p align=\"left\" title=\"x y\">one<br>two</p>\n"
            u"</body></html>",
            u"<html><head></head><body>\n<p>old</p><p align=\"left\" title=\"x y\">one<br>two</p>\n"
            u"<p align=\"right\" title=\"y z\">a<br><img src=\"a/b.gif\" alt=\"it's\" "
            u"width=\"50%\" "
            u"longdesc=\"a/\"></p>\n</body></html>",
            "<BODY>\n<p>old<P ALIGN=left TITLE='x y'>one<BR>two</P>\n"
            "<P ALIGN=right TITLE='y z'>a<BR><IMG SRC=a/b.gif ALT=\"it's\" WIDTH=50% "
            "LONGDESC='a/'></P>\n</BODY>"},
        Edit{"a tag's lower case beside names in upper case that are no blocks",
             "<p>one <B>two</B></p>",
             u"<html><head></head><body><p>one <b>two</b></p></body></html>",
             u"<html><head></head><body><p>one <b>two</b> <i>x</i></p></body></html>",
             "<p>one <B>two</B> <i>x</i></p>"},
        Edit{"a break in a page that closes its empty tags", "<p>one<hr />two</p>",
             u"<html><head></head><body><p>one</p><hr>two<p></p></body></html>",
             u"<html><head></head><body><p>one</p><hr>two<br><b>x</b><p></p></body></html>",
             "<p>one<hr />two<br /><b>x</b></p>"},
        Edit{"an attribute as the tag's others are written", "<P class='a'>x<TD WIDTH=3 NOWRAP>x",
             u"<html><head></head><body><p class=\"a\">x<td width=\"3\" nowrap=\"\">x</td></p>"
             u"</body></html>",
             u"<html><head></head><body><p class=\"a\" id=\"c\">x"
             u"<td width=\"3\" nowrap=\"\" align=\"left\">x</td></p></body></html>",
             "<P class='a' id='c'>x<TD WIDTH=3 NOWRAP ALIGN=left>x"},
        Edit{"a drawing in a page of upper case", "<P>x</P>",
             u"<html><head></head><body><p>x</p></body></html>",
             u"<html><head></head><body><p>x</p><div><svg viewBox=\"0 0 1 1\"><g></g></svg></div>"
             u"</body></html>",
             "<P>x</P><DIV><svg viewBox=\"0 0 1 1\"><g></g></svg></DIV>"},
        Edit{"a word with NULs, which a parser drops", QByteArray("<p>o\0n\0e\0 t\0wo</p>", 18),
             u"<html><head></head><body><p>one two</p></body></html>",
             u"<html><head></head><body><p>onex two</p></body></html>",
             QByteArray("<p>o\0n\0e\0x t\0wo</p>", 19)},
        Edit{"an attribute taken away", "<TD NOWRAP ALIGN=left  width=3>x",
             u"<html><head></head><body><td nowrap=\"\" align=\"left\" "
             u"width=\"3\">x</td></body></html>",
             u"<html><head></head><body><td nowrap=\"\" width=\"3\">x</td></body></html>",
             "<TD NOWRAP  width=3>x"},
        Edit{"a value without quotes, and one that needs them now", "<P ALIGN=left Title=x>x",
             u"<html><head></head><body><p align=\"left\" title=\"x\">x</p></body></html>",
             u"<html><head></head><body><p align=\"center\" title=\"x y\">x</p></body></html>",
             "<P ALIGN=center Title=\"x y\">x"},
        Edit{"a value that had none", "<p title>x",
             u"<html><head></head><body><p title=\"\">x</p></body></html>",
             u"<html><head></head><body><p title=\"a\">x</p></body></html>", "<p title=\"a\">x"},
        Edit{"text before the end of a page with blanks behind its end",
             "<html>\n<body>\n<p>one\n</body>\n</html>\n",
             u"<html><head></head><body>\n<p>one\n\n\n</p></body></html>",
             u"<html><head></head><body>\n<p>one two\n\n\n</p></body></html>",
             "<html>\n<body>\n<p>one two\n</body>\n</html>\n"},
        Edit{"comments and declarations outside the root",
             "<?xml version='1.0'?>\n<!DOCTYPE HTML PUBLIC 'x'>\n<!-- a "
             "-->\n<html><p>one</html><!-- b -->",
             u"<!--?xml version='1.0'?-->\n<!DOCTYPE html PUBLIC \"x\">\n<!-- a "
             u"-->\n<html><head></head>"
             u"<body><p>one</p></body></html>\n<!-- b -->",
             u"<!--?xml version='1.0'?-->\n<!DOCTYPE html PUBLIC \"x\">\n<!-- a "
             u"-->\n<html><head></head>"
             u"<body><p>one!</p></body></html>\n<!-- b -->",
             "<?xml version='1.0'?>\n<!DOCTYPE HTML PUBLIC 'x'>\n<!-- a "
             "-->\n<html><p>one!</html><!-- b -->"},
        Edit{"a byte order mark", "\xEF\xBB\xBF<p>\xC3\xA9t\xC3\xA9 one",
             u"<html><head></head><body><p>\u00e9t\u00e9 one</p></body></html>",
             u"<html><head></head><body><p>\u00e9t\u00e9 two \u65e5</p></body></html>",
             "\xEF\xBB\xBF<p>\xC3\xA9t\xC3\xA9 two \xE6\x97\xA5"},
        Edit{
            "bytes that are no text", "<meta charset=big5><p>\xA4\xA4 \xFF\xFE one \xA4",
            u"<html><head><meta charset=\"big5\"></head><body><p>\u4e2d \ufffd\ufffd one \ufffd</p>"
            u"</body></html>",
            u"<html><head><meta charset=\"big5\"></head><body><p>\u4e2d \ufffd\ufffd two \ufffd</p>"
            u"</body></html>",
            "<meta charset=big5><p>\xA4\xA4 \xFF\xFE two \xA4"},
        Edit{"a character that the charset lacks", "<meta charset=iso-8859-1><p>caf\xE9 one",
             u"<html><head><meta charset=\"iso-8859-1\"></head><body><p>caf\u00e9 "
             u"one</p></body></html>",
             u"<html><head><meta charset=\"iso-8859-1\"></head><body><p>caf\u00e9 \u65e5 "
             u"one</p></body>"
             u"</html>",
             "<meta charset=iso-8859-1><p>caf\xE9 &#26085; one"},
        Edit{"characters of two bytes beside the edit",
             "<meta charset=shift_jis><p>\x93\xFA\x96\x7B</p>",
             u"<html><head><meta "
             u"charset=\"shift_jis\"></head><body><p>\u65e5\u672c</p></body></html>",
             u"<html><head><meta "
             u"charset=\"shift_jis\"></head><body><p>\u65e5\u4e2d\u672c</p></body></html>",
             "<meta charset=shift_jis><p>\x93\xFA\x92\x86\x96\x7B</p>"},
        Edit{"a charset with states",
             "<meta charset=iso-2022-jp>\n<p>one \x1b$BF|K\\\x1b(B two</p>\n<p>three",
             u"<html><head><meta charset=\"iso-2022-jp\">\n</head><body><p>one \u65e5\u672c "
             u"two</p>\n"
             u"<p>three</p></body></html>",
             u"<html><head><meta charset=\"iso-2022-jp\">\n</head><body><p>one \u65e5\u4e2d\u672c "
             u"two"
             u"</p>\n<p>three</p></body></html>",
             "<meta charset=iso-2022-jp>\n<p>one \x1b$BF|CfK\\\x1b(B two</p>\n<p>three"},
        Edit{"two bytes a character", QByteArray("\xFF\xFE<\0p\0>\0a\0", 10),
             u"<html><head></head><body><p>a</p></body></html>",
             u"<html><head></head><body><p>b</p></body></html>",
             QByteArray("\xFF\xFE<\0p\0>\0b\0", 10)}));

}  // namespace

}  // namespace velor
