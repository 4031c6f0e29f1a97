// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Icons.h"
#include "chrome/Palette.h"

#include <QApplication>
#include <QImage>

#include <gtest/gtest.h>

namespace velor {
namespace {

constexpr const char *Keys[] = {"new",
                                "open",
                                "save",
                                "saveas",
                                "startman",
                                "cut",
                                "copy",
                                "paste",
                                "delete",
                                "undo",
                                "redo",
                                "preview",
                                "table",
                                "image",
                                "anchor",
                                "help",
                                "about",
                                "bold",
                                "italic",
                                "underline",
                                "left",
                                "center",
                                "right",
                                "number",
                                "bullet",
                                "outdent",
                                "indent",
                                "design",
                                "viewcode",
                                "editcode",
                                "detail",
                                "snap",
                                "Back",
                                "Forward",
                                "Refresh",
                                "Stop",
                                "page",
                                "link",
                                "forecolor",
                                "backcolor",
                                "find",
                                "find next",
                                "goto line number",
                                "mark all found",
                                "replace",
                                "more"};

QImage Drawn(const QString &key, int size, QIcon::Mode mode = QIcon::Normal) {
  return IconFor(key).pixmap(QSize(size, size), 1.0, mode).toImage();
}

int InkedPixels(const QImage &image) {
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) inked += image.pixelColor(x, y).alpha() > 0;
  }
  return inked;
}

TEST(Icons, EveryKeyHasADrawing) {
  for (const char *key : Keys) {
    const QIcon icon = IconFor(QString::fromLatin1(key));
    ASSERT_FALSE(icon.isNull()) << key;
    EXPECT_GT(InkedPixels(Drawn(QString::fromLatin1(key), 24)), 30) << key;
  }
}

TEST(Icons, AKeyWithoutADrawingGivesNoIcon) {
  EXPECT_TRUE(IconFor(QStringLiteral("nothing of the kind")).isNull());
}

TEST(Icons, AreDrawnAnewForTheScreensResolution) {
  const QPixmap picture = IconFor(QStringLiteral("bold")).pixmap(QSize(20, 20), 2.0);
  EXPECT_EQ(picture.size(), QSize(40, 40));
  EXPECT_EQ(picture.devicePixelRatio(), 2.0);
}

TEST(Icons, DisabledOnesAreFainter) {
  const QImage normal = Drawn(QStringLiteral("table"), 24);
  const QImage disabled = Drawn(QStringLiteral("table"), 24, QIcon::Disabled);
  const QColor ink = QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText);
  EXPECT_NE(normal, disabled);
  // The frame's middle is a whole stroke wide.
  EXPECT_EQ(disabled.pixelColor(12, 4).rgb(), ink.rgb());
}

TEST(Icons, FollowAChangeOfPalette) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(PaletteFor(Shade::Light));
  const QImage light = Drawn(QStringLiteral("italic"), 24);
  QApplication::setPalette(PaletteFor(Shade::Dark));
  const QImage dark = Drawn(QStringLiteral("italic"), 24);
  QApplication::setPalette(before);
  EXPECT_NE(light, dark);
}

TEST(Icons, TheProgramHasOneOfItsOwn) {
  EXPECT_FALSE(ProgramIcon().pixmap(64, 64).isNull());
}

}  // namespace
}  // namespace velor
