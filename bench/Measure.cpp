// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Measure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace velor::bench {

const char KeyClock[] = R"(
  globalThis.paints = [];
  addEventListener('keydown', ({ timeStamp }) => requestAnimationFrame(() => {
    const { port1, port2 } = new MessageChannel();
    port1.onmessage = () => paints.push(performance.now() - timeStamp);
    port2.postMessage(0);
  }), true);
  1)";

double Milliseconds(const std::function<void()> &work) {
  QElapsedTimer timer;
  timer.start();
  work();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void WaitUntil(const std::function<bool()> &condition) {
  QEventLoop loop;
  QTimer pump;
  pump.setTimerType(Qt::PreciseTimer);
  QObject::connect(&pump, &QTimer::timeout, &loop, [&] {
    QCoreApplication::sendPostedEvents();
    if (condition()) loop.quit();
  });
  QTimer::singleShot(std::chrono::minutes(2), &loop, &QEventLoop::quit);
  pump.start(1);
  if (!condition()) loop.exec();
}

Figure Compare(const QString &name, const QString &subject, const QString &peer, int rounds,
               const std::function<double()> &ours, const std::function<double()> &theirs) {
  Figure figure;
  figure.name = name;
  figure.subject = subject;
  figure.peer = peer;
  for (int round = 0; round <= rounds; ++round) {
    const double a = ours();
    const double b = theirs();
    if (round == 0) continue;
    figure.ours.push_back(a);
    figure.theirs.push_back(b);
  }
  return figure;
}

double Median(std::vector<double> values) {
  if (values.empty()) return std::nan("");
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void Print(const Figure &figure) {
  const double ours = Median(figure.ours);
  const double theirs = Median(figure.theirs);
  const auto rounded = [](double value) { return std::round(value * 1000) / 1000; };
  QJsonObject line{{QStringLiteral("figure"), figure.name},
                   {QStringLiteral("subject"), figure.subject},
                   {QStringLiteral("unit"), figure.unit},
                   {QStringLiteral("ours"), rounded(ours)},
                   {QStringLiteral("peer"), figure.peer},
                   {QStringLiteral("theirs"), rounded(theirs)},
                   {QStringLiteral("ratio"), rounded(ours / theirs)},
                   {QStringLiteral("rounds"), static_cast<int>(figure.ours.size())}};
  std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
  std::fflush(stdout);
}

}  // namespace velor::bench
