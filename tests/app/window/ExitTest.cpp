// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeJournals.h"

#include <QSignalSpy>

namespace velor {
namespace {

class ExitTest : public WindowFixture {
 protected:
  frmMain &ChangedPage() {
    frmMain &page = NewPage();
    Component(page).Edit(QStringLiteral("<p>changed</p>"));
    return page;
  }

  QSignalSpy unloaded{&window, &MfrmProgram::Unloaded};
};

TEST_F(ExitTest, UnsavedPagesAreNotAskedAbout) {
  const QPointer<frmMain> page = &ChangedPage();
  window.close();
  EXPECT_EQ(unloaded.count(), 1);
  EXPECT_TRUE(dialogs.messages.empty());
  DeleteClosedWindows();
  EXPECT_TRUE(page.isNull());
}

TEST_F(ExitTest, UnsavedPagesAreInTheJournalsOfTheNextStart) {
  FakeJournals journals;
  platform.journals = &journals;
  ChangedPage();
  window.close();
  EXPECT_EQ(unloaded.count(), 1);
  ASSERT_EQ(journals.Written().size(), 1);
  EXPECT_EQ(journals.Written()[0].page.document, QStringLiteral("<p>changed</p>"));
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Exit);
}

TEST_F(ExitTest, WhereTheyCannotBeKeptNoKeepsTheWindowOpen) {
  FakeJournals journals;
  journals.writeFailure = ErrorNumber::DiskFull;
  platform.journals = &journals;
  const QPointer<frmMain> page = &ChangedPage();
  dialogs.ExpectMessage(
      QStringLiteral("The unsaved changes of Untitled 1 cannot be kept for the next start. They "
                     "are lost if the program ends now.\n\nEnd the program all the same?"),
      MessageAnswer::No);
  EXPECT_FALSE(window.close());
  DeleteClosedWindows();
  EXPECT_EQ(unloaded.count(), 0);
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(page.isNull());
  platform.journals = nullptr;
}

TEST_F(ExitTest, TheExitItemClosesTheWindow) {
  Choose("mnuExit");
  EXPECT_EQ(unloaded.count(), 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(ExitTest, AnOpenSourceEditorAndAHiddenPreviewDoNotStopIt) {
  frmMain &page = ChangedPage();
  page.ChangeMode(4);
  page.ChangeMode(3);
  const QPointer<frmCodeEditor> editor = window.Context().pages.CodeEditor(1);
  const QPointer<frmBrowser> preview = window.Context().preview;
  ASSERT_FALSE(editor.isNull());
  preview->close();
  window.close();
  EXPECT_EQ(unloaded.count(), 1);
  DeleteClosedWindows();
  EXPECT_TRUE(editor.isNull());
  EXPECT_TRUE(preview.isNull());
}

TEST_F(ExitTest, TemporaryCopiesAreStillDeleted) {
  frmMain &page = NewPage();
  page.CreatorHTML();
  const QString copy = window.Context().pages.Record(1).TempPath;
  ASSERT_TRUE(files.FileExists(copy));
  window.close();
  EXPECT_FALSE(files.FileExists(copy));
}

/// A window of the program that fails while it closes.
class FailingWindow final : public QWidget, public ProgramWindow {
 public:
  void MarkKill() override { marked = true; }
  bool marked = false;

 protected:
  void closeEvent(QCloseEvent *) override {
    throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("test"));
  }
};

TEST_F(ExitTest, EveryWindowIsMarkedAndWhatFailsIsPassedOver) {
  const QPointer<frmMain> page = &ChangedPage();
  FailingWindow failing;
  failing.show();
  window.close();
  EXPECT_TRUE(failing.marked);
  EXPECT_EQ(unloaded.count(), 1);
  DeleteClosedWindows();
  EXPECT_TRUE(page.isNull());
}

}  // namespace
}  // namespace velor
