// SPDX-License-Identifier: GPL-3.0-or-later
// Server code, template signs and what else the engine must not read; include files without a root.
#include "platform/RuntimeError.h"
#include "tests/page/saving/FaithfulPageFixture.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

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
        "<table><tr{% if a %} class=b{% endif %}><td{{#c}} data-d{{/c}}>e</td></tr></table>",
        "<table><#list a as b><tr><td>c</td></tr></#list></table>",
        "{% extends \"a\" %}<!doctype html><html>{% b %}<head>{{c}}</head>{% d %}<body>e",
        "<body>a</body>{% b %}</html>{% c %}", "<p {% if a %}class=b{% endif %} data-{{c}}=d>e",
        R"(<a href="{% url "a" %}" {{b}}{{c}} title={{ d }}>e</a>)"}) {
    FaithfulPage page(Original(file));
    EXPECT_FALSE(page.TextToLoad().contains(u"{%")) << file;
    EXPECT_FALSE(page.TextToLoad().contains(u"{{")) << file;
    EXPECT_FALSE(page.TextToLoad().contains(u"<#")) << file;
    EXPECT_EQ(page.Unmasked(page.TextToLoad()).remove(u' '), QString::fromUtf8(file).remove(u' '));
  }
}

TEST(MaskedPages, KeepServerTagsWhereElementsMayNotStand) {
  for (const char *file :
       {"<table><c:forEach items=\"${a}\" var='b'><tr><td>c</td></tr></c:forEach></table>",
        "<table><tr><s:if test=\"a > b\"><td>c</td></s:if><s:else><td>d</td></s:else></tr></table>",
        "<table><c:if test=\"<%= a > b %>\"><tr><td>c</td></tr></c:if></table>",
        "<jsp:useBean id=\"a\"/>\n<html><body>b</body></html><jsp:include page=\"c\"/>"}) {
    FaithfulPage page(Original(file));
    EXPECT_FALSE(page.TextToLoad().contains(u':')) << file;
    EXPECT_EQ(page.Unmasked(page.TextToLoad()), QString::fromUtf8(file));
  }
}

TEST(MaskedPages, KeepServerTagsThatWouldEndATagOrItsValue) {
  for (const char *file :
       {R"(<a href="<c:url value="/x"/>">b</a>)",
        R"(<a href="<c:url value="/x"/>?i=<c:out value="y"/>">b</a>)",
        R"(<option <c:if test="${a > b}">selected</c:if>>c</option>)",
        R"(<a href=<c:url value='/x y'/> id=d>b</a>)", R"(<p class='a <s:x n='o'/>'>b</p>)"}) {
    FaithfulPage page(Original(file));
    EXPECT_FALSE(page.TextToLoad().contains(u"<c:")) << file;
    EXPECT_FALSE(page.TextToLoad().contains(u"<s:")) << file;
    EXPECT_EQ(page.Unmasked(page.TextToLoad()).remove(u' '), QString::fromUtf8(file).remove(u' '));
  }
}

TEST(MaskedPages, LeaveServerTagsThatAreNoneToTheirAttribute) {
  for (const char *file :
       {R"(<a href="<c:url value='/x'/>">b</a>)", R"(<a title="a <b:c">d</a> "e">)",
        R"(<a title="a<b:c d="e">f <b>g</b> "h")", R"(<a title=a<b:c>d</a>)"})
    EXPECT_EQ(FaithfulPage(Original(file)).TextToLoad(), QLatin1String(file));
}

TEST(MaskedPages, LeaveServerTagsInTextToTheDocument) {
  for (const char *file :
       {"<p><c:out value=\"a\"/> b</p>", "<table><tr><td><o:p>a</o:p></td></tr></table>",
        "<c:set var=\"a\"/><p>b</p>", "<table><tr><td>a</td></tr><c:if test=\"b"})
    EXPECT_EQ(FaithfulPage(Original(file)).TextToLoad(), QLatin1String(file));
}

TEST(MaskedPages, LeaveTemplateSignsInTextToBeEdited) {
  for (const char *file :
       {"<p>{{a}} and {% b %} cost $5 ${c}", "<table><tr><td>{{a}}</td></tr></table>{{b}}",
        "{% a %}<p>b", "<h{{a}}>b</h{{a}}>", R"(<a href="{{a}}" title='{% b "c" %}' id={{d}}>e)",
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

TEST(MaskedPages, AreWrittenWithEachPieceOfCodeWhole) {
  const QByteArray file = "<h2>a</h2>\n<% b %>\n<p>c <% d %> e</p>\n";
  FaithfulPage page(Original(file));
  const QStringList parts = page.TextToLoad().split(QStringLiteral("<!--"));
  ASSERT_EQ(parts.size(), 3);
  const auto mask = [&](qsizetype number) {
    return QStringLiteral("<!--") + parts[number].section(QStringLiteral("-->"), 0, 0) +
           QStringLiteral("-->");
  };
  const QString frame = QStringLiteral("<html><head></head><body>%1</body></html>");
  page.SetBaseline(frame.arg(page.TextToLoad()));
  const QString now = frame.arg(QStringLiteral("<h2>ac ") + mask(2) + QStringLiteral(" e</h2>\n") +
                                mask(1) + QStringLiteral("\n"));
  ScriptedVerifier verifier(now);
  EXPECT_EQ(page.Compose(now, verifier).page.bytes, "<h2>ac <% d %> e</h2>\n<% b %>\n");
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

}  // namespace

}  // namespace velor
