// SPDX-License-Identifier: GPL-3.0-or-later
// What keeping a page for a recovery costs: while somebody types, and for each write.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/OurProgram.h"
#include "bench/SamplePage.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Paths.h"
#include "recovery/JournalFiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

namespace velor::bench {

namespace {

constexpr Size Large[] = {Sizes[2], Sizes[3]};

/// Turns the telling of changes on and off.
const char JournalSwitch[] = R"(
  globalThis.told = { push: velor.host.pushMirror, mirror: velor.mirror };
  globalThis.journalling = (on) => {
    velor.host.pushMirror = on ? told.push : () => {};
    velor.mirror = on ? told.mirror : () => null;
    paints.length = 0;
  };
  1)";

/// The program with a page, and somebody who types in it.
class Typist {
 public:
  explicit Typist(const Size &size) {
    QFile file(folder_.filePath(QStringLiteral("page.html")));
    if (file.open(QIODevice::WriteOnly)) file.write(SamplePage(size.bytes));
    file.close();
    modWorkFlow::OpenPage(program_.Context(), ToLogic(file.fileName()));
    WaitUntil([this] { return Page().PendingAction.isEmpty(); });
    Page().DHTML1().SetFocus();
    view_ = Page().findChild<QWebEngineView *>();
    WaitUntil([this] { return Evaluate(QStringLiteral("velor.host !== null")).toBool(); });
    Evaluate(QString::fromLatin1(KeyClock));
    Evaluate(QString::fromLatin1(JournalSwitch));
  }

  /// The mean time of a key, in milliseconds.
  double Type(bool isJournalled) {
    Evaluate(QStringLiteral("journalling(%1)").arg(isJournalled ? 1 : 0));
    constexpr int Keys = 30;
    QWidget *target = view_->focusProxy();
    for (int key = 1; key <= Keys; ++key) {
      QTest::keyClick(target, key % 6 == 0 ? Qt::Key_Space : Qt::Key_X);
      QTest::qWait(40);  // nobody types faster
    }
    WaitUntil([this] { return Evaluate(QStringLiteral("paints.length")).toInt() >= Keys; });
    return Evaluate(QStringLiteral("paints.reduce((sum, time) => sum + time, 0) / paints.length"))
        .toDouble();
  }

 private:
  frmMain &Page() { return *program_.Context().pages.Page(1); }
  QVariant Evaluate(const QString &script) {
    bool done = false;
    QVariant value;
    view_->page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                                 [&](const QVariant &answer) {
                                   value = answer;
                                   done = true;
                                 });
    WaitUntil([&done] { return done; });
    return value;
  }

  QTemporaryDir folder_;
  OurProgram program_;
  QWebEngineView *view_ = nullptr;
};

void TypingFigure(const Size &size) {
  Typist typist(size);
  Print(Compare(
      QStringLiteral("key to paint while the page is journalled"), QLatin1String(size.name),
      QStringLiteral("the same without a journal"), size.rounds, [&] { return typist.Type(true); },
      [&] { return typist.Type(false); }));
}

void AppendFigure(const Size &size) {
  const QTemporaryDir folder;
  const QByteArray stateHome = qgetenv("XDG_STATE_HOME");
  qputenv("XDG_STATE_HOME", folder.path().toLocal8Bit());
  {
    JournalFiles journals;
    const auto journal = journals.Begin();
    JournalledPage page;
    page.page.original = SamplePage(size.bytes);
    page.page.document = QString::fromUtf8(page.page.original);
    journal->Write(page);
    QFile plain(folder.filePath(QStringLiteral("plain")));
    (void)plain.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const auto type = [&page] { page.page.document.insert(page.page.document.size() / 2, u'x'); };
    Print(Compare(
        QStringLiteral("journal append of a key"), QLatin1String(size.name),
        QStringLiteral("the document written plainly"), 9,
        [&] {
          type();
          return Milliseconds([&] { journal->Write(page); });
        },
        [&] { return Milliseconds([&] { plain.write(page.page.document.toUtf8()); }); }));
    Print(Compare(
        QStringLiteral("journal append of a key and its way to the disk"), QLatin1String(size.name),
        QStringLiteral("the document written plainly"), 9,
        [&] {
          type();
          return Milliseconds([&] {
            journal->Write(page);
            journal->Sync();
          });
        },
        [&] { return Milliseconds([&] { plain.write(page.page.document.toUtf8()); }); }));
    journal->Remove();
  }
  qputenv("XDG_STATE_HOME", stateHome);
}

}  // namespace

void JournalFigures() {
  for (const Size &size : Large) AppendFigure(size);
  TypingFigure(Sizes[0]);
  TypingFigure(Sizes[2]);
}

}  // namespace velor::bench
