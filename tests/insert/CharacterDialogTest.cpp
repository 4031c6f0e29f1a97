// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/CharacterDialog.h"
#include "insert/CharacterNames.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>

namespace velor {
namespace {

constexpr std::size_t Most = 100;

bool Finds(const char *words, char32_t character) {
  const std::vector<char32_t> found = FindCharacters(QString::fromUtf8(words), Most);
  return std::find(found.begin(), found.end(), character) != found.end();
}

TEST(CharacterNames, AreFoundByWordsInAnyOrderByCodeAndByTheCharacterItself) {
  EXPECT_EQ(FindCharacters(QStringLiteral("em dash"), Most).front(), U'\u2014');
  EXPECT_TRUE(Finds("dash em", U'\u2014'));
  EXPECT_TRUE(Finds("acute e small latin", U'\u00E9'));
  EXPECT_TRUE(Finds("2014", U'\u2014'));
  EXPECT_TRUE(Finds("u+1f600", U'\U0001F600'));
  EXPECT_TRUE(Finds("\u00E9", U'\u00E9'));
  EXPECT_TRUE(Finds("no-break space", U'\u00A0'));
}

TEST(CharacterNames, OfWhatCannotStandInATextAreNotFound) {
  for (const char *words : {"d800", "0007", "e000", "110000", "", "  ", "no such name at all"})
    EXPECT_TRUE(FindCharacters(QString::fromLatin1(words), Most).empty()) << words;
}

TEST(CharacterNames, AreGivenInBlocksThatAllHaveCharacters) {
  const std::vector<CharacterBlock> &blocks = CharacterBlocks();
  ASSERT_GT(blocks.size(), 200u);
  EXPECT_EQ(blocks[0].name, QStringLiteral("Basic Latin"));
  EXPECT_EQ(blocks[1].first, U'\u0080');
  EXPECT_EQ(blocks[1].last, U'\u00FF');
  for (const CharacterBlock &block : blocks)
    EXPECT_FALSE(CharactersOf(block).empty()) << block.name.toStdString();
  EXPECT_EQ(CharactersOf(blocks[1]).front(), U'\u00A0');
  EXPECT_EQ(CharacterName(U'\u2014'), QStringLiteral("EM DASH"));
}

class CharacterDialogTest : public ::testing::Test {
 protected:
  template <typename Widget>
  Widget &In(const char *name) {
    return *dialog.findChild<Widget *>(QString::fromLatin1(name));
  }

  std::vector<char32_t> recent;
  CharacterDialog dialog{recent, nullptr};
};

TEST_F(CharacterDialogTest, TakesTheFirstThatIsFoundByEnterAndRemembersIt) {
  dialog.show();
  QTest::keyClicks(&In<QLineEdit>("txtWords"), QStringLiteral("euro sign"));
  EXPECT_EQ(In<QLabel>("lblName").text(), QStringLiteral("U+20AC  EURO SIGN"));
  QTest::keyClick(&In<QLineEdit>("txtWords"), Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Character(), QString::fromUtf8("\u20AC"));
  EXPECT_EQ(recent, std::vector<char32_t>{U'\u20AC'});

  CharacterDialog next(recent, nullptr);
  EXPECT_EQ(next.Character(), QString::fromUtf8("\u20AC")) << "what was chosen stands first";
}

TEST_F(CharacterDialogTest, ShowsABlockAndIsWalkedByArrows) {
  dialog.show();
  auto &blocks = In<QComboBox>("cobBlock");
  EXPECT_EQ(blocks.currentText(), QStringLiteral("Latin 1 Supplement"));
  blocks.setCurrentText(QStringLiteral("Arrows"));
  EXPECT_EQ(dialog.Character(), QString::fromUtf8("\u2190"));
  QTest::keyClick(&In<QLineEdit>("txtWords"), Qt::Key_Down);
  auto &characters = In<QListWidget>("lstCharacters");
  QTest::keyClick(&characters, Qt::Key_Right);
  EXPECT_EQ(dialog.Character(), QString::fromUtf8("\u2191"));
  EXPECT_EQ(characters.currentItem()->data(Qt::AccessibleTextRole).toString(),
            QStringLiteral("UPWARDS ARROW"));
}

TEST_F(CharacterDialogTest, TakesNothingWhereNothingIsFound) {
  dialog.show();
  QTest::keyClicks(&In<QLineEdit>("txtWords"), QStringLiteral("no such thing"));
  EXPECT_FALSE(In<QPushButton>("cmdOK").isEnabled());
  QTest::keyClick(&In<QLineEdit>("txtWords"), Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.Character(), QString());
}

}  // namespace
}  // namespace velor
