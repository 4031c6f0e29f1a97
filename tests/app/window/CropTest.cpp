// SPDX-License-Identifier: GPL-3.0-or-later
// The window that cuts and turns a picture, by its numbers, by the keyboard and by the mouse.
#include "app/window/CropView.h"
#include "app/window/FrmCrop.h"
#include "tests/pictures/PictureFiles.h"
#include "tests/support/Forms.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace velor {
namespace {

class CropTest : public ::testing::Test {
 protected:
  CropTest() {
    dialog.show();
    view.setFixedSize(416, 216);  // 400 x 200 pixels within its margin: twice the picture's
  }
  QSpinBox &Number(const char *name) {
    return *Control<QSpinBox>(dialog, QString::fromLatin1(name));
  }
  void Click(const char *name) { Control<QPushButton>(dialog, QString::fromLatin1(name))->click(); }
  /// From and to are places in the picture.
  void Drag(QPoint from, QPoint to) {
    const auto shown = [](QPoint place) { return QPoint(8, 8) + 2 * place; };
    QTest::mousePress(&view, Qt::LeftButton, {}, shown(from));
    QMouseEvent move(QEvent::MouseMove, shown(to), view.mapToGlobal(shown(to)), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, shown(to));
  }

  FrmCrop dialog{RedAndBlue(200, 100), QStringLiteral("a.png"), nullptr};
  CropView &view = *dialog.findChild<CropView *>();
};

TEST_F(CropTest, ItBeginsWithTheWholePictureAndTheKeyboardOnIt) {
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Crop and Turn a.png"));
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 200, 100));
  EXPECT_EQ(dialog.Cut().quarterTurns, 0);
  EXPECT_EQ(dialog.focusWidget(), &view);
}

TEST_F(CropTest, TheMouseDragsEdgesCornersAndTheWholePart) {
  Drag({200, 50}, {150, 70});
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 150, 100));
  Drag({0, 0}, {30, 20});
  EXPECT_EQ(dialog.Cut().part, QRect(30, 20, 120, 80));
  Drag({90, 60}, {100, 20});
  EXPECT_EQ(dialog.Cut().part, QRect(40, 0, 120, 80));
  EXPECT_EQ(Number("txtCropLeft").value(), 40);
  EXPECT_EQ(Number("txtCropHeight").value(), 80);
}

TEST_F(CropTest, ArrowsMoveThePartAndWithShiftSizeIt) {
  QTest::keyClick(&view, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
  QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 190, 99));
  QTest::keyClick(&view, Qt::Key_Right);
  QTest::keyClick(&view, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(dialog.Cut().part, QRect(1, 1, 190, 99));
}

TEST_F(CropTest, NumbersAreTakenAndLimited) {
  Number("txtCropLeft").setValue(150);
  EXPECT_EQ(dialog.Cut().part, QRect(150, 0, 50, 100));
  Number("txtCropHeight").setValue(30);
  Number("txtCropTop").setValue(500);
  EXPECT_EQ(dialog.Cut().part, QRect(150, 99, 50, 1));
}

TEST_F(CropTest, AKeptRatioHoldsForNumbersAndTheMouse) {
  Control<QCheckBox>(dialog, QStringLiteral("chkCropRatio"))->click();
  Number("txtCropWidth").setValue(100);
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 100, 50));
  Number("txtCropHeight").setValue(20);
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 40, 20));
  Drag({40, 20}, {80, 20});
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 80, 40));
}

TEST_F(CropTest, ATurnTakesThePartAlong) {
  Number("txtCropWidth").setValue(50);
  Click("cmdCropTurnRight");
  EXPECT_EQ(dialog.Cut().part, QRect(0, 0, 100, 50));
  EXPECT_EQ(dialog.Cut().quarterTurns, 1);
  Click("cmdCropTurnLeft");
  Click("cmdCropTurnLeft");
  EXPECT_EQ(dialog.Cut().part, QRect(0, 150, 100, 50));
  EXPECT_EQ(dialog.Cut().quarterTurns, 3);
}

TEST_F(CropTest, EnterTakesTheChoiceAndEscapeLeavesIt) {
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  dialog.show();
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace velor
