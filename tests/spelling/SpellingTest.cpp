// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/HunspellSpelling.h"
#include "tests/support/FakeFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

const QString PersonList = QStringLiteral("\\home\\words.txt");
const QString SiteList = QStringLiteral("\\sites\\garden-words.txt");

/// Spelling with small dictionaries of its own: English, and German in an old charset.
class SpellingTest : public ::testing::Test {
 protected:
  SpellingTest() {
    Write("en_US.aff", "SET UTF-8\nTRY esianrtolcdugmphbyfvkwz'\nICONV 1\nICONV \u2019 '\n");
    Write("en_US.dic", "8\nhouse\ngarden\nthe\nin\ndon't\nvis-\u00e0-vis\netc.\nEnglish\n");
    Write("de_DE.aff", "SET ISO8859-1\nTRY esianr\xfc\xdf\n");
    Write("de_DE.dic",
          "3\nStra\xdf"
          "e\ngr\xfcn\nHaus\n");
    Write("fr.dic", "1\nmaison\n");
    files.AddFolder(QStringLiteral("\\home"));
    files.AddFolder(QStringLiteral("\\sites"));
  }

  void Write(const char *name, const QByteArray &content) {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  HunspellSpelling &Subject() {
    if (!subject)
      subject = std::make_unique<HunspellSpelling>(
          files, SpellingPlaces{{folder.path()}, PersonList}, [this] { return ownLanguage; });
    return *subject;
  }
  QStringList Unknown(const SpelledLine &line, const QString &siteList = {}) {
    QStringList words;
    for (const TextStretch &place : Subject().UnknownWords(line, siteList))
      words << line.text.sliced(place.start, place.end - place.start);
    return words;
  }
  QStringList Unknown(const char16_t *text, const char *language = "en") {
    return Unknown({QString::fromUtf16(text), {{0, QString::fromLatin1(language)}}});
  }

  QTemporaryDir folder;
  FakeFiles files;
  QString ownLanguage = QStringLiteral("en_US");
  std::unique_ptr<HunspellSpelling> subject;
};

TEST_F(SpellingTest, AWordThatTheDictionaryLacksIsUnknown) {
  EXPECT_EQ(Unknown(u"The hose in the garden"), QStringList{"hose"});
  EXPECT_EQ(Unknown(u"House, GARDEN!"), QStringList());
}

TEST_F(SpellingTest, EachWordIsJudgedByItsOwnLanguage) {
  const QString text = QStringLiteral("house Stra\u00dfe gr\u00fcn garden");
  EXPECT_EQ(Unknown({text, {{0, "en-GB"}, {6, "de"}, {17, "en"}}}), QStringList());
  EXPECT_EQ(Unknown({text, {{0, "de-AT"}}}), (QStringList{"house", "garden"}));
}

TEST_F(SpellingTest, APageWithoutALanguageHasThePersons) {
  EXPECT_EQ(Unknown({QStringLiteral("house Haus"), {}}), QStringList{"Haus"});
  ownLanguage = QStringLiteral("de_DE");
  EXPECT_EQ(Unknown({QStringLiteral("house Haus"), {}}), QStringList{"house"});
}

TEST_F(SpellingTest, ALanguageWithoutADictionaryHasNoUnknownWordsAndNamesItsPackageOnce) {
  EXPECT_EQ(Unknown(u"xyzzy", "pl"), QStringList());
  EXPECT_EQ(Unknown(u"xyzzy", "pt-BR"), QStringList());
  EXPECT_EQ(Unknown(u"xyzzy", "zh-Hant"), QStringList());
  EXPECT_EQ(Unknown(u"xyzzy", "nb"), QStringList());
  EXPECT_EQ(Subject().PackagesToTell(),
            (QStringList{"hunspell-pl", "hunspell-pt-br", "hunspell-no"}));
  Unknown(u"xyzzy", "pl");
  EXPECT_EQ(Subject().PackagesToTell(), QStringList());
}

TEST_F(SpellingTest, ADictionaryWithoutItsAffixFileIsNone) {
  EXPECT_EQ(Unknown(u"xyzzy", "fr"), QStringList());
  EXPECT_EQ(Subject().PackagesToTell(), QStringList{"hunspell-fr"});
}

TEST_F(SpellingTest, ApostrophesSoftHyphensHyphensAndPointsBelongToWords) {
  EXPECT_EQ(Unknown(u"don\u2019t gar\u00adden vis-\u00e0-vis the house etc. in"), QStringList());
  EXPECT_EQ(Unknown(u"garden-hose"), QStringList{"hose"});
}

TEST_F(SpellingTest, ACharacterThatTheDictionarysCharsetLacksIsUnknown) {
  EXPECT_EQ(Unknown(u"Haus \u0434\u043e\u043c", "de"),
            QStringList{QStringLiteral("\u0434\u043e\u043c")});
}

TEST_F(SpellingTest, SuggestionsAreWordsOfTheLanguage) {
  EXPECT_TRUE(Subject()
                  .Suggestions(QStringLiteral("gardn"), QStringLiteral("en"))
                  .contains(QStringLiteral("garden")));
  EXPECT_TRUE(Subject()
                  .Suggestions(QStringLiteral("Strase"), QStringLiteral("de"))
                  .contains(QStringLiteral("Stra\u00dfe")));
  EXPECT_EQ(Subject().Suggestions(QStringLiteral("gardn"), QStringLiteral("ja")), QStringList());
}

TEST_F(SpellingTest, AnIgnoredWordIsKnownUntilTheProgramEnds) {
  Subject().Ignore(QStringLiteral("hose"));
  EXPECT_EQ(Unknown(u"hose"), QStringList());
  EXPECT_EQ(files.Paths(), QStringList());
  subject.reset();
  EXPECT_EQ(Unknown(u"hose"), QStringList{"hose"});
}

TEST_F(SpellingTest, AnAddedWordIsInThePersonsListFromThenOn) {
  files.AddFile(PersonList, "# mine\r\nVelor");
  EXPECT_EQ(Unknown(u"Velor velor hose"), (QStringList{"velor", "hose"}));
  Subject().Add(QStringLiteral("hose"), WordHome::Person, {});
  EXPECT_EQ(files.Content(PersonList), QByteArray("# mine\r\nVelor\nhose\n"));
  EXPECT_EQ(Unknown(u"hose Hose HOse"), QStringList{"HOse"});
  subject.reset();
  EXPECT_EQ(Unknown(u"hose Velor mine"), QStringList{"mine"});
}

TEST_F(SpellingTest, AWordOfASiteIsKnownInItsPagesOnly) {
  Subject().Add(QStringLiteral("hose"), WordHome::Site, SiteList);
  EXPECT_EQ(files.Content(SiteList), QByteArray("hose\n"));
  EXPECT_FALSE(files.FileExists(PersonList));
  const SpelledLine line{QStringLiteral("hose"), {{0, QStringLiteral("en")}}};
  EXPECT_EQ(Unknown(line, SiteList), QStringList());
  EXPECT_EQ(Unknown(line), QStringList{"hose"});
}

TEST_F(SpellingTest, AListThatCannotBeWrittenSaysSoAndTheWordStaysUnknown) {
  files.AddFile(PersonList, "Velor\n");
  files.FailNextWrite(ErrorNumber::DiskFull);
  EXPECT_THROW(Subject().Add(QStringLiteral("hose"), WordHome::Person, {}), RuntimeError);
  EXPECT_EQ(Unknown(u"hose"), QStringList{"hose"});
  EXPECT_EQ(files.Content(PersonList), QByteArray("Velor\n"));
}

TEST_F(SpellingTest, WhatAnotherProgramWritesIntoTheListCounts) {
  files.AddFile(PersonList, "Velor\n");
  EXPECT_EQ(Unknown(u"hose"), QStringList{"hose"});
  files.AddFile(PersonList, "Velor\nhose\n");
  files.changeTime = files.changeTime.addSecs(1);
  EXPECT_EQ(Unknown(u"hose"), QStringList());
}

}  // namespace
}  // namespace velor
