// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PrintChoices.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakePrinters.h"
#include "tests/support/Waiting.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPdfWriter>
#include <QPushButton>
#include <QSpinBox>

namespace velor {
namespace {

/// A PDF of empty A4 pages.
QByteArray Pdf(int pages) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  QPainter painter(&writer);
  for (int page = 1; page < pages; ++page) writer.newPage();
  painter.end();
  return bytes;
}

bool IsWhite(const QImage &sheet, const QRect &part) {
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      if (sheet.pixel(x, y) != qRgb(255, 255, 255)) return false;
  return true;
}

class PrintTest : public WindowFixture {
 protected:
  PrintTest() : page(NewPage()) { window.SetPrinters(printers); }

  /// Opens the window and lets the person act in it.
  void Use(const std::function<void(QWidget &)> &act) {
    dialogs.ExpectModal([=](QWidget &dialog) {
      dialog.show();
      act(dialog);
      dialog.close();
    });
    Choose("mnuPrint");
  }
  /// The same when the pages are there.
  void UsePages(int pages, const std::function<void(QWidget &)> &act) {
    Use([=, this](QWidget &dialog) {
      Printing().Answer(Pdf(pages));
      act(dialog);
    });
  }
  template <typename Control>
  static Control &In(QWidget &dialog, const char *name) {
    return *dialog.findChild<Control *>(QString::fromLatin1(name));
  }
  static QString State(QWidget &dialog) { return In<QLabel>(dialog, "lblState").text(); }
  static void Press(QWidget &dialog, const char *button) {
    In<QPushButton>(dialog, button).click();
  }
  FakePagePrinting &Printing() { return Component(page).printing; }

