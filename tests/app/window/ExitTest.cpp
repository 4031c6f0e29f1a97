// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Unwinding.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeJournals.h"
#include "tests/support/Waiting.h"

#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>

#include <functional>

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

/// Runs `work` in an event loop as the program's own; it calls `ask` right before the end is asked
/// for. Gives what happened, in its order.
QStringList OrderOfTheEnd(
    const std::function<void(QStringList &order, const std::function<void()> &ask)> &work) {
  constexpr int MostTurns = 20;
  QStringList order;
  QEventLoop program;
  const auto ask = [&] {
    QTimer::singleShot(0, &program, [&] {
      UnwindThen(
          [&] {
            order << QStringLiteral("end");
            program.quit();
          },
          MostTurns);
    });
  };
  QTimer::singleShot(0, &program, [&] {
    work(order, ask);
    order << QStringLiteral("returned");
  });
  program.exec();
  return order;
}

TEST(Unwinding, ComesToItsEndWhenTheCodeBehindTheDialogsHasReturned) {
  const QStringList order = OrderOfTheEnd([](QStringList &answers, const auto &ask) {
    QDialog below;
    QTimer::singleShot(0, &below, [&] {
      ask();
      const int answer = QMessageBox(QMessageBox::Question, {}, QStringLiteral("Save it?"),
                                     QMessageBox::Save | QMessageBox::Cancel)
                             .exec();
      answers << (answer == QMessageBox::Cancel ? QStringLiteral("cancelled")
                                                : QStringLiteral("answered"));
    });
    below.exec();
    answers << QStringLiteral("closed");
    QMessageBox(QMessageBox::Information, {}, QStringLiteral("Closed."), QMessageBox::Ok).exec();
    answers << QStringLiteral("read");
  });
  EXPECT_EQ(order, QStringLiteral("cancelled closed read returned end").split(u' '));
}

TEST(Unwinding, LetsAWaitComeToItsEnd) {
  const QStringList order = OrderOfTheEnd([](QStringList &, const auto &ask) {
    QEventLoop wait;
    ask();
    QTimer::singleShot(50, &wait, &QEventLoop::quit);
    wait.exec(QEventLoop::ExcludeUserInputEvents);
  });
  EXPECT_EQ(order, QStringLiteral("returned end").split(u' '));
}

TEST(Unwinding, NeedsNoDialog) {
  const auto order = OrderOfTheEnd([](QStringList &, const auto &ask) { ask(); });
  EXPECT_EQ(order, QStringLiteral("returned end").split(u' '));
}

TEST(Unwinding, EndsAlthoughADialogStaysOpen) {
  struct Stubborn final : QDialog {
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
  };
  const QStringList order = OrderOfTheEnd([](QStringList &, const auto &ask) {
    Stubborn dialog;
    ask();
    QTimer::singleShot(1000, &dialog, &QDialog::accept);
    dialog.exec();
  });
  EXPECT_EQ(order, QStringLiteral("end returned").split(u' '));
}

TEST_F(ExitTest, AWindowThatIsClosedInTheMiddleOfAnotherEventClosesAfterIt) {
  {
    const EventDelivery outer;
    const EventDelivery inner;
    EXPECT_FALSE(window.close());
    QCoreApplication::processEvents();
    EXPECT_EQ(unloaded.count(), 0);
  }
  EXPECT_TRUE(WaitFor([&] { return unloaded.count() == 1; }));
}

TEST_F(ExitTest, AWindowThatIsClosedWhileItWaitsForAPageClosesAfterwards) {
  QEventLoop program;
  QTimer::singleShot(0, &program, [&] {
    QEventLoop wait;
    QTimer::singleShot(0, &wait, [&] {
      EXPECT_FALSE(window.close());
      EXPECT_FALSE(window.close()) << "once more";
      EXPECT_EQ(unloaded.count(), 0);
      wait.quit();
    });
    wait.exec();
    EXPECT_EQ(unloaded.count(), 0);
    EXPECT_TRUE(window.isVisible());
  });
  QObject::connect(&window, &MfrmProgram::Unloaded, &program, &QEventLoop::quit);
  program.exec();
  EXPECT_EQ(unloaded.count(), 1);
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
