// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EditingCommands.h"
#include "platform/HtmlDocument.h"
#include "tests/support/Checks.h"

namespace velor {
namespace {

TEST(BlockFormats, StandInTheOrderOfTheList) {
  const QStringList expected = {"Normal",    "Formatted",       "Address",       "Heading 1",
                                "Heading 2", "Heading 3",       "Heading 4",     "Heading 5",
                                "Heading 6", "Numbered List",   "Bulleted List", "Directory List",
                                "Menu List", "Definition Term", "Definition",    "Paragraph"};
  EXPECT_EQ(BlockFormatNames(), expected);
}

TEST(BlockFormats, ReadAPlainBlockAsNormal) {
  for (const BlockFormat &format : BlockFormats()) {
    if (QString::fromLatin1(format.element) != "P") continue;
    EXPECT_STREQ(format.name, "Normal");
    break;
  }
}

TEST(HtmlElement, FindsAttributesInAnyLetterCase) {
  const HtmlElement element{"IMG", {{"src", "a.gif"}, {"alt", ""}}};
  EXPECT_EQ(element.Attribute("SRC"), "a.gif");
  EXPECT_EQ(element.Attribute("width"), "");
  EXPECT_FALSE(element.IsNull());
  EXPECT_TRUE(HtmlElement().IsNull());
}

}  // namespace
}  // namespace velor
