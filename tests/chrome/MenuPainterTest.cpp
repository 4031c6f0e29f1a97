// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Icons.h"
#include "chrome/MenuPainter.h"
#include "chrome/Palette.h"

#include <QAction>
#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <gtest/gtest.h>

namespace velor {
namespace {

// Red in the low byte.
constexpr std::int32_t Black = 0;
constexpr std::int32_t DarkBlue = 0x800000;
constexpr std::int32_t PaleBlue = 0xFFC0C0;

QPixmap Filled(const QColor &color) {
  QPixmap picture(40, 40);
  picture.fill(color);
  return picture;
}

class MenuPainterTest : public ::testing::Test {
 protected:
  MenuPainterTest() {
    menu->setObjectName(QStringLiteral("mnuFile_Top"));
    item = menu->addAction(QStringLiteral("Open... (&O)"));
    item->setObjectName(QStringLiteral("mnuOpen"));
    plain = menu->addAction(QStringLiteral("Exit (&X)"));
    plain->setObjectName(QStringLiteral("mnuExit"));
    painter.SetTextColor(Black);
    painter.SetBorderColor(DarkBlue);
    painter.SetHighlightColor(PaleBlue);
    painter.SetHighlightTextColor(Black);
  }

  QImage Shown(Shade shade) {
    painter.PaintMenusOf(window);
    menu->setPalette(PaletteFor(shade));
    menu->resize(menu->sizeHint());
    return menu->grab().toImage();
  }

  QMainWindow window;
  QMenu *menu = window.menuBar()->addMenu(QStringLiteral("File (&F)"));
  QAction *item;
  QAction *plain;
  StyleMenuPainter painter;
};

TEST_F(MenuPainterTest, TakesColoursWithRedInTheLowByte) {
  EXPECT_EQ(painter.Look().border, QColor(0, 0, 128));
  EXPECT_EQ(painter.Look().highlight, QColor(192, 192, 255));
}

TEST_F(MenuPainterTest, DrawsBackgroundPictureAndBorder) {
  painter.SetBackground(Filled(QColor(250, 240, 200)));
  const QImage shown = Shown(Shade::Light);
  EXPECT_EQ(shown.pixelColor(shown.width() - 8, shown.height() - 8), QColor(250, 240, 200));
  EXPECT_EQ(shown.pixelColor(0, shown.height() / 2), QColor(0, 0, 128));
}

TEST_F(MenuPainterTest, DrawsTheItemUnderThePointerInTheHighlightColour) {
  painter.SetBackground(Filled(Qt::white));
  painter.PaintMenusOf(window);
  menu->setActiveAction(item);
  const QImage shown = Shown(Shade::Light);
  const QRect place = menu->actionGeometry(item);
  EXPECT_EQ(shown.pixelColor(place.right() - 6, place.center().y()), QColor(192, 192, 255));
  EXPECT_EQ(shown.pixelColor(place.right() - 6, menu->actionGeometry(plain).center().y()),
            QColor(Qt::white));
}

TEST_F(MenuPainterTest, ABrightPictureOnlyTintsADarkPalette) {
  painter.SetBackground(Filled(Qt::white));
  const QImage shown = Shown(Shade::Dark);
  EXPECT_LT(shown.pixelColor(shown.width() - 8, shown.height() - 8).lightness(), 80);
}

TEST_F(MenuPainterTest, TextThatCouldNotBeReadTakesThePalettesColour) {
  const QPalette dark = PaletteFor(Shade::Dark);
  painter.SetBackground(Filled(Qt::white));
  const MenuLook onDark = LegibleLook(painter.Look(), dark);
  EXPECT_EQ(onDark.text, dark.color(QPalette::Text));
  const MenuLook onLight = LegibleLook(painter.Look(), PaletteFor(Shade::Light));
  EXPECT_EQ(onLight.text, QColor(Qt::black));
}

TEST_F(MenuPainterTest, APairOfHighlightColoursThatCannotBeReadGivesWayWhole) {
  painter.SetHighlightColor(0x202020);
  const QPalette light = PaletteFor(Shade::Light);
  const MenuLook look = LegibleLook(painter.Look(), light);
  EXPECT_EQ(look.highlight, light.color(QPalette::Highlight));
  EXPECT_EQ(look.highlightText, light.color(QPalette::HighlightedText));
}

TEST_F(MenuPainterTest, APictureOnAHighlightOfTheOtherShadeTakesTheTextsColour) {
  QPixmap white(16, 16);
  white.fill(Qt::white);
  item->setIcon(white);
  menu->setActiveAction(item);
  const QImage shown = Shown(Shade::Dark);
  const QRect place = menu->actionGeometry(item);
  EXPECT_EQ(shown.pixelColor(place.left() + 16, place.center().y()), QColor(Qt::black));
}

TEST_F(MenuPainterTest, DarkPicturesGetLightText) {
  painter.SetBackground(Filled(QColor(20, 20, 40)));
  const MenuLook look = LegibleLook(painter.Look(), PaletteFor(Shade::Light));
  EXPECT_GE(Contrast(look.text, QColor(20, 20, 40)), LegibleContrast);
}

TEST_F(MenuPainterTest, OnAHighContrastPaletteNeitherPictureNorPaleColoursRemain) {
  QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white,
                   Qt::black, Qt::black);
  palette.setColor(QPalette::Highlight, Qt::yellow);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  painter.SetBackground(Filled(QColor(250, 240, 200)));
  painter.SetHighlightColor(0x808080);
  const MenuLook look = LegibleLook(painter.Look(), palette);
  EXPECT_TRUE(look.background.isNull());
  EXPECT_EQ(look.text, QColor(Qt::white));
  EXPECT_EQ(look.border, QColor(Qt::white));
  EXPECT_EQ(look.highlight, QColor(Qt::yellow));
  EXPECT_EQ(look.highlightText, QColor(Qt::black));
}

TEST_F(MenuPainterTest, TheProgramsOwnPicturesAreLegibleOnEveryPalette) {
  for (const int number : {1, 2}) {
    const QPixmap picture(QStringLiteral(":/velor/menu/%1.png").arg(number));
    ASSERT_FALSE(picture.isNull());
    painter.SetBackground(picture);
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
      const MenuLook look = LegibleLook(painter.Look(), PaletteFor(shade));
      const QImage field = look.background.toImage();
      double least = 21;
      for (int y = 0; y < field.height(); ++y) {
        for (int x = 0; x < field.width(); ++x) {
          least = std::min(least, Contrast(look.text, field.pixelColor(x, y)));
        }
      }
      EXPECT_GE(least, LegibleContrast) << number;
    }
  }
}

