// SPDX-License-Identifier: GPL-3.0-or-later
// Pages opened, edited and saved in the real component: what was not edited stays as it was.
#include "tests/engine/ComponentFixture.h"
#include "tests/engine/PeoplesPages.h"
#include "tests/support/Checks.h"
#include "tests/support/MoreSamples.h"
#include "tools/page-check/PageCheck.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <random>

namespace velor {

namespace {

/// A run takes samples; VELOR_ALL_PAGES=1 asks for every page and every kind of edit.
bool AsksForAll() {
  return qEnvironmentVariableIntValue("VELOR_ALL_PAGES") != 0;
}

QByteArray Utf16(const QString &text) {
  QByteArray bytes("\xFF\xFE");
  for (const QChar codeUnit : text) {
    bytes += static_cast<char>(codeUnit.unicode() & 0xFF);
    bytes += static_cast<char>(codeUnit.unicode() >> 8);
  }
  return bytes;
}

struct Hazard {
  const char *name;
  QByteArray page;
  /// How many kinds of edit may write more than the edit.
  int outside = 1;
};

void PrintTo(const Hazard &hazard, std::ostream *out) {
  *out << hazard.name;
}

const std::vector<Hazard> &Hazards() {
  static const std::vector<Hazard> hazards = {
      {"end tags left out",
       "<HTML>\r\n<BODY BGCOLOR=white>\r\n<P>One two\r\n<P ALIGN=left>Three four<BR>five\r\n"
       "<UL><LI>six<LI>seven</UL><TABLE><TR><TD>eight<TD>nine<TR><TD>ten</TABLE></BODY></"
       "HTML>\r\n"},
      {"references and entities without their sign",
       "<!DOCTYPE html><title>&Eacute;t&eacute</title><p>caf&eacute; &copy 2001 &nbsp; &#146; "
       "a&lt;b "
       "<p>AT&T &amp; R&D &notit;</p><table><tr><td>&euro;uro</td></tr></table>"},
      {"misnested tags",
       "<p><b>bold <i>both</b> italic</i> none</p><a href=x><p>linked</a> text</p><font><table><tr>"
       "<td>cell</font></table>"},
      {"text hoisted from a table",
       "<table>lost words<tr><td>a cell</td>stray</tr></table><p>last one", 3},
      {"line breaks that a parser drops",
       "<p>before</p><pre>\r\n\r\nfirst line\r\n  second</pre><textarea>\n\nx</textarea>"},
      {"text behind the end",
       "<html><body><p>one two\n</body>\n</html>\nmore words\n<!-- end -->\n"},
      {"comments and declarations",
       "<?xml version=\"1.0\"?>\n<!-- a -->\n<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01//EN\">\n"
       "<html><!-- b --><head><!ELEMENT c></head><body><p>one<!-- d -- > -->two</p></body></html>"},
      {"server code",
       "<%@ Language=VBScript %>\n<html><body <% If x Then %>class=\"a\"<% End If %>>\n"
       "<p>Hello <%= Name %> you</p>\n<?php if ($a > 1) { ?><p>more</p><?php } ?>\n"
       "<a href=\"<%= \"u\" %>\">link</a><!--#include file=\"x.inc\" --><table><tr><% loop %>"
       "<td>cell</td></tr></table></body></html>"},
      {"scripts and styles",
       "<head><style>\np > b { color: red }\n</style><script>\n<!--\nif (a < b && c) d('</p>');\n"
       "// -->\n</script></head><p onclick='x(\"a\")'>one "
       "two</p><script>document.write('<p>')</script>"},
      {"a noscript in head and body",
       "<head><noscript><p>no</p><link "
       "rel=x></noscript><title>a</title></head><body><noscript><p>no "
       "script</p></noscript><p>one two</p></body>"},
      {"a declarative shadow root",
       "<p>one two</p><div><template shadowrootmode=\"open\"><p>inside</p></template>light</div>"},
      {"foreign content",
       "<p>one <svg viewBox='0 0 1 1'><path d='M0 0'/><title>t</title><foreignObject><p>x</p>"
       "</foreignObject></svg> two</p><math><mi>x</mi><mo>&lt;</mo></math>"},
      {"old elements",
       "<center><font size=+1 color=#FF0000>one two</font></center><image src=a.gif><listing>\nx"
       "</listing><xmp><b></xmp><nobr>three</nobr><plaintext><p>four"},
      {"double and broken attributes",
       "<p a=1 a=2 b= c='x\ny' d=\"&quot;\" e=f/>one two</p><p ==x>three</p><a href=x\"y>four</a>"},
      {"a byte order mark", "\xEF\xBB\xBF<p>\xC3\xA9t\xC3\xA9 one\r\n<p>two"},
      {"two bytes a character", Utf16(QStringLiteral("<p>one \u65e5\u672c\r\n<p>two"))},
      {"a charset of two bytes and bytes that are no text",
       "<meta charset=big5>\r\n<p>\xA4\xA4\xA4\xE5 one \xFF\xFE\r\n<p>\xA4\x40 two \x81"},
      {"a charset with states",
       "<meta charset=iso-2022-jp>\n<p>one \x1b$BF|K\\\x1b(B two\n<p>\x1b$BF|\x1b(B three"},
      {"blanks and comments behind the end",
       "<html>\r\n<body>\r\n<p>one two</p>\r\n<p>three</p>\r\n\r\n</body>\r\n<!-- c -->\r\n"
       "</html>\r\n<!-- d -->\r\n"},
      {"line breaks of three forms", "<p>one\r\n<p>two\r<p>three\n<p>four"},
  };
  return hazards;
}

class HazardPages : public WebEditorTest, public ::testing::WithParamInterface<Hazard> {
 protected:
  /// Edits the page at the first place for each kind of edit, or for every second kind.
  void Check() {
    const QString file = Native(QStringLiteral("page.htm"));
    Write(QStringLiteral("page.htm"), GetParam().page);
    PageCheck check(Engine());
    const QJsonObject untouched = check.Run(file, {}, 0);
    EXPECT_TRUE(untouched[QStringLiteral("identical")].toBool());
    EXPECT_TRUE(untouched[QStringLiteral("document_equal")].toBool());
    const qsizetype every = AsksForAll() ? 1 : 2;
    int edited = 0;
    for (qsizetype at = GetParam().page.size() % every; at < PageCheck::ScriptKinds().size();
         at += every) {
      const QString &kind = PageCheck::ScriptKinds()[at];
      const QJsonObject result = check.Run(file, kind, 0);
      if (!result[QStringLiteral("edited")].toBool()) continue;
      ++edited;
      SCOPED_TRACE(qPrintable(kind));
      EXPECT_TRUE(result[QStringLiteral("document_equal")].toBool());
      EXPECT_NE(result[QStringLiteral("rung")].toString(), QStringLiteral("everything"));
      EXPECT_LT(result[QStringLiteral("bytes_outside")].toInt(), GetParam().page.size());
      outside += result[QStringLiteral("bytes_outside")].toInt() > 0 ? 1 : 0;
    }
    EXPECT_GT(edited, 1);
  }
  int outside = 0;
};

TEST_P(HazardPages, AreSavedWithNothingButTheEdit) {
  Check();
  EXPECT_LE(outside, GetParam().outside);
}

INSTANTIATE_TEST_SUITE_P(Hazards, HazardPages, ::testing::ValuesIn(Hazards()));

/// A page put together at random from whatever makes pages hard.
QByteArray RandomPage(std::mt19937 &random) {
  static constexpr const char *Pieces[] = {
      "<p>",      "<P CLASS=x>", "</p>",    "word ",       "two words ", "<b>",     "</b>",
      "<i>",      "</i>",        "\r\n",    "&eacute;",    "&nbsp;",     "<table>", "<tr>",
      "<td>",     "</table>",    "<ul>",    "<li>",        "</ul>",      "<div>",   "</div>",
      "<br>",     "<!-- c -->",  "<font>",  "</font>",     "<a href=x>", "</a>",    "<h2>",
      "</h2>",    "<img src=a>", "<pre>\n", "</pre>",      "&copy ",     "<% c %>", "caf\xC3\xA9 ",
      "<center>", "</center>",   "<form>",  "<input a=b>", "</form>",    "</body>", "<hr>"};
  QByteArray page = "<html>\n<body>\n";
  for (int part = 0; part < 60; ++part) page += Pieces[random() % std::size(Pieces)];
  return page;
}

/// Counts the results of page checks.
class Tally {
 public:
  void Add(const QJsonObject &result) {
    EXPECT_TRUE(result[QStringLiteral("document_equal")].toBool())
        << qPrintable(result[QStringLiteral("file")].toString());
    if (!result[QStringLiteral("edited")].toBool()) {
      EXPECT_TRUE(result[QStringLiteral("identical")].toBool())
          << qPrintable(result[QStringLiteral("file")].toString());
      return;
    }
    ++edits;
    clean += result[QStringLiteral("bytes_outside")].toInt() == 0 ? 1 : 0;
  }
  int edits = 0;
  int clean = 0;
};

class ManyPages : public WebEditorTest {
 protected:
  void Check(const QByteArray &page, const QString &kind, int place) {
    Write(QStringLiteral("page.htm"), page);
    tally_.Add(check_.Run(Native(QStringLiteral("page.htm")), kind, place));
    if (HasFailure()) ADD_FAILURE() << page.toPercentEncoding(" \n<>=\"/").constData();
  }
  static const QString &Kind(std::uint32_t number) {
    return PageCheck::ScriptKinds()[static_cast<qsizetype>(number) %
                                    PageCheck::ScriptKinds().size()];
  }
  PageCheck check_{Engine()};
  Tally tally_;
};

TEST_F(ManyPages, OfTagsInAnyOrderAreSavedAsTheDocumentsTheyBecame) {
  std::mt19937 random(11);
  for (int round = AsksForAll() ? 200 : 12; round > 0 && !HasFailure(); --round) {
    const QByteArray page = RandomPage(random);
    const auto kind = static_cast<std::uint32_t>(random());
    Check(page, Kind(kind), static_cast<int>(random() % 4));
  }
  EXPECT_GT(tally_.edits, 4);
}

TEST_F(ManyPages, AsPeopleWriteThemAreSavedWithNothingButTheEdit) {
  // Every style of page meets every kind of edit after 24 pages.
  const std::uint32_t count = AsksForAll() ? 480 : 24;
  for (std::uint32_t number = 0; number < count && !HasFailure(); ++number)
    Check(PeoplesPage(number), Kind(number + number / 24), static_cast<int>(number % 7));
  EXPECT_GT(tally_.edits, static_cast<int>(count * 2 / 3));
  EXPECT_GE(tally_.clean * 1000, tally_.edits * 985) << tally_.clean << " of " << tally_.edits;
}

TEST_F(ManyPages, OfThisFolderAreSavedWithNothingButTheEdit) {
  const QDir pages(QStringLiteral(VELOR_OWN_PAGES));
  const QStringList names = pages.entryList({QStringLiteral("*.htm*")}, QDir::Files);
  ASSERT_GE(names.size(), 12);
  for (qsizetype number = 0; number < names.size(); ++number) {
    const QString file = pages.filePath(names[number]);
    const QJsonObject untouched = check_.Run(file, {}, 0);
    EXPECT_TRUE(untouched[QStringLiteral("identical")].toBool()) << qPrintable(file);
    for (qsizetype kind = 0; kind < PageCheck::ScriptKinds().size(); ++kind) {
      if (!AsksForAll() && kind % 4 != number % 4) continue;
      tally_.Add(check_.Run(file, PageCheck::ScriptKinds()[kind], static_cast<int>(number % 3)));
    }
  }
  EXPECT_GE(tally_.edits, names.size());
  EXPECT_GE(tally_.clean * 1000, tally_.edits * 985) << tally_.clean << " of " << tally_.edits;
}

class PagesOfAnotherFolder : public ManyPages, public ::testing::WithParamInterface<std::string> {};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PagesOfAnotherFolder);

TEST_P(PagesOfAnotherFolder, AreSavedWithNothingButTheEdit) {
  const QDir pages(QString::fromStdString(GetParam()));
  std::uint32_t number = 0;
  for (const QString &name : pages.entryList({QStringLiteral("*.htm*")}, QDir::Files)) {
    if (++number % 5 != 0 && !AsksForAll()) continue;
    tally_.Add(check_.Run(pages.filePath(name), Kind(number / 5), 1));
  }
  EXPECT_GT(tally_.edits, 0) << GetParam();
  EXPECT_GE(tally_.clean * 1000, tally_.edits * 985) << tally_.clean << " of " << tally_.edits;
}

INSTANTIATE_TEST_SUITE_P(ManyPages, PagesOfAnotherFolder,
                         ::testing::ValuesIn(MoreSamples("VELOR_MORE_PAGES", VELOR_MORE_PAGES)));

struct Template {
  const char *name;
  QByteArray page;
};

void PrintTo(const Template &page, std::ostream *out) {
  *out << page.name;
}

class TemplatePages : public WebEditorTest, public ::testing::WithParamInterface<Template> {
 protected:
  /// What is saved after `script` changed the document.
  QByteArray SavedAfter(const QString &script) {
    const QString path = Write(QStringLiteral("page.htm"), GetParam().page);
    editor_->LoadDocument(path);
    Evaluate(script);
    editor_->SaveDocument(path);
    return Bytes(QStringLiteral("page.htm"));
  }
};

TEST_P(TemplatePages, KeepEverySignWhenTheTextOfACellChanges) {
  const QByteArray saved = SavedAfter(QStringLiteral(
      "{ const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);"
      "while (walker.nextNode() && !walker.currentNode.data.includes('Head'));"
      "walker.currentNode.data = walker.currentNode.data.replace('Head', 'HeadX'); }"));
  EXPECT_EQ(saved, QByteArray(GetParam().page).replace("Head", "HeadX"));
}

TEST_P(TemplatePages, KeepEverySignWhenAnAttributeOfTheTableChanges) {
  const QByteArray saved =
      SavedAfter(QStringLiteral("document.querySelector('table').setAttribute('title', 'new')"));
  QByteArray page = GetParam().page;
  EXPECT_EQ(saved, page.insert(page.indexOf('>', page.indexOf("<table")), " title=\"new\""));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, TemplatePages,
    ::testing::Values(
        Template{
            "Handlebars",
            "<table>\n<tr>{{#each cols}}<th>Head</th>{{/each}}</tr>\n{{#each rows}}<tr><td>Name"
            "</td><td>{{name}}</td></tr>{{/each}}\n</table>"},
        Template{
            "Jinja",
            "{% extends \"base.html\" %}\n<!DOCTYPE html>\n<html><head>{% block head %}\n"
            "<title>{{ t }}</title>{% endblock %}</head>\n<body {% if x %}class=\"a\"{% endif %}>"
            "\n<table>\n{% for r in rows %}\n  <tr {{ r.attrs }}>{% if a < b %}<td>Head {{ r }}"
            "</td>{% else %}<td><a href=\"{% url \"x\" %}\">b</a></td>{% endif %}</tr>\n"
            "{% endfor %}</table>\n</body>{% block end %}{% endblock %}\n</html>\n"},
        Template{
            "Freemarker",
            "<table><#list rows as r><tr><#if r.x><td>Head</td><#else><td>${r.y}</td></#if></tr>"
            "</#list></table>"},
        Template{
            "Velocity",
            "<table>\n#foreach( $r in $rows )\n<tr>$r.before()<td>Head $r.name</td></tr>\n#end\n"
            "</table>"},
        Template{"Thymeleaf",
                 "<table th:each=\"r : ${rs}\"><tr>[[${r.x}]]<td>Head</td></tr></table>"},
        Template{
            "server code",
            "<table>\n<% Do %>\n<tr <?php echo 1 ?>><td>Head <%= x %></td></tr><% Loop %></table>"},
        Template{
            "blocks of a framework",
            "<table>@for (r of rows; track r.id) {<tr *ngIf=\"r\"><td [x]=\"r\">Head {{ r }}</td>"
            "</tr>} @empty {<tr><td>none</td></tr>}</table>"}));

class Saving : public WebEditorTest {};

TEST_F(Saving, TheSourceThatIsShownIsThePersonsOwn) {
  LoadWithCaret("<P>one &eacute;<P ID=x>two\r\n", QStringLiteral("#x"));
  EXPECT_EQ(editor_->TextToSave(), QStringLiteral("<P>one &eacute;<P ID=x>two\r\n"));
  TypeText(QStringLiteral("z"));
  EXPECT_TRUE(editor_->TextToSave().startsWith(QStringLiteral("<P>one &eacute;<P ID=x>two")));
  EXPECT_TRUE(editor_->TextToSave().contains(u'z'));
}

TEST_F(Saving, AnAppliedTextIsTheNewOriginal) {
  const QString path = Write(QStringLiteral("page.htm"), "<P>one");
  editor_->LoadDocument(path);
  const QString applied = QStringLiteral("<P>one\r\n<P Class=a>applied &eacute;\r\n");
  editor_->LoadText(applied, path);
  EXPECT_EQ(editor_->TextToSave(), applied);
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), applied.toUtf8());
}

