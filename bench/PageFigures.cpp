// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/BareView.h"
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/SamplePage.h"
#include "platform/EditingCommands.h"
#include "platform/Paths.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/editing/EditingEngine.h"
#include "platform/qt/editing/WebEditor.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <memory>

namespace velor::bench {

namespace {

/// The window that shows our component, with what a listener needs to know.
class OurPage : public EditingListener {
 public:
  explicit OurPage(const QString &programFolder)
      : editor(engine, files, ToLogic(programFolder), &window) {
    editor.SetListener(this);
    window.resize(900, 700);
    editor.Widget()->setGeometry(window.rect());
    window.show();
  }
  void DocumentComplete() override { ++completed; }
  void DisplayChanged() override { ++displayChanges; }
  void ContextMenuRequested(QPoint) override {}
  void MouseNotified(int, int) override {}
  void ComponentReported(const QString &) override {}

  EditingEngine engine;
  QtFiles files;
  QWidget window;
  int completed = 0;
  int displayChanges = 0;
  WebEditor editor;
};

struct Bench {
  Bench() : ours(QDir::rootPath()) {
    theirs.resize(900, 700);
    theirs.show();
  }
  QString File(const Size &size) {
    const QString path = folder.filePath(QString::number(size.bytes) + QStringLiteral(".html"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(SamplePage(size.bytes));
    return path;
  }
  void Load(const QString &path) {
    ours.editor.LoadDocument(ToLogic(path));
    theirs.LoadFile(path);
  }
  QTemporaryDir folder;
  OurPage ours;
  BareView theirs;
};

QWidget *KeyTarget(QWidget *view) {
  QWidget *proxy = view->focusProxy();
  return proxy != nullptr ? proxy : view;
}

/// The widget inside that takes the keys.
QWidget *EngineWidget(QWidget *container) {
  for (QWebEngineView *view : container->findChildren<QWebEngineView *>()) return KeyTarget(view);
  return KeyTarget(container);
}

/// Adds up in the page what the bridge spends on input: from an event's arrival until the bridge's
/// listeners, which are registered before this one, have seen it, and the pushes.
const char BridgeClock[] = R"(
  globalThis.bridgeClock = { spent: 0, pushes: 0 };
  for (const type of ['keydown', 'beforeinput', 'input', 'keyup', 'selectionchange']) {
    let start = 0;
    window.addEventListener(type, () => { start = performance.now(); }, true);
    document.addEventListener(type, () => { bridgeClock.spent += performance.now() - start; }, true);
  }
  const push = velor.push;
  velor.push = () => {
    const start = performance.now();
    push();
    bridgeClock.spent += performance.now() - start;
    bridgeClock.pushes++;
  };
  1)";

QVariant Evaluate(QWidget *container, const QString &script) {
  bool done = false;
  QVariant value;
  container->findChild<QWebEngineView *>()->page()->runJavaScript(
      script, QWebEngineScript::ApplicationWorld, [&](const QVariant &answer) {
        value = answer;
        done = true;
      });
  WaitUntil([&done] { return done; });
  return value;
}

const QString Edit = QStringLiteral("<b>new</b>");

/// One more edit, and then, perhaps after a rest, a save. Without a rest the edit itself is still
/// to be carried out when the save begins: so it is for the bare engine.
void SaveAfterEdit(const QString &name, const Size &size, int rest) {
  Bench bench;
  bench.Load(bench.File(size));
  EditingComponent &editor = bench.ours.editor;
  const QString mine = bench.folder.filePath(QStringLiteral("ours.html"));
  const QString plain = bench.folder.filePath(QStringLiteral("plain.html"));
  Print(Compare(
      name, QLatin1String(size.name),
      rest > 0 ? QStringLiteral("bare outerHTML and a plain write")
               : QStringLiteral("the bare engine's edit, outerHTML and a plain write"),
      size.rounds,
      [&] {
        editor.Document().Selection().CreateRange()->PasteHTML(Edit);
        if (rest > 0) QTest::qWait(rest);
        return Milliseconds([&] { editor.SaveDocument(ToLogic(mine)); });
      },
      [&] {
        return Milliseconds([&] {
          QFile file(plain);
          if (!file.open(QIODevice::WriteOnly)) return;
          const QString html =
              rest > 0 ? bench.theirs.OuterHtml() : bench.theirs.OuterHtmlAfter(Edit);
          file.write(html.toUtf8());
        });
      }));
}

}  // namespace

void BridgeFigures() {
  Bench bench;
  const auto perKey = [&bench](const Size &size) {
    bench.ours.editor.LoadDocument(ToLogic(bench.File(size)));
    bench.ours.editor.SetFocus();
    QWidget *container = bench.ours.editor.Widget();
    QWidget *target = EngineWidget(container);
    Evaluate(container, QString::fromLatin1(BridgeClock));
    target->window()->activateWindow();
    (void)QTest::qWaitForWindowActive(target->window());
    target->setFocus();
    constexpr int keys = 20;
    for (int key = 1; key <= keys; ++key) {
      QTest::keyClick(target, key % 6 == 0 ? Qt::Key_Space : Qt::Key_X);
      WaitUntil(
          [&] { return Evaluate(container, QStringLiteral("bridgeClock.pushes")).toInt() >= key; });
    }
    return Evaluate(container, QStringLiteral("bridgeClock.spent")).toDouble() / keys;
  };
  Print(Compare(
      QStringLiteral("the bridge's share of a key"), QStringLiteral("1 MB"),
      QStringLiteral("the same on a page of 10 KB"), 3, [&] { return perKey(Sizes[2]); },
      [&] { return perKey(Sizes[0]); }));
}

void OpeningFigures() {
  Bench bench;
  for (const Size &size : Sizes) {
    const QString path = bench.File(size);
    std::unique_ptr<QWidget> window;
    std::unique_ptr<WebEditor> editor;
    std::unique_ptr<BareView> view;
    Print(Compare(
        QStringLiteral("open a page in a fresh view"), QLatin1String(size.name),
        QStringLiteral("bare view"), size.rounds,
        [&] {
          editor.reset();
          window = std::make_unique<QWidget>();
          window->resize(900, 700);
          return Milliseconds([&] {
            editor = std::make_unique<WebEditor>(bench.ours.engine, bench.ours.files,
                                                 ToLogic(QDir::rootPath()), window.get());
            editor->Widget()->setGeometry(window->rect());
            window->show();
            editor->LoadDocument(ToLogic(path));
          });
        },
        [&] {
          view.reset();
          return Milliseconds([&] {
            view = std::make_unique<BareView>();
            view->resize(900, 700);
            view->show();
            view->LoadFile(path);
          });
        }));
  }
}

void KeyFigures() {
  Bench bench;
  for (const Size &size : Sizes) {
    if (size.bytes > 1'000'000) continue;
    bench.Load(bench.File(size));
    bench.ours.editor.SetFocus();
    QWidget *ourKeys = EngineWidget(bench.ours.editor.Widget());
    QWidget *theirKeys = KeyTarget(&bench.theirs);
    const auto press = [](QWidget *target, const int &counter) {
      target->window()->activateWindow();
      (void)QTest::qWaitForWindowActive(target->window());
      target->setFocus();
      QTest::qWait(40);  // nobody types faster
      const int before = counter;
      return Milliseconds([&] {
        QTest::keyClick(target, Qt::Key_X);
        WaitUntil([&] { return counter > before; });
      });
    };
    Print(Compare(
        QStringLiteral("key to refreshed toolbar"), QLatin1String(size.name),
        QStringLiteral("bare view's key to selection change"), 15,
        [&] { return press(ourKeys, bench.ours.displayChanges); },
        [&] { return press(theirKeys, bench.theirs.selectionChanges); }));
  }
}

void ReadingFigures() {
  Bench bench;
  for (const Size &size : Sizes) {
    bench.Load(bench.File(size));
    Print(Compare(
        QStringLiteral("read the document"), QLatin1String(size.name),
        QStringLiteral("bare outerHTML"), size.rounds,
        [&] { return Milliseconds([&] { (void)bench.ours.editor.DocumentHTML(); }); },
        [&] { return Milliseconds([&] { (void)bench.theirs.OuterHtml(); }); }));
  }
}

/// After a person has rested for a moment, what a save writes has been worked out; straight after a
/// key it has to be found and verified first.
void SavingAfterAnEditFigures() {
  constexpr int rest = 4000;  // milliseconds
  SaveAfterEdit(QStringLiteral("save after an edit and a rest"), Sizes[2], rest);
  for (const Size &size : Sizes)
    SaveAfterEdit(QStringLiteral("save straight after an edit"), size, 0);
}

void SavingFigures() {
  Bench bench;
  for (const Size &size : Sizes) {
    bench.Load(bench.File(size));
    EditingComponent &editor = bench.ours.editor;
    editor.ExecCommand(Number(EditingCommand::SelectAll));
    editor.ExecCommand(Number(EditingCommand::JustifyCenter));
    const QString mine = bench.folder.filePath(QStringLiteral("ours.html"));
    const QString plain = bench.folder.filePath(QStringLiteral("plain.html"));
    Print(Compare(
        QStringLiteral("save the document"), QLatin1String(size.name),
        QStringLiteral("bare outerHTML and a plain write"), size.rounds,
        [&] { return Milliseconds([&] { bench.ours.editor.SaveDocument(ToLogic(mine)); }); },
        [&] {
          return Milliseconds([&] {
            QFile file(plain);
            if (file.open(QIODevice::WriteOnly)) file.write(bench.theirs.OuterHtml().toUtf8());
          });
        }));
  }
}

}  // namespace velor::bench