  FakePrinters printers;
  frmMain &page;
};

TEST_F(PrintTest, ThePagesGoToThePrinterThatIsChosen) {
  UsePages(3, [this](QWidget &dialog) {
    EXPECT_EQ(State(dialog), QStringLiteral("3 pages"));
    Press(dialog, "cmdPrint");
    EXPECT_TRUE(WaitFor([&] { return dialog.isHidden(); }));
  });
  ASSERT_EQ(printers.tasks.size(), 1U);
  EXPECT_EQ(printers.tasks[0].name, QStringLiteral("Untitled 1"));
  EXPECT_EQ(printers.tasks[0].paper.toSize(), QSize(595, 842));
  EXPECT_EQ(printers.tasks[0].pages, 3);
  EXPECT_EQ(printers.sheets.size(), 3U);
  EXPECT_EQ(printers.ended, 1);
  EXPECT_EQ(printers.aborted, 0);
}

TEST_F(PrintTest, OnlyThePagesThatAreWantedArePrinted) {
  printers.pages = {1};
  UsePages(3, [this](QWidget &dialog) {
    Press(dialog, "cmdPrint");
    EXPECT_TRUE(WaitFor([&] { return dialog.isHidden(); }));
  });
  EXPECT_EQ(printers.sheets.size(), 1U);
}

TEST_F(PrintTest, HeaderAndFooterAreAtTheEdgesUnlessTheyAreTurnedOff) {
  const auto print = [this](QWidget &dialog) {
    Press(dialog, "cmdPrint");
    EXPECT_TRUE(WaitFor([&] { return dialog.isHidden(); }));
  };
  UsePages(1, print);
  UsePages(1, [&](QWidget &dialog) {
    In<QCheckBox>(dialog, "chkEdgeLines").click();
    EXPECT_TRUE(WaitFor([this] { return Printing().IsUnderWay(); }));
    Printing().Answer(Pdf(1));
    print(dialog);
  });
  ASSERT_EQ(printers.sheets.size(), 2U);
  for (const QRect &edge : {QRect(0, 0, 595, 36), QRect(0, 806, 595, 36)}) {
    EXPECT_FALSE(IsWhite(printers.sheets[0], edge));
    EXPECT_TRUE(IsWhite(printers.sheets[1], edge));
  }
}

TEST_F(PrintTest, ChoicesMakeThePagesAnewAndAreKeptWithThePreferences) {
  UsePages(1, [this](QWidget &dialog) {
    In<QComboBox>(dialog, "cobPaper").setCurrentText(QStringLiteral("Letter"));
    In<QComboBox>(dialog, "cobOrientation").setCurrentIndex(1);
    In<QSpinBox>(dialog, "txtMargins").setValue(30);
    In<QSpinBox>(dialog, "txtScale").setValue(150);
    In<QCheckBox>(dialog, "chkBackgrounds").click();
    EXPECT_TRUE(WaitFor([this] { return Printing().IsUnderWay(); }));
    EXPECT_FALSE(In<QPushButton>(dialog, "cmdPrint").isEnabled());
  });
  ASSERT_EQ(Printing().forms.size(), 2U);
  UsePages(1, [](QWidget &dialog) {
    EXPECT_EQ(In<QComboBox>(dialog, "cobPaper").currentText(), QStringLiteral("Letter"));
    EXPECT_EQ(In<QSpinBox>(dialog, "txtScale").value(), 150);
  });
  const PaperForm &form = Printing().forms.back();
  EXPECT_EQ(form.layout.pageSize().id(), QPageSize::Letter);
  EXPECT_EQ(form.layout.orientation(), QPageLayout::Landscape);
  EXPECT_EQ(form.layout.margins(QPageLayout::Millimeter), QMarginsF(30, 30, 30, 30));
  EXPECT_DOUBLE_EQ(form.scale, 1.5);
  EXPECT_EQ(form.backgrounds, PaperForm::Backgrounds::LeftOut);
  const PrintChoices stored = ReadPrintChoices(registry);
  EXPECT_EQ(stored.form.layout, form.layout);
  EXPECT_DOUBLE_EQ(stored.form.scale, 1.5);
  EXPECT_EQ(stored.form.backgrounds, PaperForm::Backgrounds::LeftOut);
  EXPECT_TRUE(stored.hasEdgeLines);
  EXPECT_EQ(registry.Writes().size(), 5) << "what was not changed is not stored";
}

TEST_F(PrintTest, StoredChoicesThatMeanNothingAreReadAsTheDefaults) {
  const auto store = [this](const char *name, const char *text) {
    registry.SetText(QStringLiteral("Software\\Company\\VelorCDMaker\\print"),
                     QString::fromLatin1(name), QString::fromLatin1(text));
  };
  store("Paper", "B9");
  store("Direction", "Askew");
  store("Margins", "-3");
  store("Scale", "100000");
  store("Backgrounds", "perhaps");
  const PrintChoices read = ReadPrintChoices(registry);
  const PrintChoices usual;
  EXPECT_EQ(read.form.layout, usual.form.layout);
  EXPECT_DOUBLE_EQ(read.form.scale, 1);
  EXPECT_EQ(read.form.backgrounds, PaperForm::Backgrounds::Printed);
  EXPECT_TRUE(read.hasEdgeLines);
}

TEST_F(PrintTest, ClosingWhileItPrintsGivesTheTaskUp) {
  UsePages(3, [this](QWidget &dialog) {
    printers.onPage = [&dialog] { QTimer::singleShot(0, &dialog, &QWidget::close); };
    Press(dialog, "cmdPrint");
    EXPECT_TRUE(WaitFor([&] { return dialog.isHidden(); }));
  });
  EXPECT_LT(printers.sheets.size(), 3U);
  EXPECT_EQ(printers.aborted, 1);
  EXPECT_EQ(printers.ended, 1);
}

TEST_F(PrintTest, WhatThePrinterDoesNotTakeIsSaid) {
  printers.mostPages = 0;
  UsePages(2, [](QWidget &dialog) {
    Press(dialog, "cmdPrint");
    EXPECT_EQ(State(dialog), QStringLiteral("The printer did not take the page."));
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_EQ(printers.ended, 1);
}

TEST_F(PrintTest, ACancelledDialogPrintsNothingAndLeavesTheWindow) {
  printers.isCancelled = true;
  UsePages(2, [](QWidget &dialog) {
    Press(dialog, "cmdPrint");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(In<QPushButton>(dialog, "cmdPrint").isEnabled());
  });
  EXPECT_TRUE(printers.sheets.empty());
}

TEST_F(PrintTest, APageThatTheEngineCannotPrintIsSaid) {
  Use([this](QWidget &dialog) {
    Printing().Answer({});
    EXPECT_EQ(State(dialog), QStringLiteral("The page could not be printed."));
    EXPECT_FALSE(In<QPushButton>(dialog, "cmdPrint").isEnabled());
  });
}

TEST_F(PrintTest, ClosingTheWindowStopsTheEngine) {
  Use([](QWidget &) {});
  EXPECT_FALSE(Printing().IsUnderWay());
}

}  // namespace
}  // namespace velor