TEST_F(Saving, BytesThatAreNoTextSurviveAnAppliedText) {
  const QString path =
      Write(QStringLiteral("page.htm"), "<meta charset=big5>\n<p>\xFF\xFE one\n<p>two\n");
  editor_->LoadDocument(path);
  QString text = editor_->TextToSave();
  text.replace(QStringLiteral("two"), QStringLiteral("three"));
  editor_->LoadText(text, path);
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), "<meta charset=big5>\n<p>\xFF\xFE one\n<p>three\n");
}

TEST_F(Saving, ServerCodeIsNeverSeenByTheEngineNorMissedByThePerson) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), "<p>one <%= \"<b>\" %> two</p>"));
  EXPECT_FALSE(Evaluate(QStringLiteral("document.body.innerHTML")).toString().contains(u'%'));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<%= \"<b>\" %>")));
}

TEST_F(Saving, AnIncludeFileNeverGetsTheTagsOfAWholePage) {
  const QString path = Write(QStringLiteral("page.asp"),
                             "<% a %>\r\n<p align=\"<%=b%>\">One two</p>\r\n<% c %>\r\n");
  editor_->LoadDocument(path);
  Evaluate(QStringLiteral("document.querySelector('p').remove()"));
  EXPECT_EQ(editor_->ReasonToWriteAnew(), QString());
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.asp")), "<% a %>\r\n\r\n<% c %>\r\n");
}

