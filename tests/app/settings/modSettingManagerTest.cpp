// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "platform/Conversions.h"
#include "qt/QtRegistry.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeRegistry.h"

#include <QSettings>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace velor::modSettingManager {
namespace {

const auto OptionKey = QStringLiteral(R"(Software\Company\VelorCDMaker\option)");
const auto HistoryKey = QStringLiteral(R"(Software\Company\VelorCDMaker\history)");

Preference TruthByDefault(std::string_view name, std::string_view defaultValue) {
  return {name, Preference::Kind::Truth, defaultValue, Preference::Effect::AtOnce, {}};
}

/// The text of every file of a folder of the tree, by the file's path in it.
std::map<std::string, std::string> SourcesIn(const std::string &folder) {
  std::map<std::string, std::string> sources;
  const std::filesystem::path root = VELOR_SOURCE_DIR;
  for (const auto &entry : std::filesystem::recursive_directory_iterator(root / folder)) {
    std::ifstream file(entry.path());
    std::stringstream text;
    text << file.rdbuf();
    sources[std::filesystem::relative(entry.path(), root).generic_string()] = text.str();
  }
  return sources;
}

class Settings : public testing::Test {
 protected:
  void PutCount(const QString &text) {
    registry_.Put(HistoryKey, "historycount", {RegistryValue::Type::Text, text});
  }
  QString History(const QString &name) const {
    return GetRegSetting(registry_, "VelorCDMaker", "history", name, "(none)");
  }

