// SPDX-License-Identifier: GPL-3.0-or-later
// The program's window with somebody at it, on the real engine. To be killed.
// Usage: velor-crash-subject type|source FILE SEED
//        velor-crash-subject save|journal|restore|return FILE STEP
// type     types the alphabet again and again into the page
// source   does so into the page's HTML source, which is not applied
// save     types one alphabet and saves
// journal  types one alphabet and rests until it is in the journal, on the disk
// restore  restores the first page that is offered; FILE is not opened
// return   restores all pages that are offered, types one alphabet and closes the window at once
// It prints "ready", a line for each key with its time, "saving", and "done" at the end. With STEP
// the process ends before that call which changes a file, counted within the save, the journalling,
// the restoring.
#include "app/window/MfrmProgram.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "engine/PageScheme.h"
#include "files/QtFiles.h"
#include "files/ReplacedFiles.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/ProgramValues.h"
#include "qt/QtComponents.h"
#include "qt/QtDialogs.h"
#include "qt/QtRegistry.h"
#include "qt/QtRuntime.h"
#include "recovery/JournalFiles.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/Waiting.h"

#include <QApplication>
#include <QDateTime>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QWebEngineView>

#include <cstdio>

namespace velor {
namespace {

constexpr int Letters = 26;

void Tell(const QString &line) {
  std::printf("%s\n", qPrintable(line));
  std::fflush(stdout);
}

class Subject {
 public:
  Subject() { window_.Load(); }

  bool Open(const QString &file) {
    window_.Context().mainWindow.fileDialog.FileName = ToLogic(file);
    modWorkFlow::OpenPage(window_.Context(), ToLogic(file));
    if (!WaitFor([this] { return Page().PendingAction.isEmpty(); }, Patience)) return false;
    GoToTheEnd();
    Tell(QStringLiteral("ready"));
    return true;
  }

  void OpenSource() {
    Page().ChangeMode(3);
    SourceControl &code = window_.Context().pages.CodeEditor(1)->Code();
    input_ = code.Widget();
    const QString start = QStringLiteral("<p>-");
    const qsizetype place = code.Text().indexOf(start) + start.size();
    code.Select({place, place});
  }

  /// Between two keys as a person leaves it: mostly little, now and then a pause.
  void TypeOn(quint32 seed) {
    random_.seed(seed);
    TypeNext();
  }

  void Save(int step) {
    if (!TypesAlphabet()) return;
    // What was typed a moment ago may be lost; here it was typed a while before.
    Page().Journal().Flush();
    calls_.KillBefore(step);
    Tell(QStringLiteral("saving"));
    modWorkFlow::SavePage(window_.Context(), Page(), window_.Context().mainWindow.fileDialog,
                          window_.Context().pages.Record(1), false);
    Tell(QStringLiteral("done"));
  }

  void Journalise(int step) {
    calls_.KillBefore(step);
    if (!TypesAlphabet()) return;
    // It goes to the disk in the pause that follows.
    const auto isOnDisk = [this] { return !calls_.order.empty() && calls_.order.back() == Sync; };
    if (WaitFor(isOnDisk, Patience)) Tell(QStringLiteral("done"));
  }

  void Restore(int step) {
    Tell(QStringLiteral("ready"));
    if (!IsOffered()) return;
    calls_.KillBefore(step);
    Press("cmdRestore");
    Tell(QStringLiteral("done"));
  }

  void Return() {
    if (!IsOffered()) return;
    Press("cmdRestoreAll");
    GoToTheEnd();
    for (int i = 0; i < Letters; ++i) TypeLetter();
    if (window_.close()) Tell(QStringLiteral("done"));
    QCoreApplication::exit();
  }

 private:
  static constexpr int Patience = 60'000;
  static constexpr auto Sync = FaultyCalls::Call::Sync;

  bool IsOffered() {
    return WaitFor([this] { return Find("cmdRestore") != nullptr; }, Patience);
  }
  QPushButton *Find(const char *button) {
    return window_.findChild<QPushButton *>(QString::fromLatin1(button));
  }
  void Press(const char *button) { Find(button)->click(); }
  void GoToTheEnd() {
    Page().DHTML1().SetFocus();
    input_ = Page().findChild<QWebEngineView *>()->focusProxy();
    QTest::keyClick(input_, Qt::Key_End, Qt::ControlModifier);
  }
  frmMain &Page() { return *window_.Context().pages.Page(1); }
  void TypeLetter() {
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    QTest::keyClick(input_, static_cast<char>('a' + keys_ % Letters));
    Tell(QStringLiteral("key %1 %2").arg(++keys_).arg(now));
  }
  void TypeNext() {
    TypeLetter();
    const int wait = random_.bounded(20) == 0 ? 700 : static_cast<int>(random_.bounded(5, 120));
    QTimer::singleShot(wait, input_, [this] { TypeNext(); });
  }
  [[nodiscard]] bool TypesAlphabet() {
    for (int i = 0; i < Letters; ++i) TypeLetter();
    const QString all = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
    return WaitFor([&] { return Page().DHTML1().Memory().document.contains(all); }, Patience);
  }

  FaultyCalls calls_;
  QtDialogs dialogs_;
  QtRuntime runtime_{0, nullptr};
  QtFiles files_{calls_};
  QtRegistry registry_;
  QtComponents components_{files_, runtime_.ProgramFolder()};
  JournalFiles journals_{calls_};
  ReplacedFiles replaced_{calls_};
  Platform platform_{files_,      runtime_, dialogs_,   registry_,
                     components_, nullptr,  &journals_, &replaced_};
  ProgramValues values_;
  MfrmProgram window_{platform_, values_};
  QRandomGenerator random_;
  QWidget *input_ = nullptr;
  int keys_ = 0;
};

}  // namespace
}  // namespace velor

int main(int argc, char **argv) {
  velor::RegisterSchemes();
  QApplication application(argc, argv);
  const QString what = QApplication::arguments().value(1);
  const QString file = QApplication::arguments().value(2);
  const int number = QApplication::arguments().value(3).toInt();
  velor::Subject subject;
  QTimer::singleShot(0, [&] {
    if (what == QStringLiteral("restore")) return subject.Restore(number);
    if (what == QStringLiteral("return")) return subject.Return();
    if (!subject.Open(file)) return;
    if (what == QStringLiteral("save")) return subject.Save(number);
    if (what == QStringLiteral("journal")) return subject.Journalise(number);
    if (what == QStringLiteral("source")) subject.OpenSource();
    subject.TypeOn(static_cast<quint32>(number));
  });
  return QApplication::exec();
}
