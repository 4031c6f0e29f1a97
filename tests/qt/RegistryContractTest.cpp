// SPDX-License-Identifier: GPL-3.0-or-later
// What every implementation of Registry promises, run against the real one and the fake.
#include "qt/QtRegistry.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeRegistry.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSize>

#include <memory>

namespace velor {
namespace {

const char *const OptionKey = R"(Software\Company\VelorCDMaker\option)";

enum class Implementation { Fake, Real };

class RegistryContract : public testing::TestWithParam<Implementation> {
 protected:
  RegistryContract() {
    if (GetParam() == Implementation::Fake) {
      registry_ = std::make_unique<FakeRegistry>();
    } else {
      registry_ = std::make_unique<QtRegistry>();
      QSettings("Company", "VelorCDMaker").clear();
    }
  }
  Registry &Subject() { return *registry_; }
  std::optional<QString> Text(const QString &key, const QString &name) {
    const auto value = Subject().Query(key, name);
    if (!value || value->type != RegistryValue::Type::Text) return std::nullopt;
    return value->text;
  }

 private:
  std::unique_ptr<Registry> registry_;
};

INSTANTIATE_TEST_SUITE_P(All, RegistryContract,
                         testing::Values(Implementation::Fake, Implementation::Real),
                         [](const auto &test) {
                           return test.param == Implementation::Fake ? "Fake" : "Real";
                         });

TEST_P(RegistryContract, HoldsNothingAtFirst) {
  EXPECT_FALSE(Subject().Query(OptionKey, "MenuStyle").has_value());
}

TEST_P(RegistryContract, CreatesKeysAndKeepsSectionsApart) {
  EXPECT_TRUE(Subject().SetText(OptionKey, "MenuStyle", "2"));
  EXPECT_EQ(Text(OptionKey, "MenuStyle"), "2");
  EXPECT_EQ(Text(R"(Software\Company\VelorCDMaker\history)", "MenuStyle"), std::nullopt);
  EXPECT_EQ(Text(R"(Software\Company\Other\option)", "MenuStyle"), std::nullopt);
  EXPECT_TRUE(Subject().SetText(OptionKey, "MenuStyle", "1"));
  EXPECT_EQ(Text(OptionKey, "MenuStyle"), "1");
}

TEST_P(RegistryContract, TellsAnEmptyTextFromNone) {
  EXPECT_TRUE(Subject().SetText(OptionKey, "MenuBackground", ""));
  EXPECT_EQ(Text(OptionKey, "MenuBackground"), "");
}

TEST_P(RegistryContract, KeepsEveryText) {
  for (const QString &text :
       {QString::fromUtf8("網頁 \"編輯\" 😀, ä; =%20 # \\x \\ @Variant(1) @@ 'q'"),
        QStringLiteral(" outer blanks \t"), QStringLiteral("line\r\nbreak\nand\ttab"),
        QStringLiteral("@Invalid()"), QStringLiteral("a, b, c"), QStringLiteral("[x]\ny=z"),
        QStringLiteral(R"(\home\u\My Site\a.htm)"), QStringLiteral("True"), QStringLiteral("0")}) {
    EXPECT_TRUE(Subject().SetText(OptionKey, "value", text));
    EXPECT_EQ(Text(OptionKey, "value"), text);
  }
}

class QtRegistryTest : public testing::Test {
 protected:
  QtRegistryTest() { QSettings("Company", "VelorCDMaker").clear(); }
  QtRegistry registry_;
};

TEST_F(QtRegistryTest, StoresOneIniFilePerUserWithAGroupForEachSection) {
  registry_.SetText(OptionKey, "ShowDetails", "True");
  registry_.SetText(R"(Software\Company\VelorCDMaker\history)", "file1", "/home/u/a.htm");
  const QString file = QSettings("Company", "VelorCDMaker").fileName();
  EXPECT_TRUE(file.endsWith("/Company/VelorCDMaker.conf")) << file.toStdString();
  QFile ini(file);
  ASSERT_TRUE(ini.open(QIODevice::ReadOnly));
  const QByteArray content = ini.readAll();
  EXPECT_TRUE(content.contains("[option]\nShowDetails=True\n")) << content.toStdString();
  EXPECT_TRUE(content.contains("[history]\nfile1=/home/u/a.htm\n")) << content.toStdString();
}

TEST_F(QtRegistryTest, SeesWhatAnotherProgramHasStoredMeanwhile) {
  registry_.SetText(OptionKey, "MenuStyle", "2");
  QFile ini(QSettings("Company", "VelorCDMaker").fileName());
  ASSERT_TRUE(ini.open(QIODevice::WriteOnly | QIODevice::Truncate));
  ini.write("[option]\nMenuStyle=17\n");
  ini.close();
  EXPECT_EQ(registry_.Query(OptionKey, "MenuStyle")->text, "17");
  ini.remove();
  EXPECT_FALSE(registry_.Query(OptionKey, "MenuStyle").has_value());
}

TEST_F(QtRegistryTest, TellsOtherTypesFromText) {
  QSettings("Company", "VelorCDMaker").setValue("option/size", QSize(1, 2));
  const auto value = registry_.Query(OptionKey, "size");
  ASSERT_TRUE(value.has_value());
  EXPECT_EQ(value->type, RegistryValue::Type::Other);
}

TEST_F(QtRegistryTest, ReadsGarbageAsNothing) {
  QFile ini(QSettings("Company", "VelorCDMaker").fileName());
  registry_.SetText(OptionKey, "MenuStyle", "2");
  ASSERT_TRUE(ini.open(QIODevice::WriteOnly | QIODevice::Truncate));
  ini.write(QByteArray("\0\xFF\xFE[[[=\n\x80==\n]", 13));
  ini.close();
  EXPECT_FALSE(registry_.Query(OptionKey, "MenuStyle").has_value());
}

TEST_F(QtRegistryTest, KeepsTheOldValueWhenWritingFails) {
  const QString key = R"(Software\Broken\VelorCDMaker\option)";
  ASSERT_TRUE(registry_.SetText(key, "old", "1"));
  const QString folder = QFileInfo(QSettings("Broken", "VelorCDMaker").fileName()).path();
  ASSERT_TRUE(QFile::rename(folder, folder + ".away"));
  QFile obstacle(folder);
  ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
  EXPECT_FALSE(registry_.SetText(key, "old", "2"));
  EXPECT_FALSE(registry_.SetText(key, "new", "2"));
  obstacle.remove();
  ASSERT_TRUE(QFile::rename(folder + ".away", folder));
  EXPECT_EQ(registry_.Query(key, "old")->text, "1");
  EXPECT_FALSE(registry_.Query(key, "new").has_value());
}

TEST_F(QtRegistryTest, RefusesKeysOutsideTheSoftwareBranch) {
  EXPECT_FALSE(registry_.SetText(R"(System\Company\VelorCDMaker\option)", "a", "1"));
  EXPECT_FALSE(registry_.SetText(R"(Software\Company\VelorCDMaker)", "a", "1"));
  EXPECT_FALSE(registry_.Query("", "a").has_value());
}

}  // namespace
}  // namespace velor
