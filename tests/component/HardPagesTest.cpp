// SPDX-License-Identifier: GPL-3.0-or-later
// Pages that a parser takes apart, edited and saved in the real component.
#include "tests/component/ComponentFixture.h"
#include "tools/page-check/PageCheck.h"

#include <QFile>

namespace velor {

namespace {

/// An edit whose page used to cost bytes that the edit does not need.
struct CostlyEdit {
  const char *name;
  QByteArray page;
  const char *kind;
  int place = 0;
};

void PrintTo(const CostlyEdit &edit, std::ostream *out) {
  *out << edit.name << ", " << edit.kind;
}

const std::vector<CostlyEdit> &CostlyEdits() {
  static const QByteArray blockInTable =
      "<TABLE border=2>\n<PRE>\nFirst lines\n<TR><TD> A cell </td></tr>\nMore of them\n</PRE>\n"
      "</TABLE>\n";
  static const QByteArray textBeforeFrames =
      "html>\n<head>\n<title>A b</title>\n</head>\n<frameset rows='25,*'>\n<frame src=a.htm>\n"
      "</frameset>\n</html>\n";
  static const QByteArray linkThatGoesOn =
      "<div>\n<div>\n<div><h1><a id=\"a\"/>One two</h1></div>\n</div>\n<p>three</p>\n<dl><dt>four"
      "</dt></dl>\n</div>\n";
  static const std::vector<CostlyEdit> edits = {
      {"a row where a block stands in the table", blockInTable, "table-row"},
      {"a cell where a block stands in the table", blockInTable, "delete-paragraph"},
      {"a cell where a block stands in the table", blockInTable, "center"},
      {"a first word before tags that a parser ignores", textBeforeFrames, "bold"},
      {"a heading with the tag of a link that goes on", linkThatGoesOn, "delete-paragraph"},
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
      check.Run(Native(QStringLiteral("page.htm")), QLatin1String(edit.kind), edit.place);
  EXPECT_TRUE(result[QStringLiteral("edited")].toBool());
  EXPECT_TRUE(result[QStringLiteral("document_equal")].toBool());
  EXPECT_EQ(result[QStringLiteral("bytes_outside")].toInt(), 0);
  EXPECT_EQ(result[QStringLiteral("bytes_implied")].toInt(), 0);
}

INSTANTIATE_TEST_SUITE_P(HardPages, EditsThatWereCostly, ::testing::ValuesIn(CostlyEdits()));

}  // namespace

}  // namespace velor
