// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ColorPalette.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "tests/support/Waiting.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace velor {
namespace {

QToolButton *Field(ColorPicker &picker, const QString &name) {
  for (QToolButton *button : picker.Panel().findChildren<QToolButton *>()) {
    if (button->accessibleName() == name) return button;
  }
  return nullptr;
}

QStringList FieldNames(ColorPicker &picker) {
  QStringList names;
  for (QToolButton *button : picker.Panel().findChildren<QToolButton *>()) {
    if (!button->accessibleName().isEmpty()) names.append(button->accessibleName());
  }
  return names;
}

TEST(ColorPalette, HoldsFortyDifferentColours) {
  QSet<QRgb> colors;
  for (const NamedColor &color : PaletteColors()) colors.insert(color.rgb);
  EXPECT_EQ(PaletteColors().size(), 40U);
  EXPECT_EQ(colors.size(), 40);
}

class ColorPickerTest : public ::testing::Test {
 protected:
  ColorPickerTest() {
    window.resize(200, 100);
    window.show();
  }

  QWidget window;
  ColorPicker picker{QStringLiteral("forecolor"), &window};
  QSignalSpy chosen{&picker, &ColorPicker::ColorChosen};
};

TEST_F(ColorPickerTest, DropsItsPaletteDownOnAClick) {
  picker.click();
  EXPECT_TRUE(picker.Panel().isVisible());
}

TEST_F(ColorPickerTest, TellsAChosenColourWithRedInTheLowByte) {
  picker.click();
  Field(picker, QStringLiteral("Orange"))->click();
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 0x0066FF);
  EXPECT_EQ(picker.Color(), 0x0066FF);
  EXPECT_FALSE(picker.Panel().isVisible());
}

TEST_F(ColorPickerTest, TellsTheColourAlreadyShownToo) {
  picker.SetColor(0x0000FF);
  Field(picker, QStringLiteral("Red"))->click();
  EXPECT_EQ(chosen.count(), 1);
}

TEST_F(ColorPickerTest, AColourSetByTheProgramTellsNobody) {
  picker.SetColor(0x123456);
  EXPECT_EQ(picker.Color(), 0x123456);
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ColorPickerTest, TheKeyboardWalksThePaletteAndChooses) {
  picker.SetColor(0);
  picker.click();
  ASSERT_TRUE(WaitFor([&] { return picker.Panel().focusWidget() != nullptr; }));
  QTest::keyClick(&picker.Panel(), Qt::Key_Down);   // from black to dark red
  QTest::keyClick(&picker.Panel(), Qt::Key_Right);  // orange
  QTest::keyClick(&picker.Panel(), Qt::Key_Return);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 0x0066FF);
}

TEST_F(ColorPickerTest, EscapeClosesThePaletteWithoutAChoice) {
  picker.click();
  QTest::keyClick(&picker.Panel(), Qt::Key_Escape);
  EXPECT_FALSE(picker.Panel().isVisible());
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ColorPickerTest, KeepsTheLastEightColoursTheLatestFirst) {
  for (std::size_t i = 0; i < 10; ++i) {
    Field(picker, QString::fromLatin1(PaletteColors()[i].name))->click();
  }
  Field(picker, QStringLiteral("Dark teal"))->click();  // chosen before: moves to the front
  ASSERT_TRUE(WaitFor([&] { return FieldNames(picker).size() == 48; }));
  const QStringList recent = FieldNames(picker).mid(40);
  EXPECT_EQ(recent.front(), QStringLiteral("#003366"));
  EXPECT_EQ(recent.at(1), QStringLiteral("#FF6600"));
  EXPECT_FALSE(recent.contains(QStringLiteral("#000000")));
}

TEST_F(ColorPickerTest, CustomOpensTheColourDialogAndTakesItsColour) {
  picker.Panel().findChild<QToolButton *>(QStringLiteral("custom"))->click();
  auto *dialog = picker.findChild<QColorDialog *>();
  ASSERT_NE(dialog, nullptr);
  ASSERT_TRUE(dialog->isVisible());
  dialog->setCurrentColor(QColor(1, 2, 3));
  dialog->accept();
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 0x030201);
}

TEST_F(ColorPickerTest, ACancelledColourDialogChoosesNothing) {
  picker.Panel().findChild<QToolButton *>(QStringLiteral("custom"))->click();
  picker.findChild<QColorDialog *>()->reject();
  EXPECT_EQ(chosen.count(), 0);
}

class FontPickerTest : public ::testing::Test {
 protected:
  FontPickerTest() { picker.addItems({QStringLiteral("Alpha"), QStringLiteral("Beta")}); }

  QWidget window;
  FontPicker picker{&window};
  QSignalSpy chosen{&picker, &FontPicker::FontChosen};
};

TEST_F(FontPickerTest, ListsTheInstalledFamilies) {
  picker.Initialise();
  EXPECT_GT(picker.count(), 0);
  EXPECT_EQ(picker.findText(QStringLiteral("Alpha")), -1);
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(FontPickerTest, ListsNamesAsPagesUseThem) {
  picker.Initialise();
  QSet<QString> names;
  for (int i = 0; i < picker.count(); ++i) {
    EXPECT_FALSE(picker.itemText(i).contains(u'[')) << picker.itemText(i).toStdString();
    names.insert(picker.itemText(i));
  }
  EXPECT_EQ(names.size(), picker.count());
}

TEST_F(FontPickerTest, ShowsANameThatIsNotInstalled) {
  picker.SetFontName(QStringLiteral("Some Face"));
  EXPECT_EQ(picker.FontName(), QStringLiteral("Some Face"));
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(FontPickerTest, TellsANameTypedAndEnteredOnce) {
  picker.lineEdit()->setText(QStringLiteral("Some Face"));
  QTest::keyClick(picker.lineEdit(), Qt::Key_Return);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("Some Face"));
}

TEST_F(FontPickerTest, TellsAListedNameOnce) {
  picker.lineEdit()->setText(QStringLiteral("Beta"));
  QTest::keyClick(picker.lineEdit(), Qt::Key_Return);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("Beta"));
}

TEST_F(FontPickerTest, TellsAListedNameInOtherLettersOnceAsItIsTyped) {
  picker.SetFontName(QStringLiteral("alpha"));
  picker.lineEdit()->setText(QStringLiteral("beta"));
  QTest::keyClick(picker.lineEdit(), Qt::Key_Return);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("beta"));
}

TEST_F(FontPickerTest, GoesOnShowingWhatItShowedUntilItIsToldTheChoice) {
  picker.SetFontName(QStringLiteral("Alpha"));
  for (const char *name : {"Beta", "Some Face"}) {
    picker.lineEdit()->setText(QString::fromLatin1(name));
    QTest::keyClick(picker.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(picker.FontName(), QStringLiteral("Alpha")) << name;
  }
  EXPECT_EQ(chosen.count(), 2);
}

TEST_F(FontPickerTest, ANameTypedButNotEnteredIsForgotten) {
  picker.SetFontName(QStringLiteral("Alpha"));
  picker.lineEdit()->setText(QStringLiteral("Some"));
  QFocusEvent away(QEvent::FocusOut, Qt::TabFocusReason);
  QCoreApplication::sendEvent(&picker, &away);
  EXPECT_EQ(picker.FontName(), QStringLiteral("Alpha"));
  EXPECT_EQ(chosen.count(), 0);
}

}  // namespace
}  // namespace velor
