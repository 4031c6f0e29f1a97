// SPDX-License-Identifier: GPL-3.0-or-later
// How much of a page a save writes anew, and in which charset.
#include "platform/RuntimeError.h"
#include "tests/page/saving/FaithfulPageFixture.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

TEST(Ladder, GivesAnUneditedPageBackWithoutAskingTheEngine) {
  const QByteArray file = "<META charset=big5>\r\n<P>\xA4\xA4 \x81 bad\n&nbsp";
  const QString before = QStringLiteral("<html>anything");
  ScriptedVerifier verifier({});
  const SavedPage saved = Save(file, before, before, verifier);
  EXPECT_EQ(saved.page.bytes, file);
  EXPECT_EQ(saved.rung, SaveRung::Unedited);
  EXPECT_TRUE(verifier.tried.isEmpty());
}

const QByteArray Rows = "<p>one<p>two<table><TR><TD>a</TD></table>";
const QString RowsBefore = QStringLiteral(
    "<html><head></head><body><p>one</p><p>two</p><table><tbody><tr><td>a</td></tr></tbody>"
    "</table></body></html>");
const QString RowsNow = QStringLiteral(
    "<html><head></head><body><p>one</p><img><p>two</p><table><tbody><tr><td>a</td></tr></tbody>"
    "</table></body></html>");

TEST(Ladder, WritesImpliedTagsWhereTheEditAloneReadsDifferently) {
  ScriptedVerifier verifier(RowsNow,
                            [](const QString &text) { return text.contains(u"</p><img>"); });
  const SavedPage saved = Save(Rows, RowsBefore, RowsNow, verifier);
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
      QString(RowsBefore).replace(QStringLiteral("<table>"), QStringLiteral("<img><table>"));
  QString now = RowsBefore;
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
  const SavedPage saved = Save(Rows, RowsBefore, now, verifier);
  EXPECT_EQ(saved.page.bytes, QByteArray(Rows).replace("<table>", "<img><table>"));
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
  ScriptedVerifier verifier(RowsNow, [](const QString &) { return false; });
  const SavedPage saved = Save("<html>" + Rows, RowsBefore, RowsNow, verifier);
  EXPECT_EQ(saved.page.text, RowsNow);
  EXPECT_EQ(saved.rung, SaveRung::Everything);
}

TEST(Ladder, TriesLessOnALargePageThanOnASmallOne) {
  ScriptedVerifier small(RowsNow, [](const QString &) { return false; });
  Save(Rows, RowsBefore, RowsNow, small);
  const QByteArray much = QByteArray("word ").repeated(4'000'000);
  const QString wordsBefore = QString(RowsBefore).replace("one", QString::fromLatin1(much));
  const QString wordsNow = QString(RowsNow).replace("one", QString::fromLatin1(much));
  ScriptedVerifier large(wordsNow, [](const QString &) { return false; });
  Save(QByteArray(Rows).replace("one", much), wordsBefore, wordsNow, large);
  EXPECT_GT(small.tried.size(), 2);
  EXPECT_LE(large.tried.size(), 2);
  EXPECT_GT(large.tried.size(), 0);
}

TEST(Ladder, WritesEverythingWhereTheEngineIsSilent) {
  SilentVerifier verifier;
  EXPECT_EQ(Save(Rows, RowsBefore, RowsNow, verifier).rung, SaveRung::Everything);
}

TEST(Ladder, SaysWhyAPageIsWrittenAnew) {
  SilentVerifier silent;
  EXPECT_TRUE(Save(Rows, RowsBefore, RowsNow, silent).reason.contains(u"did not answer"));
  ScriptedVerifier refusing(RowsNow, [](const QString &) { return false; });
  EXPECT_TRUE(Save(Rows, RowsBefore, RowsNow, refusing).reason.contains(u"no smaller change"));
  ScriptedVerifier willing(RowsNow);
  EXPECT_EQ(Save(Rows, RowsBefore, RowsNow, willing).reason, QString());
  FaithfulPage fresh;
  EXPECT_EQ(fresh.Compose(RowsNow, willing).reason, QString());
}

TEST(Ladder, AsksAgainAfterTheEngineWasSilent) {
  FaithfulPage page(Original(Rows));
  page.SetBaseline(RowsBefore);
  SilentVerifier silent;
  page.Precompute(RowsNow, silent);
  ScriptedVerifier verifier(RowsNow);
  EXPECT_EQ(page.Compose(RowsNow, verifier).rung, SaveRung::Edits);
}

TEST(Ladder, AsksNothingTwiceForOneDocument) {
  FaithfulPage page(Original(Rows));
  page.SetBaseline(RowsBefore);
  ScriptedVerifier verifier(RowsNow);
  page.Compose(RowsNow, verifier);
  page.Compose(RowsNow, verifier);
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
