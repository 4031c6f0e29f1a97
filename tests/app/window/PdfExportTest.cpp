// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

namespace velor {
namespace {

const QByteArray Old = "old";
const QString File = QStringLiteral("\\site\\a.pdf");

class PdfExportTest : public WindowFixture {
 protected:
  PdfExportTest() {
    window.activateWindow();
    files.ReplaceAll(File, Old);
  }
  /// Begins to export a new page into a file.
  FakePagePrinting &Export(const QString &file = File) {
    frmMain &page = NewPage();
    Begin(file);
    return Component(page).printing;
  }
  void Begin(const QString &file) {
    components.onFileDialog = [file](FakeFileDialog &person) { person.ExpectSave(file); };
    Choose("mnuExportPdf");
  }
  bool HasBar() { return Find<QWidget>("picPdf")->isVisible(); }
  QString Status() { return Find<QStatusBar>("Sta")->currentMessage(); }
};

TEST_F(PdfExportTest, TheFileIsReplacedWhenThePdfIsThere) {
  FakePagePrinting &printing = Export();
  EXPECT_TRUE(HasBar());
  EXPECT_EQ(Find<QLabel>("lblPdf")->text(),
            QStringLiteral("Making a PDF of Untitled 1. Escape stops it"));
  EXPECT_EQ(files.ReadAll(File), Old);
  printing.Answer("new");
  EXPECT_EQ(files.ReadAll(File), QByteArray("new"));
  EXPECT_FALSE(HasBar());
  EXPECT_EQ(Status(), QStringLiteral("Exported /site/a.pdf"));
}

TEST_F(PdfExportTest, AFailedWriteLeavesTheOldFileAndTellsTheCauseAndTheFile) {
  FakePagePrinting &printing = Export();
  files.FailNextWrite(ErrorNumber::DiskFull);
  dialogs.ExpectMessage(QStringLiteral("The PDF could not be written."));
  printing.Answer("new");
  EXPECT_EQ(files.ReadAll(File), Old);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_TRUE(dialogs.messages[0].details.contains(QStringLiteral("Disk full")))
      << dialogs.messages[0].details.toStdString();
  EXPECT_TRUE(dialogs.messages[0].details.contains(QStringLiteral("a.pdf")))
      << dialogs.messages[0].details.toStdString();
}

TEST_F(PdfExportTest, WhatTheEngineCannotPrintLeavesTheOldFile) {
  FakePagePrinting &printing = Export();
  dialogs.ExpectMessage(QStringLiteral("The page could not be printed. No file was written."));
  printing.Answer({});
  EXPECT_EQ(files.ReadAll(File), Old);
}

TEST_F(PdfExportTest, EscapeAndTheButtonStopIt) {
  FakePagePrinting &printing = Export();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(printing.stops, 1);
  EXPECT_FALSE(HasBar());
  EXPECT_EQ(Status(), QStringLiteral("The PDF was stopped. No file was written"));
  Begin(File);
  Find<QPushButton>("cmdStopPdf")->click();
  EXPECT_EQ(printing.stops, 2);
  EXPECT_EQ(files.ReadAll(File), Old);
}

TEST_F(PdfExportTest, OneIsMadeAtATime) {
  FakePagePrinting &printing = Export();
  Choose("mnuExportPdf");
  EXPECT_EQ(printing.forms.size(), 1U);
  EXPECT_EQ(Status(), QStringLiteral("A PDF is being made already. Escape stops it"));
}

TEST_F(PdfExportTest, ClosingThePageEndsIt) {
  Export();
  Component(*window.Context().pages.Page(1)).printing.Answer("first");
  Begin(File);
  frmMain &page = *window.Context().pages.Page(1);
  page.MarkKill();
  page.close();
  DeleteClosedWindows();
  EXPECT_FALSE(HasBar());
  EXPECT_EQ(files.ReadAll(File), QByteArray("first"));
}

TEST_F(PdfExportTest, ANameThatIsNoPdfsIsRefused) {
  dialogs.ExpectMessage(
      QStringLiteral("The name of a PDF file ends in .pdf. Nothing was written."));
  FakePagePrinting &printing = Export(QStringLiteral("\\site\\index.htm"));
  EXPECT_TRUE(printing.forms.empty());
  EXPECT_FALSE(HasBar());
}

TEST_F(PdfExportTest, SourceThatWasTypedIsAppliedFirst) {
  frmMain &page = NewPage();
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(1);
  editor.Code().SetText(QStringLiteral("<p>typed"));
  Begin(File);
  EXPECT_EQ(Component(page).printing.forms.size(), 1U);
  EXPECT_TRUE(Component(page).DocumentHTML().contains(QStringLiteral("typed")));
}

TEST_F(PdfExportTest, WithoutAWindowThereIsNothingToExport) {
  Choose("mnuExportPdf");
  EXPECT_EQ(Status(), QStringLiteral("There is no page to print"));
}

TEST(PublishedOnlyPdf, HasNoExport) {
  class Published : public WindowFixture {
   public:
    Published() : WindowFixture(Additions::Off) {}
    bool HasItem() {
      return window.findChild<QAction *>(QStringLiteral("mnuExportPdf")) != nullptr;
    }
    void TestBody() override {}
  };
  EXPECT_FALSE(Published().HasItem());
}

}  // namespace
}  // namespace velor
