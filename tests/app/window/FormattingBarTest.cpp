// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/ChoiceBox.h"
#include "app/window/FormattingBar.h"
#include "chrome/ColorPalette.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "editor/frmMain.h"
#include "platform/EditingCommands.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/Waiting.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace velor {
namespace {

class FormattingBarTest : public WindowFixture {
 protected:
  FormattingBarTest() : page(NewPage()) { log.clear(); }

  void Pick(ChoiceBox *box, const QString &text) {
    const int index = box->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    box->setCurrentIndex(index);
    Q_EMIT box->activated(index);
  }

  void PickColor(const char *picker, const QColor &color) {
    Q_EMIT Find<ColorPicker>(picker)->Panel().Chosen(color);
  }

  void PageAnswers(EditingCommand query, const QString &value) {
    Component(page).values[query] = value;
  }

  frmMain &page;
};

TEST_F(FormattingBarTest, TheFontsTextBoxIsHeardByTheNameOfItsPicker) {
  EXPECT_EQ(Find<FontPicker>("Font1")->lineEdit()->accessibleName(), QStringLiteral("Font"));
}

TEST_F(FormattingBarTest, ListsTheBlockFormatsAndTheSevenSizes) {
  auto *formats = Find<ChoiceBox>("cobFormat");
  QStringList names;
  for (int i = 0; i < formats->count(); ++i) names.append(formats->itemText(i));
  EXPECT_EQ(names, BlockFormatNames());
  auto *sizes = Find<ChoiceBox>("cobSize");
  QStringList points;
  for (int i = 0; i < sizes->count(); ++i) points.append(sizes->itemText(i));
  EXPECT_EQ(points.join(u' ').toStdString(), "8 10 12 14 18 24 36");
  EXPECT_GT(Find<FontPicker>("Font1")->count(), 0);
}

TEST_F(FormattingBarTest, ADifferentBlockFormatIsSentAfterAskingForTheCurrentOne) {
  PageAnswers(EditingCommand::GetBlockFormat, QStringLiteral("Normal"));
  Pick(Find<ChoiceBox>("cobFormat"), QStringLiteral("Heading 1"));
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5011) ExecCommand(5043, Heading 1)");
}

TEST_F(FormattingBarTest, TheCurrentBlockFormatIsNotSent) {
  PageAnswers(EditingCommand::GetBlockFormat, QStringLiteral("Heading 1"));
  Pick(Find<ChoiceBox>("cobFormat"), QStringLiteral("Heading 1"));
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5011)");
}

TEST_F(FormattingBarTest, AChoiceThatThePageRefusesIsNotShown) {
  Parts().formats.ShowBlockFormat(QStringLiteral("Normal"));
  Pick(Find<ChoiceBox>("cobFormat"), QStringLiteral("Heading 1"));
  EXPECT_EQ(Find<ChoiceBox>("cobFormat")->Text(), QStringLiteral("Normal"));
  EXPECT_EQ(Find<ChoiceBox>("cobFormat")->currentText(), QStringLiteral("Normal"));
}

TEST_F(FormattingBarTest, AFontThatThePageRefusesIsNotShown) {
  Parts().formats.ShowFontName(QStringLiteral("Serif"));
  auto *font = Find<FontPicker>("Font1");
  font->lineEdit()->setText(QStringLiteral("Some Face"));
  QTest::keyClick(font->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(font->FontName(), QStringLiteral("Serif"));
}

TEST_F(FormattingBarTest, ADifferentSizeIsSent) {
  PageAnswers(EditingCommand::GetFontSize, QStringLiteral("12"));
  Pick(Find<ChoiceBox>("cobSize"), QStringLiteral("24"));
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5014) ExecCommand(5045, 24)");
}

TEST_F(FormattingBarTest, TheCurrentSizeIsNotSent) {
  PageAnswers(EditingCommand::GetFontSize, QStringLiteral("24"));
  Pick(Find<ChoiceBox>("cobSize"), QStringLiteral("24"));
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5014)");
}

TEST_F(FormattingBarTest, ADifferentFontIsSent) {
  PageAnswers(EditingCommand::GetFontName, QStringLiteral("Serif"));
  auto *font = Find<FontPicker>("Font1");
  font->lineEdit()->setText(QStringLiteral("Some Face"));
  QTest::keyClick(font->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5013) ExecCommand(5044, Some Face)");
}

TEST_F(FormattingBarTest, TheFontThatThePageHasIsNotSent) {
  PageAnswers(EditingCommand::GetFontName, QStringLiteral("Some Face"));
  auto *font = Find<FontPicker>("Font1");
  font->lineEdit()->setText(QStringLiteral("Some Face"));
  QTest::keyClick(font->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5013)");
}

