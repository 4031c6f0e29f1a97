// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/PageText.h"
#include "tests/support/Checks.h"

namespace velor {
namespace {

PageOriginal Original(const QByteArray &bytes) {
  return {bytes, DecodePage(bytes), "<html>\n<p>baseline</p></html>"};
}

TEST(ComposePage, GivesAnUneditedPageBackToTheByte) {
  const QByteArray bytes = "<META charset=big5>\r\n<P>\xA4\xA4 \x81 bad\n&nbsp";
  const PageOriginal original = Original(bytes);
  const PageToWrite page = ComposePage(original, original.baseline);
  EXPECT_EQ(page.bytes, bytes);
  EXPECT_EQ(page.text, original.page.text);
}

TEST(ComposePage, WritesAnEditedPageInItsOwnCharsetAndLineEnds) {
  const PageOriginal original = Original("<meta charset=big5>\r\n<p>old\r\n");
  const PageToWrite page = ComposePage(original, QString::fromUtf8("<p>中\n日é\n"));
  EXPECT_EQ(page.text, QString::fromUtf8("<p>中\r\n日é\r\n"));
  EXPECT_EQ(page.bytes, "<p>\xA4\xA4\r\n\xA4\xE9&#233;\r\n");
}

TEST(ComposePage, TakesAPageWithoutABaselineAsEdited) {
  PageOriginal original = Original("<p>\n");
  original.baseline.clear();
  EXPECT_EQ(ComposePage(original, "").bytes, "");
  EXPECT_EQ(ComposePage(original, "<p>new").bytes, "<p>new");
}

}  // namespace
}  // namespace velor
