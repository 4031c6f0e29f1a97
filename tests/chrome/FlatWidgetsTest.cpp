// SPDX-License-Identifier: GPL-3.0-or-later
// Flat painters on real widgets: pixels, and the events that change them.
#include "chrome/HouseStyle.h"
#include "chrome/Palette.h"
#include "chrome/WidgetControl.h"
#include "chrome/cControlFlater.h"
#include "qt/QtWindowSystem.h"
#include "tests/support/Checks.h"
#include "tests/support/Waiting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTest>

#include <functional>

inline void PrintTo(const QImage &image, std::ostream *out) {
  *out << "image of " << image.width() << " by " << image.height();
}

namespace velor {
namespace {

/// Scroll bars of the published 17 pixels, whatever the house style has.
class TestStyle final : public HouseStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption *option,
                  const QWidget *widget) const override {
    return metric == PM_ScrollBarExtent ? 17 : HouseStyle::pixelMetric(metric, option, widget);
  }
};

const QRgb Face = qRgb(10, 20, 30);
const QRgb Shadow = qRgb(40, 50, 60);
const QRgb Light = qRgb(70, 80, 90);
const QRgb Field = qRgb(100, 110, 120);

class FlatWidgetsTest : public ::testing::Test {
 protected:
  FlatWidgetsTest() : before_(QApplication::palette()) {
    QPalette palette = PaletteFor(Shade::Light);
    palette.setColor(QPalette::Button, Face);
    palette.setColor(QPalette::Dark, Shadow);
    palette.setColor(QPalette::Light, Light);
    palette.setColor(QPalette::Base, Field);
    QApplication::setStyle(new TestStyle);
    QApplication::setPalette(palette);
    QCursor::setPos(700, 500);
    window.resize(300, 200);
    window.setFocusPolicy(Qt::StrongFocus);
  }

  ~FlatWidgetsTest() override {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(before_);
  }

  void Attach(QWidget &widget) {
    widget.setProperty(HouseStyle::Flat, true);
    WidgetControl control(widget, system);
    painter.Attach(control);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    window.setFocus();
    ASSERT_TRUE(WaitFor([this] { return window.hasFocus(); }));
    QCoreApplication::processEvents();
  }

