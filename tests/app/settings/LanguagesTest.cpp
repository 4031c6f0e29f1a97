// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/Languages.h"
#include "app/settings/modSettingManager.h"
#include "platform/Words.h"
#include "tests/support/FakeRegistry.h"

#include <QTranslator>

#include <gtest/gtest.h>

namespace velor {
namespace {

TEST(LanguageFor, TakesTheFirstWantedOneThatTheProgramSpeaks) {
  const struct {
    QStringList wanted;
    const char *code;
  } rows[] = {
      {{QStringLiteral("de-AT"), QStringLiteral("de")}, "de"},
      {{QStringLiteral("fr-FR"), QStringLiteral("de-DE")}, "de"},
      {{QStringLiteral("en-GB"), QStringLiteral("de-DE")}, "en"},
      {{QStringLiteral("zh-TW")}, "zh_TW"},
      {{QStringLiteral("zh-Hant-HK")}, "zh_TW"},
      {{QStringLiteral("zh-CN"), QStringLiteral("zh")}, "en"},
      {{QStringLiteral("C")}, "en"},
      {{}, "en"},
  };
  for (const auto &row : rows)
    EXPECT_EQ(LanguageFor(row.wanted).toStdString(), row.code)
        << row.wanted.join(u' ').toStdString();
}

class UsedLanguage : public ::testing::Test {
 protected:
  ~UsedLanguage() override {
    // Removes them from the program too.
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale::system());
  }

  void Store(const char *name, const char *value) {
    modSettingManager::SetOption(registry, QString::fromLatin1(name), QString::fromLatin1(value));
  }

  FakeRegistry registry;
};

TEST_F(UsedLanguage, IsThatOfThePreferenceWithItsPluralForms) {
  Store("Language", "de");
  UseLanguage(registry);
  EXPECT_EQ(Words::tr("Cancel"), QStringLiteral("Abbrechen"));
  EXPECT_EQ(Words::tr("%n links", nullptr, 1), QStringLiteral("1 Link"));
  EXPECT_EQ(Words::tr("%n links", nullptr, 5), QStringLiteral("5 Links"));
}

TEST_F(UsedLanguage, IsEnglishWhereThePreferenceSaysSo) {
  Store("Language", "en");
  UseLanguage(registry);
  EXPECT_EQ(Words::tr("Cancel"), QStringLiteral("Cancel"));
}

TEST_F(UsedLanguage, IsEnglishWhereOnlyThePublishedBehaviourIsWanted) {
  Store("Language", "de");
  Store("PublishedOnly", "True");
  UseLanguage(registry);
  EXPECT_EQ(Words::tr("Cancel"), QStringLiteral("Cancel"));
}

}  // namespace
}  // namespace velor
