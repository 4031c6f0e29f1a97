// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/BareView.h"
#include "bench/Children.h"
#include "bench/Figures.h"
#include "bench/Measure.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace velor::bench {

namespace {

QString SmallPage(const QTemporaryDir &folder) {
  const QString path = folder.filePath(QStringLiteral("page.html"));
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write("<html><body><p>Hello</p></body></html>");
  return path;
}

}  // namespace

void StartFigure() {
  Print(Compare(
      QStringLiteral("start to usable window"), QStringLiteral("process"),
      QStringLiteral("bare view's first page"), 7,
      [] { return TimeToReady(QStringLiteral("child-our-window")); },
      [] { return TimeToReady(QStringLiteral("child-bare-window")); }));
}

void MemoryFigure() {
  Figure figure = Compare(
      QStringLiteral("memory"), QStringLiteral("five pages"), QStringLiteral("five bare views"), 3,
      [] { return MemoryOf(QStringLiteral("child-our-five")); },
      [] { return MemoryOf(QStringLiteral("child-bare-five")); });
  figure.unit = QStringLiteral("MB PSS");
  Print(figure);
}

/// The first page brings the engine with it; what more pages leave behind shows beside it.
void MemoryAfterClosingFigure() {
  Figure figure = Compare(
      QStringLiteral("memory"), QStringLiteral("fifty pages opened and closed"),
      QStringLiteral("one page opened and closed"), 2,
      [] { return MemoryOf(QStringLiteral("child-our-fifty-closed")); },
      [] { return MemoryOf(QStringLiteral("child-our-one-closed")); });
  figure.unit = QStringLiteral("MB PSS");
  Print(figure);
}

/// The caret blinks in both.
void IdleFigure() {
  Figure figure = Compare(
      QStringLiteral("processor time while nothing happens"), QStringLiteral("five pages, 20 s"),
      QStringLiteral("five bare views"), 1,
      [] { return IdleTimeOf(QStringLiteral("child-our-five")); },
      [] { return IdleTimeOf(QStringLiteral("child-bare-five")); });
  Print(figure);
}

void ChildBareWindow() {
  const QTemporaryDir folder;
  BareView view;
  view.resize(1280, 860);
  view.show();
  view.LoadFile(SmallPage(folder));
  TellReadyAndWait();
}

void ChildBareFiveViews() {
  const QTemporaryDir folder;
  std::vector<std::unique_ptr<BareView>> views;
  for (int i = 0; i < 5; ++i) {
    views.push_back(std::make_unique<BareView>());
    views.back()->resize(1280, 860);
    views.back()->show();
    views.back()->LoadFile(SmallPage(folder));
  }
  TellReadyAndWait();
}

}  // namespace velor::bench