  /// The window at that many pixels to a device-independent one.
  QImage Shown(qreal ratio = 1) {
    QImage image((QSizeF(window.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    window.render(&image);
    return image;
  }

  /// Waits until a pixel of the window, on the screen too, has the colour.
  bool Becomes(QPoint at, QRgb color) {
    return WaitFor([&] { return Shown().pixel(at) == color; });
  }

  static void Hover(QWidget &widget) {
    QCursor::setPos(widget.mapToGlobal(widget.rect().center()));
    QTest::mouseMove(&widget, widget.rect().center());
  }

  QPalette before_;
  QWidget window;
  QtWindowSystem system;
  cControlFlater painter{system};
};

/// Expects the edges of a rectangle in these colours, each corner in that of the pen it belongs to.
void ExpectFrame(const QImage &image, const QRect &r, QRgb topLeft, QRgb bottomRight) {
  QImage expected = image;
  for (int y = r.top(); y <= r.bottom(); ++y) {
    expected.setPixel(r.left(), y, topLeft);
    expected.setPixel(r.right(), y, bottomRight);
  }
  for (int x = r.left(); x < r.right(); ++x) {
    expected.setPixel(x, r.top(), topLeft);
    if (x > r.left()) expected.setPixel(x, r.bottom(), bottomRight);
  }
  EXPECT_EQ(image, expected) << "frame " << r.x() << ' ' << r.y() << ' ' << r.width() << ' '
                             << r.height();
}

class FlatButtonTest : public FlatWidgetsTest {
 protected:
  FlatButtonTest() {
    button.setGeometry(20, 20, 80, 30);
    Attach(button);
  }
  QPushButton button{QStringLiteral("Go"), &window};
};

TEST_F(FlatButtonTest, IsLevelAtRestAndWhenDisabled) {
  const QRect place = button.geometry();
  for (const bool enabled : {true, false}) {
    button.setEnabled(enabled);
    QCoreApplication::processEvents();
    const QImage shown = Shown();
    for (int ring = 0; ring < 3; ++ring) {
      ExpectFrame(shown, place.adjusted(ring, ring, -ring, -ring), Face, Face);
    }
  }
}

TEST_F(FlatButtonTest, RisesUnderThePointerAndSinksUnderItsPress) {
  const QRect place = button.geometry();
  Hover(button);
  ASSERT_TRUE(Becomes(place.topLeft(), Light));
  ExpectFrame(Shown(), place, Light, Shadow);
  QTest::mousePress(&button, Qt::LeftButton);
  ASSERT_TRUE(Becomes(place.topLeft(), Shadow));
  ExpectFrame(Shown(), place, Shadow, Light);
  QTest::mouseRelease(&button, Qt::LeftButton);
  ASSERT_TRUE(Becomes(place.topLeft(), Light));
  QCursor::setPos(700, 500);
  ASSERT_TRUE(Becomes(place.topLeft(), Face));
}

TEST_F(FlatButtonTest, ShowsTheKeyboardsPlaceBelowItsText) {
  button.setFocus();
  const QPoint line = button.geometry().bottomLeft() + QPoint(20, -3);
  EXPECT_TRUE(Becomes(line, QApplication::palette().color(QPalette::Highlight).rgb()));
}

TEST_F(FlatButtonTest, IsOneFieldInsideItsRingsThoughItIsTheDefault) {
  button.setDefault(true);
  QCoreApplication::processEvents();
  const QImage shown = Shown();
  const QPoint corner = button.geometry().topLeft();
  for (const int inside : {3, 4, 6})
    EXPECT_EQ(shown.pixel(corner + QPoint(inside, inside)), shown.pixel(corner + QPoint(8, 8)))
        << inside;
}

TEST_F(FlatButtonTest, KeepsALineOfOneCrispPixelAtTwiceTheResolution) {
  Hover(button);
  ASSERT_TRUE(Becomes(button.geometry().topLeft(), Light));
  const QImage shown = Shown(2);
  const QRect outer(button.geometry().topLeft() * 2, button.geometry().size() * 2);
  EXPECT_EQ(shown.pixel(outer.left(), outer.center().y()), Light);
  EXPECT_EQ(shown.pixel(outer.left() + 1, outer.center().y()), Light);
  EXPECT_EQ(shown.pixel(outer.left() + 2, outer.center().y()), Face);
  EXPECT_EQ(shown.pixel(outer.right(), outer.center().y()), Shadow);
  EXPECT_EQ(shown.pixel(outer.right() - 1, outer.center().y()), Shadow);
  EXPECT_EQ(shown.pixel(outer.right() - 2, outer.center().y()), Face);
}

TEST_F(FlatButtonTest, IsAsItWasOnceThePainterHasGone) {
  QPushButton other(QStringLiteral("Other"), &window);
  other.setGeometry(150, 20, 80, 30);
  other.show();
  Attach(other);
  button.setProperty(HouseStyle::Flat, false);
  const QImage shown = Shown();
  EXPECT_NE(shown.pixel(button.geometry().topLeft()), Face);
  EXPECT_EQ(shown.pixel(other.geometry().topLeft()), Face);
}

class FlatComboTest : public FlatWidgetsTest {
 protected:
  FlatComboTest() {
    combo.addItems({QStringLiteral("one"), QStringLiteral("two")});
    combo.setGeometry(20, 20, 100, 28);
    Attach(combo);
  }
  /// The drop-down button as the painter has it, in the window.
  QRect Button() const { return {combo.x() + 81, combo.y() + 2, 17, 24}; }

  QComboBox combo{&window};
};

TEST_F(FlatComboTest, AtRestHasTwoLevelRingsAPlainButtonAndALine) {
  const QImage shown = Shown();
  const QRect place = combo.geometry();
  ExpectFrame(shown, place, Face, Face);
  ExpectFrame(shown, place.adjusted(1, 1, -1, -1), Face, Face);
  ExpectFrame(shown, Button().adjusted(1, 0, -1, 0), Light, Light);
  EXPECT_EQ(shown.pixel(Button().left(), Button().center().y()), Field);
  EXPECT_EQ(shown.pixel(Button().right(), Button().center().y()), Face);
}

TEST_F(FlatComboTest, UnderThePointerIsSunkenWithARaisedButton) {
  Hover(combo);
  ASSERT_TRUE(Becomes(combo.geometry().topLeft(), Shadow));
  const QImage shown = Shown();
  ExpectFrame(shown, combo.geometry(), Shadow, Light);
  ExpectFrame(shown, Button().adjusted(1, 0, 0, 0), Light, Shadow);
}

TEST_F(FlatComboTest, HoveringEndsOnceThePointerIsElsewhere) {
  Hover(combo);
  ASSERT_TRUE(Becomes(combo.geometry().topLeft(), Shadow));
  QCursor::setPos(700, 500);
  EXPECT_TRUE(Becomes(combo.geometry().topLeft(), Face));
}

TEST_F(FlatComboTest, DisabledHasALightInnerRingAndNoButtonEdges) {
  combo.setEnabled(false);
  ASSERT_TRUE(Becomes(combo.geometry().topLeft() + QPoint(1, 1), Light));
  const QImage shown = Shown();
  ExpectFrame(shown, combo.geometry(), Face, Face);
  ExpectFrame(shown, combo.geometry().adjusted(1, 1, -1, -1), Light, Light);
  ExpectFrame(shown, Button(), Face, Face);
  ExpectFrame(shown, Button().adjusted(1, 1, -1, -1), Face, Face);
}

TEST_F(FlatComboTest, ItsOpenListPressesTheButtonAndItsClosedListPaintsAtOnce) {
  combo.showPopup();
  combo.update();
  ASSERT_TRUE(Becomes(Button().topLeft() + QPoint(1, 0), Shadow));
  ExpectFrame(Shown(), Button().adjusted(1, 0, 0, 0), Shadow, Light);
  combo.hidePopup();
  EXPECT_TRUE(Becomes(Button().topLeft() + QPoint(1, 0), Light));
}

TEST_F(FlatComboTest, ShowsTheKeyboardsPlaceBelowItsText) {
  combo.setFocus();
  const QPoint line = combo.geometry().bottomLeft() + QPoint(20, -3);
  EXPECT_TRUE(Becomes(line, QApplication::palette().color(QPalette::Highlight).rgb()));
}

TEST_F(FlatComboTest, FromRightToLeftItIsTheMirrorsPicture) {
  combo.setCurrentIndex(-1);
  const QImage before = Shown().copy(combo.geometry());
  combo.setLayoutDirection(Qt::RightToLeft);
  ASSERT_TRUE(Becomes(combo.geometry().topLeft() + QPoint(3, 2), Light));
  EXPECT_EQ(Shown().copy(combo.geometry()), before.mirrored(true, false));
  Hover(combo);
  ASSERT_TRUE(Becomes(combo.geometry().topLeft() + QPoint(3, 2), Light));
  ASSERT_TRUE(Becomes(combo.geometry().topRight(), Shadow));
  combo.setFocus();
  EXPECT_TRUE(Becomes(combo.geometry().bottomRight() + QPoint(-20, -3),
                      QApplication::palette().color(QPalette::Highlight).rgb()));
}

class FlatEdgeTest : public FlatWidgetsTest {
 protected:
  FlatEdgeTest() {
    box.setGeometry(20, 20, 100, 28);
    Attach(box);
  }
  QLineEdit box{&window};
  const QRect around{20, 20, 100, 28};
};

TEST_F(FlatEdgeTest, ItsFrameLiesOnTheParentTwoPixelsOutside) {
  EXPECT_EQ(box.geometry(), around.adjusted(2, 2, -2, -2));
  ASSERT_TRUE(Becomes(around.topLeft(), Face));
  ExpectFrame(Shown(), around, Face, Face);
  EXPECT_EQ(Shown().pixel(around.topLeft() + QPoint(1, 1)),
            window.palette().color(QPalette::Window).rgb());
}

TEST_F(FlatEdgeTest, SinksWithTheKeyboardAndThePointer) {
  ASSERT_TRUE(Becomes(around.topLeft(), Face));
  box.setFocus();
  ASSERT_TRUE(Becomes(around.topLeft(), Shadow));
  ExpectFrame(Shown(), around, Shadow, Light);
  box.clearFocus();
  ASSERT_TRUE(Becomes(around.topLeft(), Face));
  Hover(box);
  EXPECT_TRUE(Becomes(around.topLeft(), Shadow));
}

TEST_F(FlatEdgeTest, DisabledHasALightFrameOnePixelOutside) {
  box.setEnabled(false);
  ASSERT_TRUE(Becomes(around.topLeft() + QPoint(1, 1), Light));
  ExpectFrame(Shown(), around.adjusted(1, 1, -1, -1), Light, Light);
}

TEST_F(FlatEdgeTest, ItsFrameMovesAndHidesWithIt) {
  ASSERT_TRUE(Becomes(around.topLeft(), Face));
  box.move(box.pos() + QPoint(0, 60));
  ASSERT_TRUE(Becomes(around.topLeft() + QPoint(0, 60), Face));
  EXPECT_NE(Shown().pixel(around.topLeft()), Face);
  box.hide();
  EXPECT_NE(Shown().pixel(around.topLeft() + QPoint(0, 60)), Face);
}

class FlatScrollTest : public FlatWidgetsTest {
 protected:
  FlatScrollTest() {
    bar.setGeometry(20, 20, 120, 20);
    Attach(bar);
  }
  QScrollBar bar{Qt::Horizontal, &window};
};

TEST_F(FlatScrollTest, AtRestIsLevelWithALightRing) {
  const QImage shown = Shown();
  ExpectFrame(shown, bar.geometry(), Face, Face);
  ExpectFrame(shown, bar.geometry().adjusted(1, 1, -1, -1), Light, Light);
  ExpectFrame(shown, QRect(22, 22, 15, 16), Face, Face);
  ExpectFrame(shown, QRect(20 + 118 - 17 + 2, 22, 15, 16), Face, Face);
}

TEST_F(FlatScrollTest, UnderThePointerIsSunkenWithRaisedArrows) {
  Hover(bar);
  ASSERT_TRUE(Becomes(bar.geometry().topLeft(), Shadow));
  const QImage shown = Shown();
  ExpectFrame(shown, bar.geometry(), Shadow, Light);
  ExpectFrame(shown, QRect(21, 21, 16, 18), Face, Face);
  ExpectFrame(shown, QRect(22, 22, 14, 16), Light, Shadow);
}

TEST_F(FlatWidgetsTest, SystemColoursAreRolesOfThePalette) {
  const auto value = [](QRgb color) {
    return qRed(color) | (qGreen(color) << 8) | (qBlue(color) << 16);
  };
  EXPECT_EQ(system.TranslateColor(0x8000000F), value(Face));
  EXPECT_EQ(system.TranslateColor(0x80000010), value(Shadow));
  EXPECT_EQ(system.TranslateColor(0x80000014), value(Light));
  EXPECT_EQ(system.TranslateColor(0x80000005), value(Field));
  EXPECT_EQ(system.TranslateColor(0x80000063), -1);
  EXPECT_EQ(system.TranslateColor(0x0000000F), -1);
}

TEST_F(FlatWidgetsTest, MetricsAreTheScrollBarsExtent) {
  EXPECT_EQ(system.Metric(10), 17);
  EXPECT_EQ(system.Metric(21), 17);
}

TEST_F(FlatWidgetsTest, APainterOutlivesItsControl) {
  auto *button = new QPushButton(&window);
  Attach(*button);
  Hover(*button);
  QCoreApplication::processEvents();
  delete button;
  QTest::qWait(0);
  QPushButton next(&window);
  WidgetControl control(next, system);
  painter.Attach(control);
  EXPECT_TRUE(painter.IsAttached());
}

}  // namespace
}  // namespace velor
