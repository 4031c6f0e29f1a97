// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Children.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <cstdio>
#include <vector>

namespace velor::bench {

namespace {

constexpr int LimitMs = 300'000;

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

/// A process and all its descendants.
std::vector<qint64> TreeOf(qint64 root) {
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
  return tree;
}

/// A value of a file that the system keeps about a process, in MB; 0 where it has none.
double MegabytesIn(qint64 pid, const char *name, const char *value) {
  QFile file(QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(name)));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray &line : file.readAll().split('\n'))
    if (line.startsWith(value)) return line.simplified().split(' ').at(1).toDouble() / 1024;
  return 0;
}

/// Proportional set size of a process and all its descendants, in MB.
double MemoryOfTree(qint64 root) {
  double megabytes = 0;
  for (const qint64 pid : TreeOf(root)) megabytes += MegabytesIn(pid, "smaps_rollup", "Pss:");
  return megabytes;
}

/// Processor time that a process and all its descendants have had, in milliseconds.
double ProcessorTimeOfTree(qint64 root) {
  double nanoseconds = 0;
  for (const qint64 pid : TreeOf(root)) {
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      QFile times(tasks.filePath(task) + QStringLiteral("/schedstat"));
      if (times.open(QIODevice::ReadOnly))
        nanoseconds += times.readAll().split(' ').at(0).toDouble();
    }
  }
  return nanoseconds / 1e6;
}

}  // namespace

double TimeToReady(const QString &figure) {
  QElapsedTimer timer;
  timer.start();
  const Child child(figure);
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double MemoryOf(const QString &figure) {
  const Child child(figure);
  return MemoryOfTree(child.Pid());
}

double MostMemoryOf(const QString &figure) {
  const Child child(figure);
  return MegabytesIn(child.Pid(), "status", "VmHWM:");
}

double IdleTimeOf(const QString &figure) {
  constexpr unsigned long Settling = 5;
  constexpr unsigned long Watched = 20;
  const Child child(figure);
  QThread::sleep(Settling);
  const double before = ProcessorTimeOfTree(child.Pid());
  QThread::sleep(Watched);
  return ProcessorTimeOfTree(child.Pid()) - before;
}

void ReportReadyAndWait() {
  std::puts("ready");
  std::fflush(stdout);
  QApplication::exec();
}

}  // namespace velor::bench
