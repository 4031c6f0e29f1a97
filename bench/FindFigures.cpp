// SPDX-License-Identifier: GPL-3.0-or-later
// What a key in the find bar costs in the page: all matches found, one selected, those in sight
// marked. What the status bar's menu costs, which counts the page's words.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/PageBench.h"
#include "bench/SamplePage.h"

namespace velor::bench {

namespace {

/// Milliseconds in the page until the script's effects are laid out.
double TimeOf(QWidget *container, const QString &before, const QString &deed) {
  static int count = 0;
  return Evaluate(container, QStringLiteral("%1; document.body.offsetHeight;"
                                            "const begun%3 = performance.now(); %2;"
                                            "document.body.offsetHeight;"
                                            "performance.now() - begun%3")
                                 .arg(before, deed)
                                 .arg(++count))
      .toDouble();
}

}  // namespace

void FindFigures() {
  PageBench bench;
  const auto compare = [&](const QString &title, const Size &size, const QString &before) {
    Print(Compare(
        title, QLatin1String(size.name), QStringLiteral("the engine's own search for one match"), 5,
        [&] {
          return TimeOf(bench.ours.editor.Widget(), before,
                        QStringLiteral("velor.find({ words: 'an' }, 'here')"));
        },
        [&] { return TimeOf(&bench.theirs, QString(), QStringLiteral("window.find('an')")); }));
  };
  for (const Size &size : {Sizes[1], Sizes[2]}) {
    bench.Load(bench.File(size));
    Print(Compare(
        QStringLiteral("words and characters counted"), QLatin1String(size.name),
        QStringLiteral("the engine's own text split at blanks"), 5,
        [&] {
          return TimeOf(bench.ours.editor.Widget(), QString(), QStringLiteral("velor.counts()"));
        },
        [&] {
          return TimeOf(&bench.theirs, QString(),
                        QStringLiteral("document.body.innerText.split(/\\s+/).length"));
        }));
    compare(QStringLiteral("first key in the find bar"), size, QStringLiteral("velor.endFind()"));
    compare(QStringLiteral("next key in the find bar"), size,
            QStringLiteral("velor.find({ words: 'a' }, 'here')"));
  }
}

}  // namespace velor::bench
