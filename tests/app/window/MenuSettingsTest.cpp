// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "app/window/MenuSettings.h"
#include "chrome/MenuPainter.h"
#include "platform/RuntimeError.h"
#include "tests/app/window/WindowFixture.h"

#include <QFile>
#include <QTemporaryDir>

namespace velor {
namespace {

/// Writes down what the painter is told, in that order.
class RecordingPainter final : public MenuPainter {
 public:
  QStringList calls;

  void SetBackground(const QPixmap &picture) override {
    calls.append(QStringLiteral("background %1").arg(picture.width()));
  }
  void SetTextColor(std::int32_t color) override { Color(u"text", color); }
  void SetBorderColor(std::int32_t color) override { Color(u"border", color); }
  void SetHighlightColor(std::int32_t color) override { Color(u"highlight", color); }
  void SetHighlightTextColor(std::int32_t color) override { Color(u"highlight text", color); }
  void SetImageList(const ImageList &) override {}
  void PaintMenusOf(QWidget &) override {}
  void SetItemPicture(const QString &, const QString &) override {}

 private:
  void Color(QStringView what, std::int32_t color) {
    calls.append(QStringLiteral("%1 %2").arg(what).arg(color));
  }
};

class MenuSettingsTest : public ::testing::Test {
 protected:
  void Store(const char *name, const char *value) {
    modSettingManager::SetOption(registry, QString::fromLatin1(name), QString::fromLatin1(value));
  }

  std::string Prepared() {
    painter.calls.clear();
    PrepareMenus(registry, pictures, painter, [this](int style) { shownStyle = style; });
    return painter.calls.join(QStringLiteral(", ")).toStdString();
  }

  FakeRegistry registry;
  RecordingPainter painter;
  int shownStyle = -1;
  /// A picture's width tells which one it is.
  MenuPictures pictures{.numbered = [](int number) { return QPixmap(number, 1); },
                        .file =
                            [](const QString &name) {
                              if (name != QStringLiteral("/pictures/sky.png")) {
                                throw RuntimeError::Of(ErrorNumber::FileNotFound,
                                                       QStringLiteral("test"));
                              }
                              return QPixmap(77, 1);
                            }};
};

TEST_F(MenuSettingsTest, AFirstRunUsesTheDefaultsInThisOrder) {
  EXPECT_EQ(Prepared(),
            "background 2, text 0, border 8388608, highlight 16761024, highlight text 0");
  EXPECT_EQ(shownStyle, 2);
}

TEST_F(MenuSettingsTest, StoredValuesAreUsed) {
  Store("MenuStyle", "1");
  Store("mnuFore", "255");
  Store("mnuBorder", "1");
  Store("mnuHighlight", "2");
  Store("mnuHighFore", "3");
  EXPECT_EQ(Prepared(), "background 1, text 255, border 1, highlight 2, highlight text 3");
  EXPECT_EQ(shownStyle, 1);
}

TEST_F(MenuSettingsTest, StyleNoughtLoadsThePictureFile) {
  Store("MenuStyle", "0");
  Store("MenuBackground", "/pictures/sky.png");
  EXPECT_EQ(Prepared(),
            "background 77, text 0, border 8388608, highlight 16761024, highlight text 0");
}

TEST_F(MenuSettingsTest, APictureFileCountsForStyleNoughtOnly) {
  Store("MenuStyle", "1");
  Store("MenuBackground", "/pictures/sky.png");
  EXPECT_TRUE(Prepared().starts_with("background 1, "));
}

TEST_F(MenuSettingsTest, APictureFileThatCannotBeLoadedLeavesTheBackground) {
  Store("MenuStyle", "0");
  Store("MenuBackground", "/pictures/gone.png");
  EXPECT_EQ(Prepared(), "text 0, border 8388608, highlight 16761024, highlight text 0");
}

TEST_F(MenuSettingsTest, BadValuesAreNamedWithTheFileAndTheOthersStillApply) {
  pictures.numbered = [](int number) {
    if (number > 2) throw RuntimeError::Of(ErrorNumber::IndexOutOfBounds, QStringLiteral("test"));
    return QPixmap(number, 1);
  };
  Store("MenuStyle", "5");
  Store("mnuFore", "abc");
  Store("mnuHighlight", "2");
  try {
    Prepared();
    FAIL() << "no error";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::IndexOutOfBounds);
    EXPECT_EQ(
        error.Description(),
        QStringLiteral(
            "Index out of bounds: the setting MenuStyle in /config/fake.conf is \"5\"; \"2\" "
            "counts until it is mended\n"
            "Type mismatch: the setting mnuFore in /config/fake.conf is \"abc\"; \"0\" counts "
            "until it is mended"));
  }
  EXPECT_EQ(painter.calls.join(QStringLiteral(", ")).toStdString(),
            "background 2, text 0, border 8388608, highlight 2, highlight text 0");
}

TEST_F(MenuSettingsTest, AStyleThatIsNoNumberIsAnErrorAndTheDefaultCounts) {
  Store("MenuStyle", "blue");
  EXPECT_THROW(Prepared(), RuntimeError);
  EXPECT_TRUE(painter.calls.constFirst() == QStringLiteral("background 2"));
}

TEST_F(MenuSettingsTest, ChoosingAStyleStoresItAndShowsItAtOnce) {
  ChooseMenuStyle(1, registry, pictures, painter);
  EXPECT_EQ(modSettingManager::GetOption(registry, QStringLiteral("MenuStyle"), {}),
            QStringLiteral("1"));
  EXPECT_EQ(painter.calls, QStringList(QStringLiteral("background 1")));
}

TEST(ProgramMenuPictures, AreTwo) {
  const MenuPictures pictures = ProgramMenuPictures();
  EXPECT_FALSE(pictures.numbered(1).isNull());
  EXPECT_FALSE(pictures.numbered(2).isNull());
  try {
    pictures.numbered(3);
    FAIL() << "no error";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::IndexOutOfBounds);
  }
  EXPECT_THROW(pictures.file(QStringLiteral("/nowhere/picture.png")), RuntimeError);
}

