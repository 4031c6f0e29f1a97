// SPDX-License-Identifier: GPL-3.0-or-later
// From a key to what the toolbar of the whole program shows of it.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/OurProgram.h"
#include "bench/PageBench.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Paths.h"

#include <QAction>
#include <QApplication>
#include <QTest>

namespace velor::bench {

namespace {

/// A page in which every move of the caret changes whether bold is on.
QByteArray AlternatingPage(int bytes) {
  return SamplePage(bytes).replace("<body>",
                                   "<body><p>" + QByteArray("<b>x</b>y").repeated(40) + "</p>");
}

}  // namespace

void ToolbarFigure() {
  OurProgram program;
  PageBench bench;
  const Size &size = Sizes[0];
  const QString path = bench.File(QStringLiteral("alternating.html"), AlternatingPage(size.bytes));
  modWorkFlow::OpenPage(program.Context(), ToLogic(path));
  frmMain &page = *program.Context().pages.Page(1);
  WaitUntil([&page] { return page.PendingAction.isEmpty(); });
  bench.theirs.LoadFile(path);
  const QAction *bold = nullptr;
  for (const QAction *action : page.window()->findChildren<QAction *>())
    if (action->isCheckable() && action->data().toString() == QStringLiteral("bold")) bold = action;
  if (bold == nullptr) qFatal("the toolbar has no button for bold");
  QWidget *ourKeys = EngineWidget(&page);
  QWidget *theirKeys = KeyTarget(&bench.theirs);
  const auto press = [](QWidget *target, const std::function<bool()> &told) {
    Focus(target);
    QTest::qWait(40);  // nobody types faster
    return Milliseconds([&] {
      QTest::keyClick(target, Qt::Key_Right);
      WaitUntil(told);
    });
  };
  Print(Compare(
      QStringLiteral("arrow key to the Bold button"), QLatin1String(size.name),
      QStringLiteral("bare view's key to selection change"), 15,
      [&] {
        const bool before = bold->isChecked();
        return press(ourKeys, [&] { return bold->isChecked() != before; });
      },
      [&] {
        const int before = bench.theirs.selectionChanges;
        return press(theirKeys, [&] { return bench.theirs.selectionChanges > before; });
      }));
}

}  // namespace velor::bench
