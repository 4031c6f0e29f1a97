// SPDX-License-Identifier: GPL-3.0-or-later
// What the bridge spends in the page: on a key in pages of many shapes, on commands over a word and
// over all of a page.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/PageBench.h"
#include "bench/SamplePage.h"
#include "platform/Paths.h"

#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

namespace velor::bench {

namespace {

/// Adds up what the bridge's listeners, observers, frames and pushes take, in milliseconds; put in
/// before the bridge is, so that it changes nothing of the order in which things happen.
const char Clock[] = R"(
  globalThis.bridgeClock = { spent: 0, pushes: 0 };
  {
    let inside = false;
    globalThis.bridgeTimed = (work) => function (...rest) {
      if (inside) return work.apply(this, rest);
      inside = true;
      const start = performance.now();
      try {
        return work.apply(this, rest);
      } finally {
        bridgeClock.spent += performance.now() - start;
        inside = false;
      }
    };
    const listen = document.addEventListener;
    document.addEventListener = (type, work, capture) =>
      listen.call(document, type, bridgeTimed(work), capture);
    const { queueMicrotask, requestAnimationFrame, MutationObserver } = globalThis;
    globalThis.queueMicrotask = (work) => queueMicrotask(bridgeTimed(work));
    globalThis.requestAnimationFrame = (work) => requestAnimationFrame(bridgeTimed(work));
    globalThis.MutationObserver = class extends MutationObserver {
      constructor(work) { super(bridgeTimed(work)); }
    };
  })";
const char ClockPushes[] =
    "{ const { pushState } = velor.host;"
    "velor.host.pushState = (told) => { pushState(told); bridgeClock.pushes++; }; } 1";

/// Puts the caret into the text in the middle of the page.
const char PlaceCaret[] = R"(
  {
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const texts = [];
    while (walker.nextNode()) if (walker.currentNode.data.trim()) texts.push(walker.currentNode);
    globalThis.middle = texts[texts.length >> 1];
    getSelection().collapse(middle, middle.length >> 1);
    middle.parentElement.scrollIntoView();
  } 1)";
const char SelectWord[] = "getSelection().setBaseAndExtent(middle, 0, middle, 3);";

void AddClock(QWidget *container) {
  QWebEngineScript script;
  script.setSourceCode(QString::fromLatin1(Clock));
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(QWebEngineScript::ApplicationWorld);
  container->findChild<QWebEngineView *>()->page()->scripts().insert(script);
}

/// Milliseconds of the bridge's for a key, on the page at `path`.
double ShareOfAKey(PageBench &bench, const QString &path) {
  constexpr int Keys = 10;
  QWidget *container = bench.ours.editor.Widget();
  bench.ours.editor.SetDocumentHTML(QStringLiteral("<p>in between</p>"));
  bench.ours.editor.LoadDocument(ToLogic(path));
  bench.ours.editor.SetFocus();
  Evaluate(container, QString::fromLatin1(ClockPushes));
  QWidget *target = EngineWidget(container);
  Focus(target);
  Evaluate(container, QString::fromLatin1(PlaceCaret));
  const auto pushes = [&] {
    return Evaluate(container, QStringLiteral("bridgeClock.pushes")).toInt();
  };
  double before = 0;
  for (int key = 0; key <= Keys; ++key) {
    const int told = pushes();
    QTest::keyClick(target, key % 6 == 5 ? Qt::Key_Space : Qt::Key_X);
    WaitUntil([&] { return pushes() > told; });
    // The first one finds a page that has just been laid out.
    if (key == 0) before = Evaluate(container, QStringLiteral("bridgeClock.spent")).toDouble();
  }
  return (Evaluate(container, QStringLiteral("bridgeClock.spent")).toDouble() - before) / Keys;
}

