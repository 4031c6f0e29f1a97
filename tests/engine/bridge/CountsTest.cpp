// SPDX-License-Identifier: GPL-3.0-or-later
// How many words and characters a page is said to have.
#include "tests/engine/bridge/BridgePage.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

/// "words/characters" of the page, and of the selection where something is selected.
std::string Counts(BridgePage &page) {
  return page
      .Evaluate(QStringLiteral("(({page: p, selection: s}) => `${p.words}/${p.characters}` +"
                               " (s ? ` ${s.words}/${s.characters}` : ''))(velor.counts())"))
      .toString()
      .toStdString();
}

TEST(Counts, AreOfWhatIsReadAlone) {
  BridgePage page;
  page.Load(
      QStringLiteral("<!DOCTYPE html><title>no words</title><style>p {}</style>"
                     "<h1>Two  words</h1>\n<p>wo<b>rd</b> <!-- none --> don\u2019t</p>"
                     "<script>var none</script><p style='display: none'>none</p>"
                     "<p>{{ none }}</p><ul><li>\u65e5\u672c\u8a9e\u306f</ul><p>\U0001F600 3.5"));
  // "Two words", "word don't", nothing, the four characters (two words), a sign and a number.
  EXPECT_EQ(Counts(page), "7/28");
}

TEST(Counts, OfTheSelectionAreOfItsPartsOfLines) {
  BridgePage page;
  page.Load(QStringLiteral("<!DOCTYPE html><p id=a>one two</p><p>three</p><p id=b>four five</p>"));
  page.Evaluate(
      QStringLiteral("getSelection().setBaseAndExtent(a.firstChild, 4, b.firstChild, 4)"));
  EXPECT_EQ(Counts(page), "5/21 3/12");
  page.Evaluate(QStringLiteral("getSelection().selectAllChildren(document.body)"));
  EXPECT_EQ(Counts(page), "5/21 5/21");
  page.Evaluate(QStringLiteral("getSelection().collapse(a.firstChild, 4)"));
  EXPECT_EQ(Counts(page), "5/21");
  page.Load(QString());
  EXPECT_EQ(Counts(page), "0/0");
}

}  // namespace
}  // namespace velor
