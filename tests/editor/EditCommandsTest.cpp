// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditCommands.h"
#include "tests/support/Checks.h"

#include <gtest/gtest.h>

namespace velor {

TEST(EditCommandsTest, TheTenKeysStandInToolbarOrderWithTheirPublishedNumbers) {
  struct Row {
    QStringView key;
    QStringView tooltip;
    int number;
  };
  const std::array<Row, 10> published{{{u"bold", u"Bold", 5000},
                                       {u"italic", u"Italic", 5023},
                                       {u"underline", u"Underline", 5048},
                                       {u"left", u"Align Left", 5025},
                                       {u"center", u"Align Center", 5024},
                                       {u"right", u"Align Right", 5026},
                                       {u"number", u"Number", 5030},
                                       {u"bullet", u"Bullet", 5051},
                                       {u"outdent", u"Outdent", 5031},
                                       {u"indent", u"Indent", 5018}}};
  ASSERT_EQ(EditCommands.size(), published.size());
  for (std::size_t row = 0; row < published.size(); ++row) {
    EXPECT_EQ(EditCommands[row].key.toString(), published[row].key.toString());
    EXPECT_EQ(QString::fromLatin1(EditCommands[row].tooltip), published[row].tooltip.toString());
    EXPECT_EQ(Number(EditCommands[row].command), published[row].number);
  }
}

}  // namespace velor
