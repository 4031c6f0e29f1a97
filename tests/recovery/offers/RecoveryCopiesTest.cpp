// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Paths.h"
#include "recovery/offers/RecoveryCopies.h"
#include "tests/app/window/WindowFixture.h"

namespace velor {
namespace {

class RecoveryCopies : public WindowFixture {
 protected:
  const QString folder = runtime.ProgramFolder();
  QString Copy(int number) const {
    return folder + QStringLiteral("\\Recovered%1.htm").arg(number);
  }
};

TEST_F(RecoveryCopies, APageWithUnsavedChangesIsWrittenAndOthersAreNot) {
  NewPage();
  frmMain &changed = NewPage();
  Component(changed).Edit(QStringLiteral("<p>not saved yet</p>"));
  const QStringList copies = WriteRecoveryCopies(window.Context(), folder);
  EXPECT_EQ(copies, QStringList{ForPeople(Copy(1))});
  EXPECT_TRUE(files.ReadAll(Copy(1)).contains("not saved yet"));
}

TEST_F(RecoveryCopies, ASourceThatWasNotAppliedIsWrittenToo) {
  frmMain &page = NewPage();
  page.ChangeMode(3);
  EXPECT_TRUE(WriteRecoveryCopies(window.Context(), folder).isEmpty());
  window.Context().pages.CodeEditor(1)->Code().SetText(QStringLiteral("<p>never applied</p>"));
  EXPECT_EQ(WriteRecoveryCopies(window.Context(), folder), QStringList{ForPeople(Copy(1))});
  EXPECT_TRUE(files.ReadAll(Copy(1)).contains("never applied"));
}

TEST_F(RecoveryCopies, ASourceIsWrittenInItsPagesEncoding) {
  const QString file = folder + QStringLiteral("\\cafe.htm");
  files.ReplaceAll(file, "<p>caf\xe9</p>");
  modWorkFlow::OpenPage(window.Context(), file);
  frmMain &page = *window.Context().pages.Page(1);
  Component(page).CompleteDocument();
  page.ChangeMode(3);
  window.Context().pages.CodeEditor(1)->Code().SetText(QStringLiteral("<p>na\u00efve</p>"));
  WriteRecoveryCopies(window.Context(), folder);
  EXPECT_EQ(files.ReadAll(Copy(1)), QByteArray("<p>na\xefve</p>\r\n"));
}

TEST_F(RecoveryCopies, AnEarlierCopyIsNeverOverwritten) {
  files.ReplaceAll(Copy(1), "from the day before");
  Component(NewPage()).Edit(QStringLiteral("<p>today</p>"));
  WriteRecoveryCopies(window.Context(), folder);
  EXPECT_EQ(files.ReadAll(Copy(1)), "from the day before");
  EXPECT_TRUE(files.ReadAll(Copy(2)).contains("today"));
}

TEST_F(RecoveryCopies, APageThatCannotBeWrittenDoesNotKeepTheOthersFromIt) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  Component(first).Edit(QStringLiteral("<p>one</p>"));
  Component(second).Edit(QStringLiteral("<p>two</p>"));
  Component(first).nextSaveFailure =
      RuntimeError::Of(ErrorNumber::DiskFull, QStringLiteral("test"));
  EXPECT_EQ(WriteRecoveryCopies(window.Context(), folder).size(), 1);
  EXPECT_TRUE(files.ReadAll(Copy(1)).contains("two"));
}

}  // namespace
}  // namespace velor
