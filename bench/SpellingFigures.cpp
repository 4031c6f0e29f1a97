// SPDX-License-Identifier: GPL-3.0-or-later
// What the waves under unknown words cost a key.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/PageBench.h"
#include "bench/SamplePage.h"
#include "qt/SystemSpelling.h"

#include <QTest>

namespace velor::bench {

namespace {

/// Notes for each key how long it took from the press to the task behind the frame that shows it.
const char KeyClock[] = R"(
  globalThis.paints = [];
  addEventListener('keydown', ({ timeStamp }) => requestAnimationFrame(() => {
    const { port1, port2 } = new MessageChannel();
    port1.onmessage = () => paints.push(performance.now() - timeStamp);
    port2.postMessage(0);
  }), true);
  1)";

/// The mean time of a key, in milliseconds.
double Type(PageBench &bench, bool hasWaves) {
  constexpr int Keys = 30;
  constexpr int Rest = 800;  // milliseconds, until the waves are there or gone
  QWidget *page = bench.ours.editor.Widget();
  bench.ours.editor.SpellCheck()->ShowWaves(hasWaves);
  QTest::qWait(Rest);
  Evaluate(page, QStringLiteral("paints.length = 0"));
  QWidget *target = EngineWidget(page);
  Focus(target);
  for (int key = 1; key <= Keys; ++key) {
    QTest::keyClick(target, key % 6 == 0 ? Qt::Key_Space : Qt::Key_X);
    QTest::qWait(40);  // nobody types faster
  }
  WaitUntil([&] { return Evaluate(page, QStringLiteral("paints.length")).toInt() >= Keys; });
  return Evaluate(page,
                  QStringLiteral("paints.reduce((sum, time) => sum + time, 0) / paints.length"))
      .toDouble();
}

}  // namespace

void SpellingFigures() {
  PageBench bench;
  HunspellSpelling spelling(bench.ours.files, SystemSpelling(),
                            [] { return QStringLiteral("en"); });
  bench.ours.editor.SpellCheck()->Use(&spelling, {});
  for (const Size &size : {Sizes[0], Sizes[2]}) {
    bench.Load(bench.File(size));
    Evaluate(bench.ours.editor.Widget(), QString::fromLatin1(KeyClock));
    Print(Compare(
        QStringLiteral("key to paint with waves under unknown words"), QLatin1String(size.name),
        QStringLiteral("the same without waves"), 9, [&] { return Type(bench, true); },
        [&] { return Type(bench, false); }));
  }
}

}  // namespace velor::bench