struct IncludeFile {
  const char *name;
  const char *file;
  const char *saved;
};
class IncludeFiles : public Saving, public ::testing::WithParamInterface<IncludeFile> {};

TEST_P(IncludeFiles, HaveNoMoreThanTheNewWordWhenAWordIsTypedOver) {
  const QString path = Write(QStringLiteral("page.php"), GetParam().file);
  editor_->LoadDocument(path);
  Evaluate(
      QStringLiteral("const walker = document.createTreeWalker(document.body, 4);"
                     "while (walker.nextNode()) {"
                     "  const text = walker.currentNode;"
                     "  text.data = text.data.replace('two', 'new');"
                     "}"));
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.php")), GetParam().saved);
}

const IncludeFile Includes[] = {
    {"TextAlone", "One two", "One new"},
    {"TextBehindAByteOrderMark", "\xEF\xBB\xBFOne two\n", "\xEF\xBB\xBFOne new\n"},
    {"LinesOfCrLf", "<li>One\r\n<li>two\r\n", "<li>One\r\n<li>new\r\n"},
    {"DoctypeAlone", "<!DOCTYPE html>\n<p>two</p>\n", "<!DOCTYPE html>\n<p>new</p>\n"},
    {"ServerCodeFirst", "<?php a(); ?>\n<b>two</b>\n<? b ?>", "<?php a(); ?>\n<b>new</b>\n<? b ?>"},
    {"StyleFirst", "<style>p{}</style>\n<p>two", "<style>p{}</style>\n<p>new"},
    {"CommentsAround", "<!-- a -->\ntwo<!-- b -->\n", "<!-- a -->\nnew<!-- b -->\n"},
};
INSTANTIATE_TEST_SUITE_P(Forms, IncludeFiles, ::testing::ValuesIn(Includes),
                         [](const auto &form) { return std::string(form.param.name); });

