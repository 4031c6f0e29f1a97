// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TableHtml.h"
#include "platform/PasteLimit.h"
#include "tests/support/Checks.h"

namespace velor {
namespace {

TableValues Defaults() {
  const QString one = QStringLiteral("1");
  const QString three = QStringLiteral("3");
  return {.align = QStringLiteral("Left"),
          .cellSpacing = one,
          .cellPadding = one,
          .border = one,
          .rows = three,
          .columns = three};
}

QString FirstLine(const QString &html) {
  return html.section(QStringLiteral("\r\n"), 0, 0);
}

QString WithoutRows() {
  return QStringLiteral(
      "<Table align=\"Left\" cellspacing=\"1\" cellpadding=\"1\" border=\"1\" width=75%>\r\n"
      "</Table>\r\n");
}

TEST(TableHtml, WritesTheDefaultTable) {
  EXPECT_EQ(TableHtml(Defaults()),
            QStringLiteral("<Table align=\"Left\" cellspacing=\"1\" cellpadding=\"1\" "
                           "border=\"1\" width=75%>\r\n"
                           "   <TR>\r\n"
                           "      <TD></TD>\r\n"
                           "      <TD></TD>\r\n"
                           "      <TD></TD>\r\n"
                           "   </TR>\r\n"
                           "   <TR>\r\n"
                           "      <TD></TD>\r\n"
                           "      <TD></TD>\r\n"
                           "      <TD></TD>\r\n"
                           "   </TR>\r\n"
                           "   <TR>\r\n"
                           "      <TD></TD>\r\n"
                           "      <TD></TD>\r\n"
                           "      <TD></TD>\r\n"
                           "   </TR>\r\n"
                           "</Table>\r\n"));
}

TEST(TableHtml, WritesHeadingsIntoTheFirstRow) {
  TableValues values = Defaults();
  values.rows = QStringLiteral("2");
  values.columns = QStringLiteral("1");
  values.align.clear();
  values.firstRow = FirstRow::Headings;
  EXPECT_EQ(TableHtml(values),
            QStringLiteral("<Table cellspacing=\"1\" cellpadding=\"1\" border=\"1\" width=75%>\r\n"
                           "   <TR>\r\n"
                           "      <TH scope=\"col\"></TH>\r\n"
                           "   </TR>\r\n"
                           "   <TR>\r\n"
                           "      <TD></TD>\r\n"
                           "   </TR>\r\n"
                           "</Table>\r\n"));
  values.rows = QStringLiteral("0");
  EXPECT_FALSE(TableHtml(values).contains(QStringLiteral("<TR>")));
}

TEST(TableHtml, HasItsLooksInStylesInPagesOfThatDialect) {
  TableValues values = Defaults();
  values.dialect = Dialect::Styles;
  values.align.clear();
  values.rows = QStringLiteral("2");
  values.columns = QStringLiteral("1");
  values.firstRow = FirstRow::Headings;
  EXPECT_EQ(
      TableHtml(values),
      QStringLiteral("<Table style=\"border: 1px solid; border-spacing: 1px; width: 75%\">\r\n"
                     "   <TR>\r\n"
                     "      <TH scope=\"col\" style=\"border: 1px solid\"></TH>\r\n"
                     "   </TR>\r\n"
                     "   <TR>\r\n"
                     "      <TD style=\"border: 1px solid\"></TD>\r\n"
                     "   </TR>\r\n"
                     "</Table>\r\n"));
}

TEST(TableHtml, WritesStylesOfWhatWasAskedForAlone) {
  TableValues values = Defaults();
  values.dialect = Dialect::Styles;
  const auto looks = [&](const char *align, const char *spacing, const char *padding,
                         const char *border) {
    values.align = QString::fromLatin1(align);
    values.cellSpacing = QString::fromLatin1(spacing);
    values.cellPadding = QString::fromLatin1(padding);
    values.border = QString::fromLatin1(border);
    const QString html = TableHtml(values);
    return (FirstLine(html) + html.section(QStringLiteral("\r\n"), 2, 2).trimmed()).toStdString();
  };
  EXPECT_EQ(looks("Center", "0", "4", "0"),
            "<Table style=\"border-collapse: collapse; margin-left: auto; margin-right: auto; "
            "width: 75%\"><TD style=\"padding: 4px\"></TD>");
  EXPECT_EQ(looks("left", "", "0", "5"),
            "<Table style=\"border: 5px solid; float: left; width: 75%\">"
            "<TD style=\"border: 1px solid; padding: 0px\"></TD>");
  EXPECT_EQ(looks("a\"b", "<", "-1", "thin"), "<Table style=\"width: 75%\"><TD></TD>");
  EXPECT_EQ(looks("Right", "", "", ""), "<Table style=\"float: right; width: 75%\"><TD></TD>");
}

TEST(TableHtml, LeavesOutTheAttributeOfEachEmptyField) {
  TableValues values = Defaults();
  values.cellSpacing.clear();
  EXPECT_EQ(FirstLine(TableHtml(values)),
            QStringLiteral("<Table align=\"Left\" cellpadding=\"1\" border=\"1\" width=75%>"));
  values.align.clear();
  values.cellPadding.clear();
  values.border.clear();
  EXPECT_EQ(FirstLine(TableHtml(values)), QStringLiteral("<Table width=75%>"));
}

TEST(TableHtml, WritesValuesAsTyped) {
  TableValues values = Defaults();
  values.align = QStringLiteral("a\"b");
  values.border = QStringLiteral("<&>");
  EXPECT_EQ(FirstLine(TableHtml(values)),
            QStringLiteral("<Table align=\"a\"b\" cellspacing=\"1\" cellpadding=\"1\" "
                           "border=\"<&>\" width=75%>"));
}

TEST(TableHtml, RoundsCountsTiesToEven) {
  TableValues values = Defaults();
  values.rows = QStringLiteral("2.5");
  values.columns = QStringLiteral("3.5");
  EXPECT_EQ(TableHtml(values).count(QStringLiteral("<TR>")), 2);
  EXPECT_EQ(TableHtml(values).count(QStringLiteral("<TD>")), 8);
}

TEST(TableHtml, HasNoRowsForACountThatIsNone) {
  for (const char *rows : {"0", "-4", "abc", "", "40000", "-40000", "1e20"}) {
    TableValues values = Defaults();
    values.rows = QString::fromUtf8(rows);
    EXPECT_EQ(TableHtml(values), WithoutRows()) << rows;
  }
}

TEST(TableHtml, HasRowsWithoutCellsForAColumnCountThatIsNone) {
  for (const char *columns : {"0", "-4", "abc", "", "40000"}) {
    TableValues values = Defaults();
    values.rows = QStringLiteral("1");
    values.columns = QString::fromUtf8(columns);
    EXPECT_TRUE(TableHtml(values).endsWith(
        QStringLiteral("width=75%>\r\n   <TR>\r\n   </TR>\r\n</Table>\r\n")))
        << columns;
  }
}

TEST(TableHtml, LeavesOutRowsThatNoPageTakes) {
  TableValues values = Defaults();
  values.rows = QStringLiteral("32767");
  values.columns = QStringLiteral("32767");
  EXPECT_EQ(TableHtml(values), WithoutRows());
}

TEST(TableHtml, RefusesExactlyWhatHasMoreTagsThanAPageTakes) {
  TableValues values = Defaults();
  for (const char *columns : {"0", "1", "3", "499", "32767", "abc"}) {
    values.columns = QString::fromLatin1(columns);
    int most = 0;
    for (int step = 1 << 14; step > 0; step /= 2) {
      values.rows = QString::number(most + step);
      if (TableRefusal(values).isEmpty()) most += step;
    }
    values.rows = QString::number(most);
    EXPECT_LE(TableHtml(values).count(u'<'), MostPastedTags) << columns;
    values.rows = QString::number(most + 1);
    const QString why = TableRefusal(values);
    EXPECT_EQ(why.isEmpty(), most == 32767) << columns;
    EXPECT_TRUE(why.isEmpty() || why.contains(QString::number(most))) << columns;
  }
}

TEST(TableHtml, WritesTheLongestRowAndTheLongestColumn) {
  TableValues values = Defaults();
  values.rows = QStringLiteral("1");
  values.columns = QStringLiteral("32767");
  EXPECT_EQ(TableHtml(values).count(QStringLiteral("<TD>")), 32767);
  values.rows = QStringLiteral("32767");
  values.columns = QStringLiteral("1");
  EXPECT_EQ(TableHtml(values).count(QStringLiteral("<TR>")), 32767);
}

}  // namespace
}  // namespace velor
