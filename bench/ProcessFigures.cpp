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

double GainFrom(const char *one, const char *many) {
  return MemoryOf(QString::fromLatin1(many)) - MemoryOf(QString::fromLatin1(one));
}

void OpenAndClose(int views) {
  const QTemporaryDir folder;
  for (int i = 0; i < views; ++i) {
    BareView view;
    view.resize(1280, 860);
    view.show();
    view.LoadFile(SmallPage(folder));
  }
  ReportReadyAndWait();
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

void MemoryAfterClosingFigure() {
  Figure figure = Compare(
      QStringLiteral("memory gained from the second page to the fiftieth"),
      QStringLiteral("pages opened and closed"), QStringLiteral("bare views"), 2,
      [] { return GainFrom("child-our-one-closed", "child-our-fifty-closed"); },
      [] { return GainFrom("child-bare-one-closed", "child-bare-fifty-closed"); });
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
  ReportReadyAndWait();
}

void ChildBareOneClosed() {
  OpenAndClose(1);
}

void ChildBareFiftyClosed() {
  OpenAndClose(50);
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
  ReportReadyAndWait();
}

}  // namespace velor::bench