TEST_F(Saving, AValueIsChangedInTheQuotesThatItHad) {
  const QString path =
      Write(QStringLiteral("page.htm"), "<P ALIGN=left>one<P ALIGN='left'>two<P ALIGN=left>three");
  editor_->LoadDocument(path);
  Evaluate(
      QStringLiteral("document.querySelectorAll('p').forEach((p, at) => "
                     "p.setAttribute('align', at < 2 ? 'center' : 'a b'))"));
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")),
            "<P ALIGN=center>one<P ALIGN='center'>two<P ALIGN=\"a b\">three");
}

TEST_F(Saving, TheReasonToWriteAPageAnewIsKnownBeforeItIsSaved) {
  // The last byte is the first of a two-byte character: a letter written behind it would become its
  // second byte.
  const QByteArray file = "<meta charset=big5>\r\n<p id=x>one \xA4";
  const QString path = Write(QStringLiteral("page.htm"), file);
  editor_->LoadDocument(path);
  EXPECT_EQ(editor_->ReasonToWriteAnew(), QString());
  Evaluate(QStringLiteral("document.querySelector('p').append('new')"));
  EXPECT_TRUE(editor_->ReasonToWriteAnew().contains(u"no text in big5"))
      << qPrintable(editor_->ReasonToWriteAnew());
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), file);
}

