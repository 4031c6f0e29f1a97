// SPDX-License-Identifier: GPL-3.0-or-later
// What the waves under unknown words cost a key.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/PageBench.h"
#include "bench/SamplePage.h"
#include "editor/SourceSpelling.h"
#include "qt/QsciSourceControl.h"
#include "qt/SystemSpelling.h"

#include <QTest>

namespace velor::bench {

namespace {

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

/// The mean time of a key in a source, from the press to the paint, in milliseconds.
double TypeInSource(QsciSourceControl &source, SourceSpelling &words, bool hasWaves) {
  constexpr int Keys = 30;
  constexpr int Rest = 2'000;
  words.ShowWaves(hasWaves);
  QTest::qWait(Rest);
  double spent = 0;
  for (int key = 1; key <= Keys; ++key) {
    // Some keys come while words are judged.
    QTest::qWait(key % 10 == 0 ? 300 : 40);
    spent += Milliseconds([&] {
      QTest::keyClick(source.Widget(), key % 6 == 0 ? Qt::Key_Space : Qt::Key_X);
      source.Widget()->repaint();
    });
  }
  return spent / Keys;
}

void SourceSpellingFigures(Spelling &spelling) {
  QWidget window;
  window.resize(900, 700);
  QsciSourceControl source(&window, SourceAccess::Edit);
  source.Widget()->resize(window.size());
  SourceSpelling words(source, SourceAccess::Edit, [](const QString &) {});
  source.SetTextListener([&words] { words.TextChanged(); });
  source.SetSelectionListener([&words] { words.CaretMoved(); });
  words.Use(&spelling, {});
  window.show();
  for (const Size &size : {Sizes[0], Sizes[2]}) {
    const QString text = QString::fromUtf8(SamplePage(size.bytes));
    source.SetText(text);
    const qsizetype place = text.indexOf(QStringLiteral("lazy"), text.size() / 2);
    source.Select({place, place});
    Print(Compare(
        QStringLiteral("key to paint in the source with waves"), QLatin1String(size.name),
        QStringLiteral("the same without waves"), 5,
        [&] { return TypeInSource(source, words, true); },
        [&] { return TypeInSource(source, words, false); }));
  }
}

}  // namespace

void SpellingFigures() {
  PageBench bench;
  HunspellSpelling spelling(bench.ours.files, SystemSpelling(),
                            [] { return QStringLiteral("en"); });
  SourceSpellingFigures(spelling);
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
