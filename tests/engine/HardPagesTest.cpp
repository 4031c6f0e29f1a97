// SPDX-License-Identifier: GPL-3.0-or-later
// Pages whose markup a parser rearranges, edited and saved in the real component.
#include "tests/engine/ComponentFixture.h"
#include "tests/engine/NastyPages.h"
#include "tools/page-check/PageCheck.h"

namespace velor {

namespace {

bool AsksForAll() {
  return qEnvironmentVariableIntValue("VELOR_ALL_PAGES") != 0;
}

/// An edit for which a save once wrote more bytes than the edit needs.
struct CostlyEdit {
  const char *name;
  QByteArray page;
  const char *kind;
};

void PrintTo(const CostlyEdit &edit, std::ostream *out) {
  *out << edit.name << ", " << edit.kind;
}

const std::vector<CostlyEdit> &CostlyEdits() {
  static const QByteArray blockInTable =
      "<TABLE border=2>\n<PRE>\nThe text of a block that stands first\n<TR><TD> A cell </td></tr>\n"
      "More words of the table's, which do not belong there - and no block's\n</PRE>\n</TABLE>\n";
  static const QByteArray textBeforeFrames =
      "html>\n<head>\n<title>A b</title>\n</head>\n<frameset rows='25,*'>\n<frame src=a.htm>\n"
      "</frameset>\n</html>\n";
  static const QByteArray linkThatGoesOn =
      "<div>\n<div>\n<div><h1><a id=\"a\"/>One two</h1></div>\n</div>\n" +
      QByteArray("<div>\n<p>\n<span>three</span>\n</p>\n<dl><dt>four</dt></dl>\n</div>\n")
          .repeated(12) +
      "</div>\n";
  static const QByteArray commentInRow =
      "<table><tr>lost words<!-- c --><p>more of them\n</table>\n<p>&eacute;";
  static const QByteArray textBeforeList =
      "<h2>&nbsp;</h2>\n\n<a id=\"x\"></a> For words of bare text\n\n<dl "
      "class=\"y\">\n<dt>one</dt>\n</dl>\n<p>";
  static const QByteArray textWithoutEnd =
      "<P>one<table><tr><td>two</td></tr><plaintext>three <b>four</b>\n</plaintext>\n";
  static const std::vector<CostlyEdit> edits = {
      {"a row where a block stands in the table", blockInTable, "table-row"},
      {"a cell where a block stands in the table", blockInTable, "delete-paragraph"},
      {"a cell where a block stands in the table", blockInTable, "center"},
      {"a first word before tags that a parser ignores", textBeforeFrames, "bold"},
      {"a heading with the tag of a link that goes on", linkThatGoesOn, "delete-paragraph"},
      {"a row with a comment behind text that does not belong there", commentInRow, "table-row"},
      {"a paragraph begun in bare text before a list", textBeforeList, "enter"},
      {"a row before text that never ends", textWithoutEnd, "table-row"},
  };
  return edits;
}

class EditsThatWereCostly : public WebEditorTest,
                            public ::testing::WithParamInterface<CostlyEdit> {};

TEST_P(EditsThatWereCostly, CostNothingButTheEdit) {
  const CostlyEdit &edit = GetParam();
  Write(QStringLiteral("page.htm"), edit.page);
  PageCheck check(Engine());
  const QJsonObject result =
      check.Run(Native(QStringLiteral("page.htm")), QLatin1String(edit.kind), 0);
  EXPECT_TRUE(result[QStringLiteral("edited")].toBool());
  EXPECT_TRUE(result[QStringLiteral("document_equal")].toBool());
  EXPECT_EQ(result[QStringLiteral("bytes_outside")].toInt(), 0);
  EXPECT_EQ(result[QStringLiteral("bytes_implied")].toInt(), 0);
}

INSTANTIATE_TEST_SUITE_P(HardPages, EditsThatWereCostly, ::testing::ValuesIn(CostlyEdits()));

class HardPages : public WebEditorTest {
 protected:
  QJsonObject Check(const QByteArray &page, const QString &kind, int place) {
    Write(QStringLiteral("page.htm"), page);
    const QJsonObject result = check_.Run(Native(QStringLiteral("page.htm")), kind, place);
    EXPECT_EQ(result[PageCheck::ErrorField()].toString(), QString());
    EXPECT_TRUE(result[QStringLiteral("document_equal")].toBool());
    const bool isEdited = result[QStringLiteral("edited")].toBool();
    EXPECT_TRUE(isEdited || result[QStringLiteral("identical")].toBool());
    if (HasFailure()) ADD_FAILURE() << page.toPercentEncoding(" \n<>=\"/").constData();
    return result;
  }
  PageCheck check_{Engine()};
};

TEST_F(HardPages, ChangeNothingOutsideTheElementAroundTheEdit) {
  // Without words, paragraphs and rows, so that the first place of every edit lies behind it.
  const QByteArray before =
      "<HTML>\r\n<BODY BGCOLOR=white Text='#000000'>\r\n<!-- kept --><HR NOSHADE><Br/>\r\n";
  const QByteArray behind =
      "\r\n<HR><P>kept&nbsp;words &copy 2001 <B>kept<I>too</B></I>\r\n<UL><LI>kept<LI>kept</UL>";
  const QByteArray elements[] = {
      "<DIV CLASS=x><table>lost words<tr><td>a cell</td>stray<td>more<tr>any</table></DIV>",
      "<DIV><A NAME=x><P>one</P>\r\n<P>two<TABLE><TR><TD>three</TABLE></A></DIV>",
      "<DIV><P>one <FONT COLOR=red><I>two <P>three</I> four<P>five</FONT></DIV>",
      "<DIV><FORM><TABLE><FORM><TR><TD>one</FORM><TR><TD>two</TABLE></FORM>three</DIV>",
      "<DIV><UL><LI>one<LI><P>two<B>three<LI>four</B></UL></P>five<DL><DT>six<DD>seven</DL></DIV>",
      ("<DIV>one<BUTTON>two<BUTTON>three</BUTTON><SELECT><P><OPTION>four</"
       "SELECT><NOBR>five<NOBR>six"
       "</NOBR></NOBR></DIV>"),
  };
  int number = 0;
  int whole = 0;  // saves that wrote more than the edit
  for (const QByteArray &element : elements) {
    for (const QString &kind : PageCheck::ScriptKinds()) {
      // These are edits of the whole page.
      if (kind == u"page-title" || kind == u"replace-all") continue;
      if (++number % 3 != 0 && !AsksForAll()) continue;
      SCOPED_TRACE(qPrintable(kind));
      const QJsonObject result = Check(before + element + behind, kind, 0);
      const QString rung = result[QStringLiteral("rung")].toString();
      EXPECT_NE(rung, QStringLiteral("everything"));
      whole += rung == QStringLiteral("elements") ? 1 : 0;
      const QByteArray saved = check_.Saved();
      EXPECT_TRUE(saved.startsWith(before));
      EXPECT_TRUE(saved.endsWith(behind));
    }
  }
  EXPECT_GT(whole, 0);
}

/// An exchange of words, and what the saved page is then.
struct Exchange {
  const char *name;
  QString kind;
  QByteArray saved;
};

TEST_F(HardPages, HaveWordsExchangedWithoutAnyOtherByte) {
  const QByteArray behind =
      "\r\n<!-- words --><?words?>\r\n<P Title='words'>other words<%words%> <em>words</em>";
  const QByteArray page = "<p>First wo<b>rd</b>s &amp; words &copy 2001<br/>" + behind;
  const Exchange exchanges[] = {
      {"the first match, which lies across elements", QStringLiteral("replace=words,signs"),
       "<p>First signs &amp; words &copy 2001<br/>" + behind},
      {"a correction there", QStringLiteral("correct=words,signs"),
       "<p>First signs &amp; words &copy 2001<br/>" + behind},
      {"every match", QStringLiteral("replace-all=words,signs"),
       "<p>First signs &amp; signs &copy 2001<br/>"
       "\r\n<!-- words --><?words?>\r\n<P Title='words'>other signs<%words%> <em>signs</em>"},
  };
  for (const Exchange &exchange : exchanges) {
    SCOPED_TRACE(exchange.name);
    const QJsonObject result = Check(page, exchange.kind, 0);
    EXPECT_TRUE(result[QStringLiteral("edited")].toBool());
    EXPECT_EQ(result[QStringLiteral("bytes_outside")].toInt(), 0);
    EXPECT_EQ(check_.Saved().toStdString(), exchange.saved.toStdString());
  }
}

TEST_F(HardPages, OfNastyMarkupAreSavedAsTheDocumentsTheyBecame) {
  const std::uint32_t count = AsksForAll() ? 600 : 16;
  int edits = 0;
  for (std::uint32_t number = 0; number < count && !HasFailure(); ++number) {
    const QString &kind = PageCheck::ScriptKinds()[number % PageCheck::ScriptKinds().size()];
    SCOPED_TRACE(number);
    const QJsonObject result = Check(NastyPage(number), kind, static_cast<int>(number / 8 % 3));
    edits += result[QStringLiteral("edited")].toBool() ? 1 : 0;
  }
  EXPECT_GT(edits, static_cast<int>(count / 4));
}

}  // namespace

}  // namespace velor