TEST_F(MenuPainterTest, MenusMadeLaterAnywhereInTheWindowArePaintedAlikeAndNoOthers) {
  painter.PaintMenusOf(window);
  QWidget editor(&window);
  QMenu later(&editor);
  later.addAction(QStringLiteral("Undo"));
  later.popup({});
  EXPECT_EQ(later.style(), menu->style());
  later.close();
  QMenu elsewhere;
  elsewhere.addAction(QStringLiteral("Undo"));
  elsewhere.popup({});
  EXPECT_NE(elsewhere.style(), menu->style());
  elsewhere.close();
}

TEST_F(MenuPainterTest, PopUpMenusArePaintedAlike) {
  auto *popup = new QMenu(&window);
  popup->addAction(QStringLiteral("Cut"));
  painter.SetBackground(Filled(QColor(250, 240, 200)));
  painter.PaintMenusOf(window);
  popup->setPalette(PaletteFor(Shade::Light));
  popup->resize(popup->sizeHint());
  const QImage shown = popup->grab().toImage();
  EXPECT_EQ(shown.pixelColor(0, shown.height() / 2), QColor(0, 0, 128));
  EXPECT_EQ(shown.pixelColor(shown.width() - 8, shown.height() - 8), QColor(250, 240, 200));
}

TEST_F(MenuPainterTest, AnItemWithoutAPictureKeepsItsPlainLook) {
  painter.SetBackground(Filled(Qt::white));
  painter.PaintMenusOf(window);
  const QImage before = Shown(Shade::Light);
  ImageList images;
  images.insert(QStringLiteral("mnuopen"), IconFor(QStringLiteral("open")));
  MenuPictureSweep(window, images, painter);
  const QImage after = Shown(Shade::Light);
  const QRect plainPlace = menu->actionGeometry(plain);
  EXPECT_EQ(before.copy(plainPlace), after.copy(plainPlace));
  const QRect itemPlace = menu->actionGeometry(item);
  EXPECT_NE(before.copy(itemPlace), after.copy(itemPlace));
}

TEST_F(MenuPainterTest, ASwitchThatIsOnIsMarkedBesideItsPictureToo) {
  for (QAction *action : {item, plain}) {
    action->setCheckable(true);
    for (const QIcon &picture : {QIcon(), IconFor(QStringLiteral("open"))}) {
      action->setIcon(picture);
      action->setChecked(false);
      const QImage off = Shown(Shade::Light);
      action->setChecked(true);
      EXPECT_NE(off, Shown(Shade::Light)) << action->objectName().toStdString();
    }
  }
}

TEST_F(MenuPainterTest, TheSweepLooksPicturesUpByTheNameInLowerCase) {
  ImageList images;
  images.insert(QStringLiteral("mnuopen"), IconFor(QStringLiteral("open")));
  images.insert(QStringLiteral("mnuExit"), IconFor(QStringLiteral("stop")));
  MenuPictureSweep(window, images, painter);
  EXPECT_FALSE(item->icon().isNull());
  EXPECT_TRUE(plain->icon().isNull());
}

TEST_F(MenuPainterTest, FromRightToLeftMarksAndArrowsChangeSides) {
  painter.SetBackground(Filled(Qt::white));
  for (QAction *action : {item, plain}) {
    action->setText(QString());
    action->setCheckable(true);
    action->setChecked(true);
  }
  item->setIcon(Filled(Qt::red));
  menu->setMinimumWidth(200);
  const QAction *opener = menu->addMenu(QString())->menuAction();
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    menu->setLayoutDirection(direction);
    const QImage shown = Shown(Shade::Light);
    const auto hasInk = [&](const QAction *action, Qt::Alignment side) {
      QRect part = menu->actionGeometry(const_cast<QAction *>(action));
      const int half = part.width() / 2;
      if (side == Qt::AlignLeft) part.setRight(part.left() + half - 1);
      if (side == Qt::AlignRight) part.setLeft(part.right() - half + 1);
      QImage blank(part.size(), shown.format());
      blank.fill(Qt::white);
      return shown.copy(part) != blank;
    };
    const bool isMirrored = direction == Qt::RightToLeft;
    for (const QAction *marked : {item, plain}) {
      EXPECT_EQ(hasInk(marked, Qt::AlignLeft), !isMirrored);
      EXPECT_EQ(hasInk(marked, Qt::AlignRight), isMirrored);
    }
    EXPECT_EQ(hasInk(opener, Qt::AlignLeft), isMirrored);
    EXPECT_EQ(hasInk(opener, Qt::AlignRight), !isMirrored);
  }
}

TEST_F(MenuPainterTest, LeavesRoomForShortcuts) {
  painter.PaintMenusOf(window);
  const int before = menu->sizeHint().width();
  item->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
  EXPECT_GT(menu->sizeHint().width(), before + 30);
}

}  // namespace
}  // namespace velor
