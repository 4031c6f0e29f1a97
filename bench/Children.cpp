// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Children.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <vector>

namespace velor::bench {

namespace {

constexpr int LimitMs = 60000;

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

void TellReadyAndWait() {
  std::puts("ready");
  std::fflush(stdout);
  QApplication::exec();
}

}  // namespace velor::bench