TEST_F(Saving, AFramesetIsSaidToHaveNoTextToEdit) {
  editor_->LoadDocument(
      Write(QStringLiteral("page.htm"), "<frameset cols='*,*'><frame src=a.htm></frameset>"));
  ASSERT_TRUE(WaitFor([&] { return !listener_.reports.empty(); }));
  EXPECT_TRUE(listener_.reports.front().contains(QStringLiteral("frameset")));
}

TEST_F(Saving, ACharacterThatHasNoPlaceInAScriptIsRefused) {
  editor_->LoadDocument(
      Write(QStringLiteral("page.htm"), "<meta charset=iso-8859-1><body><script>a</script><p>x"));
  Evaluate(QStringLiteral("document.scripts[0].textContent = 'a\\u65e5'"));
  EXPECT_EQ(ErrorOf([&] { editor_->SaveDocument(Logic(QStringLiteral("new.htm"))); }),
            ErrorNumber::InvalidProcedureCall);
  EXPECT_FALSE(QFile::exists(Native(QStringLiteral("new.htm"))));
}

TEST_F(Saving, TheVerifierIsNotThePagesOwnProcess) {
  LoadWithCaret("<p>one<p id=x>two", QStringLiteral("#x"));
  TypeText(QStringLiteral("z"));
  editor_->TextToSave();
  EXPECT_GT(Engine().Verifier().ProcessId(), 0);
  EXPECT_NE(Engine().Verifier().ProcessId(), Page()->renderProcessPid());
}

