// SPDX-License-Identifier: GPL-3.0-or-later
// Words typed and deleted with a person's keys at places of many pages: the saved file is the old
// one with the word put in, or without it.
#include "tests/engine/ComponentFixture.h"
#include "tests/engine/PeoplesPages.h"
#include "tests/support/MoreSamples.h"
#include "tools/page-check/PageCheck.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace velor {

namespace {

/// A run takes samples; VELOR_ALL_PAGES=1 asks for more of them.
bool AsksForAll() {
  return qEnvironmentVariableIntValue("VELOR_ALL_PAGES") != 0;
}

/// Words typed and deleted at places of pages, and how many of these edits did just that.
class WordsOfPages : public WebEditorTest {
 protected:
  QString PageOfNumber(std::uint32_t number) const {
    Write(QStringLiteral("page.htm"), PeoplesPage(number));
    return Native(QStringLiteral("page.htm"));
  }
  void TypeIn(const QString &file, int place) {
    const QString word = QStringLiteral("Zebra");
    const QJsonObject result = check_.Run(file, QStringLiteral("type=") + word, place);
    Count(result, result[QStringLiteral("bytes_lost")].toInt() == 0 &&
                      result[QStringLiteral("bytes_added")].toInt() == Size(file, word));
  }
  /// What the page's visible line needs may go or come with the word (see WordDeletion).
  void DeleteIn(const QString &file, int place) {
    const QJsonObject result = check_.Run(file, QStringLiteral("delete-word"), place);
    Count(result, result[QStringLiteral("beyond_word")].toInt() == 0);
  }
  void ExpectTheAim(int mostlyEdited) const {
    EXPECT_GT(edits_, mostlyEdited);
    EXPECT_GE(exact_ * 1000, edits_ * 995) << exact_ << " of " << edits_ << missed_.constData();
  }

 private:
  /// The bytes of a word of ASCII in a file's charset.
  static qsizetype Size(const QString &file, const QString &word) {
    QFile opened(file);
    const QByteArray start = opened.open(QIODevice::ReadOnly) ? opened.read(2) : QByteArray();
    return start == "\xFF\xFE" || start == "\xFE\xFF" ? word.size() * 2 : word.size();
  }
  void Count(const QJsonObject &result, bool isExact) {
    EXPECT_EQ(result[PageCheck::ErrorField()].toString(), QString());
    if (!result[QStringLiteral("edited")].toBool()) return;
    ++edits_;
    EXPECT_TRUE(result[QStringLiteral("document_equal")].toBool()) << edits_;
    if (isExact)
      ++exact_;
    else
      missed_ += '\n' + QJsonDocument(result).toJson(QJsonDocument::Compact);
  }

  PageCheck check_{Engine()};
  int edits_ = 0;
  int exact_ = 0;
  QByteArray missed_;
};

TEST_F(WordsOfPages, AsPeopleWriteThemAreTypedWithNothingLostAndNothingElseAdded) {
  const std::uint32_t count = AsksForAll() ? 480 : 24;
  for (std::uint32_t number = 0; number < count; ++number)
    TypeIn(PageOfNumber(number), static_cast<int>(number % 11));
  ExpectTheAim(static_cast<int>(count / 2));
}

TEST_F(WordsOfPages, AsPeopleWriteThemAreDeletedWithNothingElse) {
  const std::uint32_t count = AsksForAll() ? 480 : 24;
  for (std::uint32_t number = 0; number < count; ++number)
    DeleteIn(PageOfNumber(number), static_cast<int>(number % 11));
  ExpectTheAim(static_cast<int>(count / 2));
}

TEST_F(WordsOfPages, OfThisFolderAreTypedAndDeletedWithNothingElse) {
  const QDir pages(QStringLiteral(VELOR_OWN_PAGES));
  const QStringList names = pages.entryList({QStringLiteral("*.htm*")}, QDir::Files);
  ASSERT_GE(names.size(), 12);
  for (const QString &name : names) {
    for (int place = 0; place < (AsksForAll() ? 12 : 2); ++place) {
      TypeIn(pages.filePath(name), place);
      DeleteIn(pages.filePath(name), place);
    }
  }
  ExpectTheAim(static_cast<int>(names.size()));
}

class WordsOfAnotherFolder : public WordsOfPages,
                             public ::testing::WithParamInterface<std::string> {};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(WordsOfAnotherFolder);

TEST_P(WordsOfAnotherFolder, AreTypedAndDeletedWithNothingElse) {
  const QDir pages(QString::fromStdString(GetParam()));
  int number = 0;
  for (const QString &name : pages.entryList({QStringLiteral("*.htm*")}, QDir::Files)) {
    if (++number % 10 != 0 && !AsksForAll()) continue;
    TypeIn(pages.filePath(name), number / 10);
    DeleteIn(pages.filePath(name), number / 10);
  }
  ExpectTheAim(0);
}

INSTANTIATE_TEST_SUITE_P(ManyPages, WordsOfAnotherFolder,
                         ::testing::ValuesIn(MoreSamples("VELOR_MORE_PAGES", VELOR_MORE_PAGES)));

}  // namespace

}  // namespace velor
