// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/PageBench.h"
#include "bench/SamplePage.h"
#include "platform/EditingCommands.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

namespace velor::bench {

namespace {

const QString Edit = QStringLiteral("<b>new</b>");

/// One more edit, and then, perhaps after a rest, a save. Without a rest the edit itself is still
/// to be carried out when the save begins: so it is for the bare engine.
void SaveAfterEdit(const QString &name, const Size &size, int rest) {
  PageBench bench;
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

void OpeningFigures() {
  PageBench bench;
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
  PageBench bench;
  for (const Size &size : Sizes) {
    if (size.bytes > 1'000'000) continue;
    bench.Load(bench.File(size));
    bench.ours.editor.SetFocus();
    QWidget *ourKeys = EngineWidget(bench.ours.editor.Widget());
    QWidget *theirKeys = KeyTarget(&bench.theirs);
    const auto press = [](QWidget *target, const int &counter) {
      Focus(target);
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
  PageBench bench;
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
  constexpr int Rest = 4000;  // milliseconds
  SaveAfterEdit(QStringLiteral("save after an edit and a rest"), Sizes[2], Rest);
  for (const Size &size : Sizes)
    SaveAfterEdit(QStringLiteral("save straight after an edit"), size, 0);
}

void SavingFigures() {
  PageBench bench;
  for (const Size &size : Sizes) {
    bench.Load(bench.File(size));
    EditingComponent &editor = bench.ours.editor;
    editor.ExecCommand(EditingCommand::SelectAll);
    editor.ExecCommand(EditingCommand::JustifyCenter);
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
