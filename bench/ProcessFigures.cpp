// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/BareView.h"
#include "bench/Figures.h"
#include "bench/Measure.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <memory>
#include <vector>

namespace velor::bench {

namespace {

constexpr int LimitMs = 60000;

void Tell(const char *word) {
  std::puts(word);
  std::fflush(stdout);
}

/// A child of this program that has said it is ready.
class Child {
 public:
  explicit Child(const QString &figure) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QCoreApplication::applicationFilePath(), {figure});
    while (!process_.canReadLine() && process_.waitForReadyRead(LimitMs)) {
    }
  }
  ~Child() {
    process_.kill();
    process_.waitForFinished(LimitMs);
  }
  Child(const Child &) = delete;
  Child &operator=(const Child &) = delete;

  qint64 Pid() const { return process_.processId(); }

 private:
  QProcess process_;
};

double TimeToReady(const QString &figure) {
  QElapsedTimer timer;
  timer.start();
  const Child child(figure);
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Proportional set size of a process and all its descendants, in MB.
double MemoryOfTree(qint64 root) {
  std::vector<qint64> tree = {root};
  for (std::size_t i = 0; i < tree.size(); ++i) {
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(tree[i]));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      QFile children(tasks.filePath(task) + QStringLiteral("/children"));
      if (!children.open(QIODevice::ReadOnly)) continue;
      for (const QByteArray &pid : children.readAll().simplified().split(' '))
        if (!pid.isEmpty()) tree.push_back(pid.toLongLong());
    }
  }
  double kilobytes = 0;
  for (const qint64 pid : tree) {
    QFile rollup(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!rollup.open(QIODevice::ReadOnly)) continue;
    for (const QByteArray &line : rollup.readAll().split('\n'))
      if (line.startsWith("Pss:")) kilobytes += line.simplified().split(' ').at(1).toDouble();
  }
  return kilobytes / 1024;
}

double MemoryOf(const QString &figure) {
  const Child child(figure);
  return MemoryOfTree(child.Pid());
}

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

void ChildBareWindow() {
  const QTemporaryDir folder;
  BareView view;
  view.resize(1280, 860);
  view.show();
  view.LoadFile(SmallPage(folder));
  Tell("ready");
  QApplication::exec();
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
  Tell("ready");
  QApplication::exec();
}

}  // namespace velor::bench