TEST_F(Saving, TheVerifierParsesAnEmptyTextLikeAnyOther) {
  EXPECT_EQ(Engine().Verifier().Serialisation(QString()),
            QStringLiteral("<html><head></head><body></body></html>"));
}

TEST_F(Saving, APageWhoseWholeTextIsTakenAwayIsSavedEmpty) {
  const QString path = Write(QStringLiteral("page.htm"), "one two");
  editor_->LoadDocument(path);
  Evaluate(QStringLiteral("document.body.textContent = ''"));
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")), "");
  EXPECT_TRUE(listener_.reports.empty()) << qPrintable(listener_.reports.front());
}

TEST_F(Saving, AVerifierWhoseProcessEndsIsMadeAnew) {
  LoadWithCaret("<P>one<P id=x>two", QStringLiteral("#x"));
  TypeText(QStringLiteral("z"));
  editor_->TextToSave();
  const qint64 first = Engine().Verifier().ProcessId();
  ::kill(static_cast<pid_t>(first), SIGKILL);
  ASSERT_TRUE(WaitFor([&] { return Engine().Verifier().ProcessId() == 0; }));
  TypeText(QStringLiteral("y"));
  EXPECT_TRUE(editor_->TextToSave().startsWith(QStringLiteral("<P>one<P id=x>two")));
}

TEST_F(Saving, WhatIsAddedBehindThePagesLastBlankStaysBeforeItsEndTags) {
  const QString path =
      Write(QStringLiteral("page.htm"), "<html>\r\n<body>\r\n<p>one</p>\r\n</body>\r\n</html>\r\n");
  editor_->LoadDocument(path);
  Evaluate(QStringLiteral("document.body.insertAdjacentHTML('beforeend', '<p>two</p>')"));
  editor_->SaveDocument(path);
  EXPECT_EQ(Bytes(QStringLiteral("page.htm")),
            "<html>\r\n<body>\r\n<p>one</p>\r\n<p>two</p></body>\r\n</html>\r\n");
}

TEST_F(Saving, TwoBytesEachThatNothingTellsAreReadAsBrowsersDoAndKept) {
  const QByteArray file = Utf16(QStringLiteral("<p>one\r\n<p>two\r\n")).sliced(2);
  const QString path = Write(QStringLiteral("page.htm"), file);
  editor_->LoadDocument(path);
  Evaluate(QStringLiteral("document.body.append('new')"));
  editor_->SaveDocument(path);
  QByteArray saved = Bytes(QStringLiteral("page.htm"));
  EXPECT_TRUE(saved.contains("new"));
  EXPECT_EQ(saved.replace("new", ""), file);
}

}  // namespace

}  // namespace velor
