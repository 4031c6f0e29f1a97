// SPDX-License-Identifier: GPL-3.0-or-later
// The program's window with somebody who types without end, or types and saves. To be killed.
// Usage: velor-crash-subject FILE SEED [STEP]
// Types the alphabet again and again into the page and prints a line for each key. With STEP it
// types one alphabet, and saves; the process then ends before that call of the save that changes a
// file, or prints "saved".
#include "app/window/MfrmProgram.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/ProgramValues.h"
#include "platform/qt/QtComponents.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/QtRegistry.h"
#include "platform/qt/QtRuntime.h"
#include "platform/qt/editing/PageScheme.h"
#include "platform/qt/files/JournalFiles.h"
#include "platform/qt/files/ReplacedFiles.h"
#include "tests/support/FaultyCalls.h"

#include <QApplication>
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
  Subject(const QString &file, quint32 seed) : random_(seed) {
    window_.Load();
    window_.SharedFileDialog().FileName = ToLogic(file);
    modWorkFlow::OpenPage(window_.Context(), ToLogic(file));
    if (!QTest::qWaitFor([this] { return Page().PendingAction.isEmpty(); }, 20'000)) return;
    Page().DHTML1().SetFocus();
    input_ = Page().findChild<QWebEngineView *>()->focusProxy();
    QTest::keyClick(input_, Qt::Key_End, Qt::ControlModifier);
    Tell(QStringLiteral("ready"));
  }

  /// Between two keys as a person leaves it: mostly little, now and then a pause.
  void TypeOn() {
    TypeLetter();
    const int wait = random_.bounded(20) == 0 ? 700 : static_cast<int>(random_.bounded(5, 120));
    QTimer::singleShot(wait, input_, [this] { TypeOn(); });
  }

  void TypeAndSave(int step) {
    for (int i = 0; i < Letters; ++i) TypeLetter();
    const QString all = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
    if (!QTest::qWaitFor([&] { return Page().DHTML1().Memory().document.contains(all); }, 20'000))
      return;
    // What was typed a moment ago may be lost; here it was typed a while before.
    Page().Journal().Catch();
    calls_.KillBefore(step);
    modWorkFlow::SavePage(window_.Context(), Page(), window_.SharedFileDialog(),
                          window_.Context().pages.Record(1), false);
    Tell(QStringLiteral("saved"));
  }

 private:
  frmMain &Page() { return *window_.Context().pages.Page(1); }
  void TypeLetter() {
    QTest::keyClick(input_, static_cast<char>('a' + keys_ % Letters));
    Tell(QStringLiteral("key %1").arg(++keys_));
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
  velor::RegisterPageScheme();
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  velor::Subject subject(arguments.value(1), arguments.value(2).toUInt());
  QTimer::singleShot(0, [&] {
    if (arguments.size() > 3) {
      subject.TypeAndSave(arguments[3].toInt());
    } else {
      subject.TypeOn();
    }
  });
  return QApplication::exec();
}