TEST(ProgramMenuPictures, ADamagedFileChangesNothing) {
  QTemporaryDir folder;
  QFile damaged(folder.filePath(QStringLiteral("sky.png")));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("\x89PNG\r\n\x1a\n and then nothing of the kind");
  damaged.close();
  FakeRegistry registry;
  modSettingManager::SetOption(registry, QStringLiteral("MenuStyle"), QStringLiteral("0"));
  modSettingManager::SetOption(registry, QStringLiteral("MenuBackground"), damaged.fileName());
  RecordingPainter painter;
  PrepareMenus(registry, ProgramMenuPictures(), painter, [](int) {});
  EXPECT_TRUE(painter.calls.constFirst().startsWith(QStringLiteral("text")));
}

class MenuStyleItems : public WindowFixture {
 protected:
  QAction *StyleItem(int index) {
    for (QAction *item : window.findChildren<QAction *>(QStringLiteral("mnuView_style"))) {
      if (item->property("index").toInt() == index) return item;
    }
    return nullptr;
  }
};

TEST_F(MenuStyleItems, WriteTheirIndexAndChangeThePicture) {
  auto *painter = window.findChild<StyleMenuPainter *>(QStringLiteral("PM"));
  const QImage second = painter->Look().background.toImage();
  StyleItem(1)->trigger();
  EXPECT_EQ(modSettingManager::GetOption(registry, QStringLiteral("MenuStyle"), {}),
            QStringLiteral("1"));
  EXPECT_NE(painter->Look().background.toImage(), second);
  StyleItem(2)->trigger();
  EXPECT_EQ(modSettingManager::GetOption(registry, QStringLiteral("MenuStyle"), {}),
            QStringLiteral("2"));
  EXPECT_EQ(painter->Look().background.toImage(), second);
}

TEST_F(MenuStyleItems, AreWhatWritesTheMenusSettings) {
  NewPage();
  EXPECT_TRUE(registry.Writes().isEmpty());
  StyleItem(1)->trigger();
  EXPECT_EQ(registry.Writes(),
            QStringList(QStringLiteral(R"(Software\Company\VelorCDMaker\option\MenuStyle=1)")));
}

}  // namespace
}  // namespace velor