  FakeRegistry registry_;
};

TEST_F(Settings, LieUnderTheCompanysKey) {
  SetOption(registry_, "MenuStyle", "1");
  SaveRegSetting(registry_, "Other", "section", "name", "value");
  EXPECT_EQ(registry_.Writes(), QStringList({OptionKey + "\\MenuStyle=1",
                                             R"(Software\Company\Other\section\name=value)"}));
}

TEST_F(Settings, ReadWhatWasWritten) {
  SetOption(registry_, "ShowDetails", BoolText(true));
  EXPECT_EQ(GetOption(registry_, "ShowDetails", "False"), "True");
  EXPECT_EQ(GetRegSetting(registry_, "VelorCDMaker", "option", "ShowDetails", "False"), "True");
}

TEST_F(Settings, GiveTheDefaultOnAFirstRun) {
  EXPECT_EQ(GetOption(registry_, "SnapToGrid", "True"), "True");
  EXPECT_EQ(GetOption(registry_, "MenuBackground", ""), "");
  EXPECT_EQ(GetRegSetting(registry_, "VelorCDMaker", "history", "historycount", "0"), "0");
}

TEST_F(Settings, GiveTheDefaultForAnEmptyText) {
  SetOption(registry_, "MenuStyle", "");
  EXPECT_EQ(GetOption(registry_, "MenuStyle", "2"), "2");
  SetOption(registry_, "MenuStyle", QString(QChar(0)) + "1");
  EXPECT_EQ(GetOption(registry_, "MenuStyle", "2"), "2");
}

TEST_F(Settings, GiveTheDefaultForAValueThatIsNoText) {
  registry_.Put(OptionKey, "mnuFore", {RegistryValue::Type::Other, "7"});
  EXPECT_EQ(GetOption(registry_, "mnuFore", "0"), "0");
}

TEST_F(Settings, AreReadFromTheStoreEachTime) {
  SetOption(registry_, "MenuStyle", "1");
  EXPECT_EQ(GetOption(registry_, "MenuStyle", "2"), "1");
  registry_.Put(OptionKey, "MenuStyle", {RegistryValue::Type::Text, "0"});
  EXPECT_EQ(GetOption(registry_, "MenuStyle", "2"), "0");
}

TEST_F(Settings, FailInSilence) {
  SetOption(registry_, "MenuStyle", "1");
  registry_.Break(FakeRegistry::Health::WritesFail);
  SetOption(registry_, "MenuStyle", "2");
  AddToHistory(registry_, R"(\a.htm)");
  EXPECT_EQ(GetOption(registry_, "MenuStyle", "2"), "1");
  registry_.Break(FakeRegistry::Health::EverythingFails);
  EXPECT_EQ(GetOption(registry_, "MenuStyle", "2"), "2");
}

TEST_F(Settings, ATextThatCannotBeConvertedIsToldAndTheDefaultCounts) {
  SetOption(registry_, "SnapToGrid", "yes");
  EXPECT_EQ(GetOption(registry_, "SnapToGrid", "True"), "yes");
  std::vector<RuntimeError> told;
  const auto tell = [&](const RuntimeError &fault) { told.push_back(fault); };
  EXPECT_TRUE(TruthOption(registry_, TruthByDefault("SnapToGrid", "True"), tell));
  EXPECT_FALSE(TruthOption(registry_, TruthByDefault("SnapToGrid", "False"), tell));
  ASSERT_EQ(told.size(), 2);
  EXPECT_EQ(told[0].Number(), ErrorNumber::TypeMismatch);
  EXPECT_EQ(told[0].Description(),
            QStringLiteral("Type mismatch: the setting SnapToGrid in /config/fake.conf is \"yes\"; "
                           "\"True\" counts until it is mended"));
}

TEST_F(Settings, TruthValuesAreWordsInAnyLetterCaseOrNumbersBlanksAroundThemOrNot) {
  const std::pair<const char *, bool> values[] = {
      {"True", true}, {"TRUE ", true}, {" true", true},  {"1", true},       {"-1", true},
      {" 2 ", true},  {"0.5", true},   {"False", false}, {" FALSE", false}, {"0", false}};
  for (const auto &value : values) {
    const char *const text = value.first;
    const bool expected = value.second;
    SetOption(registry_, "ShowDetails", text);
    EXPECT_EQ(TruthOption(registry_, TruthByDefault("ShowDetails", expected ? "False" : "True"),
                          [&](const RuntimeError &) { ADD_FAILURE() << text; }),
              expected)
        << text;
  }
}

TEST_F(Settings, OfTwoWordsAreOnOrOffInAnyLetterCaseAndElseTheDefaultCounts) {
  for (const bool byDefault : {true, false}) {
    const Preference preference = TruthByDefault("WrapSource", byDefault ? "True" : "False");
    const auto isOn = [&](const char *text) {
      SetOption(registry_, "WrapSource", text);
      return IsOn(registry_, preference);
    };
    EXPECT_TRUE(isOn("true"));
    EXPECT_FALSE(isOn("FALSE"));
    for (const char *text : {"", "yes", "0"}) EXPECT_EQ(isOn(text), byDefault) << text;
  }
}

TEST(PreferenceTable, HasEachNameOnceWithADefaultOfItsKind) {
  std::set<std::string_view> names;
  for (const Preference &preference : PreferenceTable) {
    EXPECT_TRUE(names.insert(preference.name).second) << preference.name;
    const QString value = preference.Default();
    switch (preference.kind) {
      case Preference::Kind::Truth:
        EXPECT_EQ(BoolText(CBool(value)), value) << preference.name;
        break;
      case Preference::Kind::Integer:
        EXPECT_EQ(QString::number(CInt(value)), value) << preference.name;
        break;
      case Preference::Kind::Color:
        EXPECT_EQ(QString::number(CLng(value)), value) << preference.name;
        break;
      case Preference::Kind::File:
      case Preference::Kind::Name:
        break;
    }
  }
}

TEST(PreferenceTable, NamesTheOneReaderOfEach) {
  std::map<std::string, std::string> sources = SourcesIn("app");
  sources.merge(SourcesIn("editor"));
  sources.erase("app/window/FrmSettings.cpp");  // shows and writes them
  sources.erase("app/settings/Preferences.h");
  for (const Preference &preference : PreferenceTable) {
    const std::string name = '"' + std::string(preference.name) + '"';
    for (const auto &[path, text] : sources) {
      const bool reads = text.find("PreferenceOf(" + name + ")") != std::string::npos;
      EXPECT_EQ(reads, path == preference.readBy) << path << " and " << name;
      EXPECT_EQ(text.find("Literal(" + name + ")"), std::string::npos) << path << " and " << name;
    }
  }
}

TEST_F(Settings, ACountBelowTheRingCountsAsNone) {
  registry_.Put(HistoryKey, "historycount", {RegistryValue::Type::Text, "-5"});
  AddToHistory(registry_, R"(\a.htm)");
  EXPECT_EQ(History("file1"), "/a.htm");
  EXPECT_EQ(History("historycount"), "1");
}

TEST_F(Settings, KeepEveryCharacter) {
  const QString text = QString::fromUtf8("/home/ü/網頁 \"a\", b; 😀.htm");
  SetOption(registry_, "MenuBackground", text);
  EXPECT_EQ(GetOption(registry_, "MenuBackground", ""), text);
}

TEST_F(Settings, RecordTheFirstFileInSlotOne) {
  AddToHistory(registry_, R"(\home\u\a.htm)");
  EXPECT_EQ(registry_.Writes(), QStringList({HistoryKey + R"(\file1=/home/u/a.htm)",
                                             HistoryKey + R"(\historycount=1)"}));
}

TEST_F(Settings, RecordTheSameFileTwiceInTwoSlots) {
  AddToHistory(registry_, R"(\a.htm)");
  AddToHistory(registry_, R"(\a.htm)");
  EXPECT_EQ(History("file1"), "/a.htm");
  EXPECT_EQ(History("file2"), "/a.htm");
  EXPECT_EQ(History("historycount"), "2");
}

TEST_F(Settings, RecordAPathThatIsNotFromTheRootAsItStands) {
  AddToHistory(registry_, R"(C:\Site\a.htm)");
  EXPECT_EQ(History("file1"), R"(C:\Site\a.htm)");
}

TEST_F(Settings, GoBackToSlotOneAfterSlotOneHundred) {
  for (int i = 1; i <= 101; ++i) AddToHistory(registry_, QStringLiteral("\\%1.htm").arg(i));
  EXPECT_EQ(History("file1"), "/101.htm");
  EXPECT_EQ(History("file2"), "/2.htm");
  EXPECT_EQ(History("file9"), "/9.htm");
  EXPECT_EQ(History("file100"), "/100.htm");
  EXPECT_EQ(History("file101"), "(none)");
  EXPECT_EQ(History("historycount"), "1");
}

struct Count {
  const char *stored;
  const char *slot;
};

class StoredCounts : public Settings, public testing::WithParamInterface<Count> {};

TEST_P(StoredCounts, LeadToASlotOfTheRing) {
  PutCount(GetParam().stored);
  AddToHistory(registry_, R"(\a.htm)");
  EXPECT_EQ(History("historycount"), GetParam().slot);
  EXPECT_EQ(History(QStringLiteral("file") + GetParam().slot), "/a.htm");
}

INSTANTIATE_TEST_SUITE_P(All, StoredCounts,
                         testing::Values(Count{"", "1"}, Count{"99", "100"}, Count{"100", "1"},
                                         Count{"101", "2"}, Count{"250", "51"}, Count{"300", "1"},
                                         Count{" 7 files", "8"}, Count{"many", "1"},
                                         Count{"2.5", "3"}, Count{"1e17", "1"}));

TEST_F(Settings, FindASlotEvenForANumberThatSubtractingCannotReduce) {
  for (const char *stored : {"1e300", "1e999"}) {
    PutCount(stored);
    AddToHistory(registry_, R"(\a.htm)");
    const int slot = CInt(History("historycount"));
    EXPECT_TRUE(slot >= 1 && slot <= HistorySlots) << slot;
  }
}

TEST(CutAtNul, GivesTheTextBeforeTheFirstNul) {
  EXPECT_EQ(CutAtNul(QString(QLatin1String("ab\0cd\0", 6))), "ab");
  EXPECT_EQ(CutAtNul(QString(QLatin1String("\0ab", 3))), "");
  EXPECT_EQ(CutAtNul("whole"), "whole");
  EXPECT_EQ(CutAtNul(""), "");
}

TEST(SettingsOnTheRealStore, RoundTrip) {
  QSettings("Company", "VelorCDMaker").clear();
  QtRegistry registry;
  SetOption(registry, "ShowDetails", "True");
  SetOption(registry, "MenuBackground", "");
  AddToHistory(registry, R"(\home\u\a b.htm)");
  QtRegistry another;
  EXPECT_EQ(GetOption(another, "ShowDetails", "False"), "True");
  EXPECT_EQ(GetOption(another, "MenuBackground", "default"), "default");
  EXPECT_EQ(GetRegSetting(another, "VelorCDMaker", "history", "file1", ""), "/home/u/a b.htm");
}

}  // namespace
}  // namespace velor::modSettingManager