struct Command {
  const char *name;
  const char *ours;    ///< arguments of velor.exec
  const char *theirs;  ///< of document.execCommand
};
constexpr Command WordCommands[] = {
    {"bold", "5000", "'bold'"},
    {"font", "5044, 'Arial'", "'fontName', false, 'Arial'"},
    {"text colour", "5046, '#FF0000'", "'foreColor', false, '#FF0000'"},
    {"centre", "5024", "'justifyCenter'"},
    {"bulleted list", "5051", "'insertUnorderedList'"},
    {"indent", "5018", "'indent'"},
    {"heading", "5043, 'Heading 1'", "'formatBlock', false, 'h1'"},
};
// The bare engine takes minutes over a list of all.
constexpr Command PageCommands[] = {WordCommands[0], WordCommands[2], WordCommands[3],
                                    WordCommands[6]};

/// Milliseconds in the page from the command to its laid out result; the command is taken back
/// again, which `undone` has the time of.
double CommandTime(QWidget *container, const QString &select, const QString &command,
                   const QString &undo, double *undone) {
  const QString script = QStringLiteral(
      "%1 document.body.offsetHeight; const start%4 = performance.now();"
      "%2; document.body.offsetHeight; const middle%4 = performance.now();"
      "%3; document.body.offsetHeight;"
      "[middle%4 - start%4, performance.now() - middle%4]");
  static int count = 0;
  const QVariantList times =
      Evaluate(container, script.arg(select, command, undo).arg(++count)).toList();
  if (undone != nullptr) *undone = times.value(1).toDouble();
  return times.value(0).toDouble();
}

void CommandFigures(PageBench &bench, const Size &size, const QString &title, const QString &select,
                    const Command &command, int rounds) {
  Figure undo;
  undo.name = QStringLiteral("%1 undone").arg(title);
  undo.subject = QLatin1String(size.name);
  undo.peer = QStringLiteral("the engine's own undo");
  const auto timed = [&](QWidget *container, const QString &deed, const QString &back,
                         std::vector<double> &undone) {
    double taken = 0;
    const double time = CommandTime(container, select, deed, back, &taken);
    undone.push_back(taken);
    return time;
  };
  Print(Compare(
      title, QLatin1String(size.name), QStringLiteral("the engine's own command"), rounds,
      [&] {
        return timed(bench.ours.editor.Widget(),
                     QStringLiteral("velor.exec(%1)").arg(QLatin1String(command.ours)),
                     QStringLiteral("velor.exec(5049)"), undo.ours);
      },
      [&] {
        return timed(&bench.theirs,
                     QStringLiteral("document.execCommand(%1)").arg(QLatin1String(command.theirs)),
                     QStringLiteral("document.execCommand('undo')"), undo.theirs);
      }));
  Print(undo);
}

}  // namespace

void BridgeFigures() {
  PageBench bench;
  bench.ours.editor.SetDocumentHTML(QStringLiteral("<p>first</p>"));
  AddClock(bench.ours.editor.Widget());
  const QString small = bench.File(Sizes[0]);
  const QString large = bench.File(Sizes[2]);
  const auto compare = [&](const QString &subject, const QString &path) {
    Print(Compare(
        QStringLiteral("the bridge's share of a key"), subject,
        QStringLiteral("the same on a page of 10 KB"), 3, [&] { return ShareOfAKey(bench, path); },
        [&] { return ShareOfAKey(bench, small); }));
  };
  compare(QStringLiteral("1 MB"), large);
  for (const Shape &shape : Shapes)
    compare(QLatin1String(shape.name), bench.File(QStringLiteral("shape.html"), ShapedPage(shape)));
}

void CommandFigures() {
  PageBench bench;
  bench.Load(bench.File(Sizes[2]));
  for (QWidget *view : {bench.ours.editor.Widget(), static_cast<QWidget *>(&bench.theirs)})
    Evaluate(view, QString::fromLatin1(PlaceCaret));
  for (const Command &command : WordCommands)
    CommandFigures(bench, Sizes[2],
                   QStringLiteral("%1 over a word").arg(QLatin1String(command.name)),
                   QString::fromLatin1(SelectWord), command, 5);
  bench.Load(bench.File(Sizes[1]));
  for (const Command &command : PageCommands)
    CommandFigures(bench, Sizes[1],
                   QStringLiteral("%1 over all of the page").arg(QLatin1String(command.name)),
                   QStringLiteral("getSelection().selectAllChildren(document.body);"), command, 3);
}

}  // namespace velor::bench