TEST_F(FormattingBarTest, AColourIsSentWithoutAskingAndTheKeyboardGoesBackToThePage) {
  PickColor("cpFore", QColor(255, 128, 0));
  EXPECT_EQ(log,
            CallLog({QStringLiteral("ExecCommand(5046, #FF8000)"), QStringLiteral("SetFocus()")}));
  log.clear();
  PickColor("cpBack", QColor(0, 0, 255));
  EXPECT_EQ(log,
            CallLog({QStringLiteral("ExecCommand(5042, #0000FF)"), QStringLiteral("SetFocus()")}));
}

TEST_F(FormattingBarTest, AColourThatThePageRefusesIsNotShown) {
  Parts().formats.ShowForeColor(QStringLiteral("#0000ff"));
  Parts().formats.ShowBackColor(QStringLiteral("#ffffff"));
  PickColor("cpFore", QColor(255, 128, 0));
  EXPECT_EQ(Find<ColorPicker>("cpFore")->Color(), 0xFF0000);
  PickColor("cpBack", QColor(0, 0, 255));
  EXPECT_EQ(Find<ColorPicker>("cpBack")->Color(), 0xFFFFFF);
}

TEST_F(FormattingBarTest, WithoutADocumentAChoiceDoesNothing) {
  page.close();
  log.clear();
  Pick(Find<ChoiceBox>("cobFormat"), QStringLiteral("Heading 1"));
  PickColor("cpFore", QColor(255, 128, 0));
  EXPECT_TRUE(log.empty());
}

TEST_F(FormattingBarTest, WhatTheProgramWritesSendsNothing) {
  Parts().formats.ShowFontName(QStringLiteral("Arial"));
  Parts().formats.ShowBackColor(QStringLiteral("#FFFF00"));
  Parts().formats.ShowForeColor(QStringLiteral("#0000FF"));
  Parts().formats.ShowBlockFormat(QStringLiteral("Heading 3"));
  Parts().formats.ShowFontSize(QStringLiteral("18"));
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(Find<FontPicker>("Font1")->FontName(), QStringLiteral("Arial"));
  EXPECT_EQ(Find<ColorPicker>("cpBack")->Color(), 0x00FFFF);
  EXPECT_EQ(Find<ColorPicker>("cpFore")->Color(), 0xFF0000);
  EXPECT_EQ(Find<ChoiceBox>("cobFormat")->currentText(), QStringLiteral("Heading 3"));
  EXPECT_EQ(Find<ChoiceBox>("cobSize")->currentText(), QStringLiteral("18"));
}

TEST_F(FormattingBarTest, MixedAndUnknownValuesAreShownToo) {
  auto *format = Find<ChoiceBox>("cobFormat");
  Parts().formats.ShowBlockFormat(QStringLiteral("Heading 3"));
  Parts().formats.ShowBlockFormat(QString());
  EXPECT_EQ(format->Text(), QString());
  EXPECT_EQ(format->currentIndex(), -1);
  Parts().formats.ShowBlockFormat(QStringLiteral("Unheard of"));
  EXPECT_EQ(format->Text(), QStringLiteral("Unheard of"));
  EXPECT_EQ(format->placeholderText(), QStringLiteral("Unheard of"));
}

TEST_F(FormattingBarTest, ABoxThatShowsTheValueAlreadyIsNotWritten) {
  auto *font = Find<FontPicker>("Font1");
  Parts().formats.ShowFontName(QStringLiteral("Arial"));
  font->lineEdit()->setCursorPosition(3);  // a write would put the caret back to the start
  Parts().formats.ShowFontName(QStringLiteral("Arial"));
  EXPECT_EQ(font->lineEdit()->cursorPosition(), 3);
}

/// Counts how often a widget is painted: a colour box that is written is painted anew.
class PaintCounter final : public QObject {
 public:
  int paints = 0;
  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

TEST_F(FormattingBarTest, AColourBoxIsComparedAsAColourBeforeItIsWritten) {
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::processEvents();
  auto *back = Find<ColorPicker>("cpBack");
  Parts().formats.ShowBackColor(QStringLiteral("#ffffff"));
  QCoreApplication::processEvents();
  ASSERT_EQ(back->Color(), 0xFFFFFF);
  PaintCounter counter;
  back->installEventFilter(&counter);
  for (const char *white : {"#ffffff", "#FFFFFF"}) {
    Parts().formats.ShowBackColor(QString::fromLatin1(white));
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(counter.paints, 0);
  Parts().formats.ShowBackColor(QStringLiteral("#fffffe"));
  EXPECT_TRUE(WaitFor([&] { return counter.paints > 0; }));
}

}  // namespace
}  // namespace velor
