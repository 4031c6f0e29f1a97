// SPDX-License-Identifier: GPL-3.0-or-later
// What is written for an edit, on small pages with one hazard each. The verifier stands in for the
// engine: it says yes to everything, or to what a test wants.
#include "page/saving/FaithfulPage.h"
#include "page/saving/PageVerifier.h"
#include "platform/RuntimeError.h"
#include "tests/support/Checks.h"

#include <QStringList>

#include <functional>
#include <gtest/gtest.h>

namespace velor {

namespace {

/// Answers with the wanted document for the texts that `accepts`, with another for the rest.
class ScriptedVerifier : public PageVerifier {
 public:
  explicit ScriptedVerifier(QString wanted, std::function<bool(const QString &)> accepts = {})
      : wanted_(std::move(wanted)), accepts_(std::move(accepts)) {}
  std::optional<QString> Serialisation(const QString &text) override {
    if (text == wanted_) return wanted_;
    tried << text;
    if (!accepts_ || accepts_(text)) return wanted_;
    return QStringLiteral("<html>another");
  }

  QStringList tried;

 private:
  QString wanted_;
  std::function<bool(const QString &)> accepts_;
};

class SilentVerifier : public PageVerifier {
 public:
  std::optional<QString> Serialisation(const QString &) override { return std::nullopt; }
};

PageOriginal Original(const QByteArray &bytes) {
  return {bytes, DecodePage(bytes), {}};
}

SavedPage Save(const QByteArray &bytes, const QString &before, const QString &now,
               PageVerifier &verifier) {
  FaithfulPage page(Original(bytes));
  page.SetBaseline(before);
  return page.Compose(now, verifier);
}

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

const char16_t *const plain =
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
        Edit{"a word between references", "<p>caf&eacute; &#233;t&eacute; &copy</p>",
             u"<html><head></head><body><p>caf\u00e9 \u00e9t\u00e9 \u00a9</p></body></html>",
             u"<html><head></head><body><p>caf\u00e9 \u00e9t\u00e9s \u00a9</p></body></html>",
             "<p>caf&eacute; &#233;t&eacute;s &copy</p>"},
        Edit{"bold", "<p>one two three</p><p>four</p>", plain,
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
             "<table>\r\n<TR><TD>a\r\n<TR><TD>b\r\n<TR><TD>c</TD></TR></table>\r\n"},
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

// Masks: what the engine is given is asked for first, since its words are the page's own.
TEST(MaskedPages, KeepServerCodeWhereverItStands) {
  const QByteArray file =
      "<% Option Explicit %>\n<html><body class=\"<%= \"a>b\" %>\" <?php echo 1 ?>>\n"
      "<p>one</p><?= $x ?><!-- <% not code %> --><script>var a = '<% b %>';</script>\n"
      "<a href=\"<!--#echo var=\"X\" -->\">two</a>";
  FaithfulPage page(Original(file));
  const QString given = page.TextToLoad();
  EXPECT_FALSE(given.contains(u"Option"));
  EXPECT_FALSE(given.contains(u"<?"));
  EXPECT_FALSE(given.contains(u"#echo"));
  EXPECT_TRUE(given.contains(u"<!-- <% not code %> -->"));
  EXPECT_TRUE(given.contains(u"var a = '<% b %>';"));
  EXPECT_EQ(page.Unmasked(given).remove(u' '), QString::fromUtf8(file).remove(u' '));

  page.SetBaseline(given);
  QString now = given;
  now.replace(QStringLiteral("two"), QStringLiteral("three"));
  ScriptedVerifier verifier(now);
  EXPECT_EQ(page.Compose(now, verifier).page.bytes, QByteArray(file).replace("two", "three"));
}

TEST(MaskedPages, KeepServerCodeThatIsWrittenAnew) {
  const QByteArray file = "<p>one <%= x %></p><p <% y %> id=a>two</p>";
  FaithfulPage page(Original(file));
  QString now = QStringLiteral("<html><head></head><body>") + page.TextToLoad();
  now.replace(QStringLiteral("e id=a"), QStringLiteral("e=\"\" id=\"a\""));
  page.SetBaseline(QStringLiteral("<html><head></head><body>nothing like it</body></html>"));
  ScriptedVerifier verifier(now, [](const QString &) { return false; });
  const SavedPage saved = page.Compose(now, verifier);
  EXPECT_EQ(saved.rung, SaveRung::Everything);
  EXPECT_TRUE(saved.page.bytes.contains("<p>one <%= x %></p>")) << saved.page.bytes.constData();
  EXPECT_TRUE(saved.page.bytes.contains(" <% y %> id=\"a\"")) << saved.page.bytes.constData();
}

TEST(MaskedPages, HideNoscriptAndShadowRootsFromTheEngine) {
  const QByteArray file =
      "<head><noscript><p>no</p></noscript></head><template shadowrootmode=open>x</template>";
  const FaithfulPage page(Original(file));
  EXPECT_FALSE(page.TextToLoad().contains(u"noscript"));
  EXPECT_FALSE(page.TextToLoad().contains(u"shadowrootmode"));
  EXPECT_TRUE(page.TextToLoad().contains(u"=open>x</template>"));
  EXPECT_EQ(page.Unmasked(page.TextToLoad()), QString::fromUtf8(file));
}

TEST(MaskedPages, ReplaceMasksThatAnEditTouches) {
  const QByteArray file = "<p>one</p><% code %><p>two</p>";
  FaithfulPage page(Original(file));
  page.SetBaseline(page.TextToLoad());
  const QString now = QStringLiteral("<p>one</p><p>two</p>");
  ScriptedVerifier verifier(now);
  EXPECT_EQ(page.Compose(now, verifier).page.bytes, "<p>one</p><p>two</p>");
}

TEST(MaskedPages, KeepWhatIsMaskedInTagsThatAreSpelledAsTheirNeighbours) {
  const QByteArray file = "<P ALIGN=left>one</P><P {% if a %} ID=b CLASS=\"x{% c d %}\">two</P>";
  FaithfulPage page(Original(file));
  QString before = page.TextToLoad();
  before.replace(QStringLiteral("ALIGN=left"), QStringLiteral("align=\"left\""))
      .replace(QStringLiteral("e ID=b CLASS="), QStringLiteral("e=\"\" id=\"b\" class="))
      .replace(u'P', u'p');
  page.SetBaseline(before);
  const QString second = before.sliced(before.indexOf(u"</p>") + 4);
  const QString now = QStringLiteral("<div>x</div>") + second + before;
  ScriptedVerifier verifier(now);
  const QByteArray saved = page.Compose(now, verifier).page.bytes;
  EXPECT_EQ(saved, "<DIV>x</DIV><P {% if a %} ID=b CLASS=\"x{% c d %}\">two</P>" + file);
}

TEST(MaskedPages, LeaveOutTheBlanksBehindTheLastEndTags) {
  const FaithfulPage page(Original("<P>a </BODY >\r\n<!-- c -->\r</html>\n<% x %>\n"));
  EXPECT_TRUE(page.TextToLoad().startsWith(u"<P>a </BODY ><!-- c --></html><!--"));
  EXPECT_TRUE(page.TextToLoad().endsWith(u"-->"));
}

TEST(MaskedPages, KeepTheBlanksWhereMoreThanTheEndFollows) {
  for (const char *text : {"<p>a</body>\n</html>\n<p>b", "<p>a</body>\nb", "<p>a</body>\n<",
                           "<p>a</body>\n< ", "<script></body>\n</script>", "<!--</body>\n-->",
                           "<p>a</bodyx>\n", "</body>\n<plaintext>", "</body>\n</p>\n"})
    EXPECT_EQ(FaithfulPage(Original(text)).TextToLoad(), QLatin1String(text));
}

TEST(MaskedPages, PutWhatIsAddedAtTheEndBeforeTheEndTags) {
  const QByteArray file = "<html><head></head><body><p>one</p>\r\n</body>\r\n</html>\r\n";
  FaithfulPage page(Original(file));
  page.SetBaseline(QStringLiteral("<html><head></head><body><p>one</p>\n</body></html>"));
  const QString now =
      QStringLiteral("<html><head></head><body><p>one</p>\n<p>two</p></body></html>");
  ScriptedVerifier verifier(now);
  EXPECT_EQ(page.Compose(now, verifier).page.bytes,
            "<html><head></head><body><p>one</p>\r\n<p>two</p></body>\r\n</html>\r\n");
}

TEST(MaskedPages, TakeNoOtherPagesMasksForTheirOwn) {
  const FaithfulPage one(Original("<% one %>"));
  const FaithfulPage two(Original("<% two %>"));
  EXPECT_EQ(two.Unmasked(one.TextToLoad()), one.TextToLoad());
}

TEST(MaskedPages, KeepTemplateSignsWhereTextMayNotStand) {
  for (const char *file :
       {"<table>{{#each a}}<tr>{% for b %}<td>c</td>{% endfor %}</tr>{{/each}}</table>",
        "<table><#list a as b><tr><td>c</td></tr></#list></table>",
        "{% extends \"a\" %}<!doctype html><html>{% b %}<head>{{c}}</head>{% d %}<body>e",
        "<body>a</body>{% b %}</html>{% c %}", "<p {% if a %}class=b{% endif %} data-{{c}}=d>e",
        "<a href=\"{% url \"a\" %}\" {{b}}{{c}} title={{ d }}>e</a>"}) {
    FaithfulPage page(Original(file));
    EXPECT_FALSE(page.TextToLoad().contains(u"{%")) << file;
    EXPECT_FALSE(page.TextToLoad().contains(u"{{")) << file;
    EXPECT_FALSE(page.TextToLoad().contains(u"<#")) << file;
    EXPECT_EQ(page.Unmasked(page.TextToLoad()).remove(u' '), QString::fromUtf8(file).remove(u' '));
  }
}

TEST(MaskedPages, LeaveTemplateSignsInTextToBeEdited) {
  for (const char *file :
       {"<p>{{a}} and {% b %} cost $5 ${c}", "<table><tr><td>{{a}}</td></tr></table>{{b}}",
        "{% a %}<p>b", "<a href=\"{{a}}\" title='{% b \"c\" %}' id={{d}}>e",
        "<title>{{a}}</title><script>{{b}}</script>", "<html><body>{{a}}<head>{{b}}</head>"})
    EXPECT_EQ(FaithfulPage(Original(file)).TextToLoad(), QLatin1String(file));
}

TEST(MaskedPages, RefuseToWriteAnewWhatTheDocumentHasNoPlaceFor) {
  const QByteArray file = "<p title=a title=\"<% b %>\">one</p>";
  const QString before =
      QStringLiteral("<html><head></head><body><p title=\"a\">one</p></body></html>");
  ScriptedVerifier verifier(QString(before).replace(QStringLiteral("one"), QStringLiteral("two")),
                            [](const QString &) { return false; });
  try {
    Save(file, before, QString(before).replace(QStringLiteral("one"), QStringLiteral("two")),
         verifier);
    FAIL();
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::InvalidProcedureCall);
    EXPECT_TRUE(error.Description().contains(u"<% b %>")) << qPrintable(error.Description());
  }
}

TEST(MaskedPages, NeverTakeTextOfATableForThatOfItsCells) {
  const QByteArray file =
      "<table>\n<tr>aa bb<th>Head</th>cc dd</tr>\n"
      "aa bb<tr><td>Name</td><td>aa bb</td></tr>cc dd\n</table>";
  const QString before = QStringLiteral(
      "<html><head></head><body>aa bbcc ddaa bbcc dd\n<table>\n<tbody><tr><th>Head</th></tr>\n"
      "<tr><td>Name</td><td>aa bb</td></tr></tbody></table></body></html>");
  const QString now = QString(before).replace(QStringLiteral("Head"), QStringLiteral("HeadX"));
  ScriptedVerifier verifier(now);
  EXPECT_EQ(Save(file, before, now, verifier).page.bytes,
            QByteArray(file).replace("Head", "HeadX"));
}

TEST(Fragments, NeverGetTheTagsOfAWholePage) {
  const QByteArray file = "<% a %>\n<p align=\"<%=b%>\">One two</p>\n<% c %>\n";
  FaithfulPage page(Original(file));
  const QString body = page.TextToLoad().sliced(page.TextToLoad().indexOf(u"<p "));
  const QString start = page.TextToLoad().first(page.TextToLoad().indexOf(u"-->") + 3);
  page.SetBaseline(start + QStringLiteral("<html><head></head><body>") + body +
                   QStringLiteral("</body></html>"));
  const QString rest = body.sliced(body.indexOf(u"</p>") + 4);
  const QString now =
      start + QStringLiteral("<html><head></head><body>") + rest + QStringLiteral("</body></html>");
  // The engine puts a comment before the root where nothing else stands before it.
  const QString parsed =
      start + rest.trimmed() + QStringLiteral("<html><head></head><body></body></html>");
  class Verifier : public PageVerifier {
   public:
    explicit Verifier(QString parsed) : parsed_(std::move(parsed)) {}
    std::optional<QString> Serialisation(const QString &) override { return parsed_; }

   private:
    QString parsed_;
  } verifier(parsed);
  for (int round = 0; round < 2; ++round) {
    const SavedPage saved = page.Compose(now, verifier);
    EXPECT_FALSE(saved.page.bytes.contains("<html>")) << saved.page.bytes.constData();
    EXPECT_FALSE(saved.page.bytes.contains("<body>")) << saved.page.bytes.constData();
    EXPECT_TRUE(saved.page.bytes.contains("<% c %>")) << saved.page.bytes.constData();
  }
  SilentVerifier silent;
  FaithfulPage other(Original("<p>one"));
  other.SetBaseline(QStringLiteral("<html><head></head><body><p>one</p></body></html>"));
  const SavedPage anew =
      other.Compose(QStringLiteral("<html><head></head><body><p>two</p></body></html>"), silent);
  EXPECT_EQ(anew.rung, SaveRung::Everything);
  EXPECT_EQ(anew.page.bytes, "<p>two</p>");
}

TEST(Ladder, GivesAnUneditedPageBackWithoutAskingTheEngine) {
  const QByteArray file = "<META charset=big5>\r\n<P>\xA4\xA4 \x81 bad\n&nbsp";
  const QString before = QStringLiteral("<html>anything");
  ScriptedVerifier verifier({});
  const SavedPage saved = Save(file, before, before, verifier);
  EXPECT_EQ(saved.page.bytes, file);
  EXPECT_EQ(saved.rung, SaveRung::Unedited);
  EXPECT_TRUE(verifier.tried.isEmpty());
}

const QByteArray rows = "<p>one<p>two<table><TR><TD>a</TD></table>";
const QString rowsBefore = QStringLiteral(
    "<html><head></head><body><p>one</p><p>two</p><table><tbody><tr><td>a</td></tr></tbody>"
    "</table></body></html>");
const QString rowsNow = QStringLiteral(
    "<html><head></head><body><p>one</p><img><p>two</p><table><tbody><tr><td>a</td></tr></tbody>"
    "</table></body></html>");

TEST(Ladder, WritesImpliedTagsWhereTheEditAloneReadsDifferently) {
  ScriptedVerifier verifier(rowsNow,
                            [](const QString &text) { return text.contains(u"</p><img>"); });
  const SavedPage saved = Save(rows, rowsBefore, rowsNow, verifier);
  EXPECT_EQ(saved.page.bytes, "<p>one</p><img><p>two<table><TR><TD>a</TD></table>");
  EXPECT_EQ(saved.rung, SaveRung::ImpliedTags);
  EXPECT_EQ(verifier.tried.front(),
            QStringLiteral("<p>one<img><p>two<table><TR><TD>a</TD></table>"));
}

TEST(Ladder, LeavesAnEndTagThatIsNeededInAnotherPlaceOfTheSameName) {
  const QByteArray file = "<table><TR><TD>a\n<TD>b</TD></table>";
  const QString before = QStringLiteral(
      "<html><head></head><body><table><tbody><tr><td>a\n</td><td>b</td></tr></tbody></table>"
      "</body></html>");
  QString now = before;
  now.remove(QStringLiteral("<td>b</td>"));
  ScriptedVerifier verifier(now, [](const QString &text) {
    return text.contains(QStringLiteral("a\n</td>"), Qt::CaseInsensitive);
  });
  const SavedPage saved = Save(file, before, now, verifier);
  EXPECT_EQ(saved.page.bytes, "<table><TR><TD>a\n</TD></table>");
  EXPECT_EQ(saved.rung, SaveRung::ImpliedTags);
}

TEST(Ladder, GivesAnElementItsImpliedTagsBeforeThePage) {
  const QByteArray file = "<div><P>one<P>two</div>\r\n<p>three";
  const QString before = QStringLiteral(
      "<html><head></head><body><div><p>one</p><p>two</p></div>\n<p>three</p></body></html>");
  QString now = before;
  now.replace(QStringLiteral("one"), QStringLiteral("one <b>x</b>"));
  ScriptedVerifier verifier(now, [](const QString &text) {
    return text.contains(u"one <B>x</B></P>") && text.contains(u"two</P></div>");
  });
  const SavedPage saved = Save(file, before, now, verifier);
  EXPECT_EQ(saved.page.bytes, "<div><P>one <B>x</B></P><P>two</P></div>\r\n<p>three");
  EXPECT_EQ(saved.rung, SaveRung::Elements);
}

TEST(Ladder, WritesAnEditThatNoMarkupHoldsWhereAParserPutsIt) {
  const QString parsed =
      QString(rowsBefore).replace(QStringLiteral("<table>"), QStringLiteral("<img><table>"));
  QString now = rowsBefore;
  now.replace(QStringLiteral("<tr><td>"), QStringLiteral("<tr><img><td>"));
  class Verifier : public PageVerifier {
   public:
    Verifier(QString now, QString parsed) : now_(std::move(now)), parsed_(std::move(parsed)) {}
    std::optional<QString> Serialisation(const QString &text) override {
      return text == now_ || text.contains(u"<img><table>") ? parsed_ : QStringLiteral("<html>");
    }

   private:
    QString now_;
    QString parsed_;
  } verifier(now, parsed);
  const SavedPage saved = Save(rows, rowsBefore, now, verifier);
  EXPECT_EQ(saved.page.bytes, QByteArray(rows).replace("<table>", "<img><table>"));
  EXPECT_EQ(saved.rung, SaveRung::Edits);
}

TEST(Ladder, KeepsTheTagOfALinkThatGoesOnBehindWhatIsTakenAway) {
  const QByteArray file = "<DIV><H1><A id=a>one</H1>\n<P>two</DIV>";
  const QString before = QStringLiteral(
      "<html><head></head><body><div><h1><a id=\"a\">one</a></h1><a id=\"a\">\n</a><p><a id=\"a\">"
      "two</a></p></div></body></html>");
  QString now = before;
  now.remove(QStringLiteral("<h1><a id=\"a\">one</a></h1>"));
  ScriptedVerifier verifier(now, [](const QString &text) { return text.contains(u"<A id"); });
  const SavedPage saved = Save(file, before, now, verifier);
  EXPECT_EQ(saved.page.bytes, "<DIV><A id=a>\n<P>two</DIV>");
  EXPECT_EQ(saved.rung, SaveRung::ImpliedTags);
}

TEST(Ladder, LeavesOutEachTagThatTheDocumentCanDoWithout) {
  const QByteArray file = "<table><TR><TD>a<TR><TD>b</table>";
  const QString before = QStringLiteral(
      "<html><head></head><body><table><tbody><tr><td>a</td></tr><tr><td>b</td></tr></tbody>"
      "</table></body></html>");
  QString now = before;
  now.replace(QStringLiteral("</td></tr><tr>"), QStringLiteral("</td></tr><img><tr>"));
  ScriptedVerifier verifier(now, [](const QString &text) { return text.contains(u"</TR><IMG>"); });
  EXPECT_EQ(Save(file, before, now, verifier).page.bytes,
            "<table><TR><TD>a</TR><IMG><TR><TD>b</table>");
}

TEST(Ladder, WritesEverythingWhereNothingElseGivesTheDocument) {
  ScriptedVerifier verifier(rowsNow, [](const QString &) { return false; });
  const SavedPage saved = Save("<html>" + rows, rowsBefore, rowsNow, verifier);
  EXPECT_EQ(saved.page.text, rowsNow);
  EXPECT_EQ(saved.rung, SaveRung::Everything);
}

TEST(Ladder, TriesLessOnALargePageThanOnASmallOne) {
  ScriptedVerifier small(rowsNow, [](const QString &) { return false; });
  Save(rows, rowsBefore, rowsNow, small);
  const QByteArray much = QByteArray("word ").repeated(4'000'000);
  const QString wordsBefore = QString(rowsBefore).replace("one", QString::fromLatin1(much));
  const QString wordsNow = QString(rowsNow).replace("one", QString::fromLatin1(much));
  ScriptedVerifier large(wordsNow, [](const QString &) { return false; });
  Save(QByteArray(rows).replace("one", much), wordsBefore, wordsNow, large);
  EXPECT_GT(small.tried.size(), 2);
  EXPECT_LE(large.tried.size(), 2);
  EXPECT_GT(large.tried.size(), 0);
}

TEST(Ladder, WritesEverythingWhereTheEngineIsSilent) {
  SilentVerifier verifier;
  EXPECT_EQ(Save(rows, rowsBefore, rowsNow, verifier).rung, SaveRung::Everything);
}

TEST(Ladder, SaysWhyAPageIsWrittenAnew) {
  SilentVerifier silent;
  EXPECT_TRUE(Save(rows, rowsBefore, rowsNow, silent).reason.contains(u"did not answer"));
  ScriptedVerifier refusing(rowsNow, [](const QString &) { return false; });
  EXPECT_TRUE(Save(rows, rowsBefore, rowsNow, refusing).reason.contains(u"no smaller change"));
  ScriptedVerifier willing(rowsNow);
  EXPECT_EQ(Save(rows, rowsBefore, rowsNow, willing).reason, QString());
  FaithfulPage fresh;
  EXPECT_EQ(fresh.Compose(rowsNow, willing).reason, QString());
}

TEST(Ladder, AsksAgainAfterTheEngineWasSilent) {
  FaithfulPage page(Original(rows));
  page.SetBaseline(rowsBefore);
  SilentVerifier silent;
  page.Precompute(rowsNow, silent);
  ScriptedVerifier verifier(rowsNow);
  EXPECT_EQ(page.Compose(rowsNow, verifier).rung, SaveRung::Edits);
}

TEST(Ladder, AsksNothingTwiceForOneDocument) {
  FaithfulPage page(Original(rows));
  page.SetBaseline(rowsBefore);
  ScriptedVerifier verifier(rowsNow);
  page.Compose(rowsNow, verifier);
  page.Compose(rowsNow, verifier);
  EXPECT_EQ(verifier.tried.size(), 1);
}

TEST(Ladder, EscalatesTheEditThatReadsDifferentlyAlone) {
  const QByteArray file = "<p>a1<p>b1<p>c1";
  const QString before =
      QStringLiteral("<html><head></head><body><p>a1</p><p>b1</p><p>c1</p></body></html>");
  const QString now =
      QStringLiteral("<html><head></head><body><p>a2</p><p>b1</p><img><p>c1</p></body></html>");
  class Verifier : public PageVerifier {
   public:
    explicit Verifier(QString wanted) : wanted_(std::move(wanted)) {}
    std::optional<QString> Serialisation(const QString &text) override {
      if (text == wanted_ || (text.contains(u"a2") && text.contains(u"b1</p><img>")))
        return wanted_;
      return QString(wanted_).replace(QStringLiteral("</p><img>"), QStringLiteral("<img></p>"));
    }

   private:
    QString wanted_;
  } verifier(now);
  EXPECT_EQ(Save(file, before, now, verifier).page.bytes, "<p>a2<p>b1</p><img><p>c1");
}

TEST(Charsets, StayWhatTheyWereWhereOnlyThePagesBytesTellThem) {
  const QByteArray file = "<P title=x>caf\xC3\xA9<P>\xE9t\xE9";
  ASSERT_EQ(DecodePage(file).encoding.charset, QStringLiteral("windows-1252"));
  const QString before = QString::fromUtf16(
      u"<html><head></head><body><p "
      u"title=\"x\">caf\u00c3\u00a9</p><p>\u00e9t\u00e9</p></body></html>");
  QString now = before;
  now.remove(QString::fromUtf16(u"<p>\u00e9t\u00e9</p>"));
  ScriptedVerifier verifier(now);
  const SavedPage saved = Save(file, before, now, verifier);
  EXPECT_EQ(saved.page.bytes, "<P title=x>caf&#195;\xA9");
  EXPECT_EQ(DecodePage(saved.page.bytes).text, saved.page.text);
  ScriptedVerifier nobody(now, [](const QString &) { return false; });
  const SavedPage whole = Save(file, before, now, nobody);
  EXPECT_EQ(DecodePage(whole.page.bytes).encoding.charset, QStringLiteral("windows-1252"));
}

TEST(Charsets, RefuseWhatNoReferenceCanStandFor) {
  const QByteArray file = "<meta charset=iso-8859-1><script>a</script><!--a--><p>a";
  const QString before = QString::fromUtf16(
      u"<html><head><meta charset=\"iso-8859-1\"><script>a</script><!--a--></head><body><p>a</p>"
      u"</body></html>");
  for (const char *place : {"<script>a", "<!--a"}) {
    QString now = before;
    now.replace(QLatin1String(place), QLatin1String(place) + u'\u65e5');
    ScriptedVerifier verifier(now);
    try {
      Save(file, before, now, verifier);
      FAIL() << place;
    } catch (const RuntimeError &error) {
      EXPECT_EQ(error.Number(), ErrorNumber::InvalidProcedureCall);
      EXPECT_TRUE(error.Description().contains(u'\u65e5'));
      EXPECT_TRUE(error.Description().contains(u"windows-1252"));
    }
  }
}

TEST(Charsets, KeepTheBytesOfLinesThatATextSharesWithThePage) {
  const PageOriginal original = Original("<meta charset=big5>\r\n<p>\xFF\xFE one\r\n<p>two\r\n");
  QString text = original.page.text;
  text.replace(QStringLiteral("two"), QStringLiteral("three"));
  EXPECT_EQ(BytesForText(original, text, original.page.encoding),
            "<meta charset=big5>\r\n<p>\xFF\xFE one\r\n<p>three\r\n");
}

}  // namespace

}  // namespace velor
