// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace velor::bench {

/// Milliseconds that `work` takes.
double Milliseconds(const std::function<void()> &work);

/// Runs the event loop until the condition holds, looking every millisecond. Posted events are
/// pumped by the same timer: the engine's answers may otherwise lie in the queue.
void WaitUntil(const std::function<bool()> &condition);

/// A script for a page that notes for each key, in `paints`, how many milliseconds it took from the
/// press to the task behind the frame that shows it.
extern const char KeyClock[];

/// One figure: the same work done by this program and by a bare peer, in turn, in the same run.
/// Only the ratio means anything on a shared machine; the times are there to judge it by.
struct Figure {
  QString name;
  /// What the figure was taken on ("10 KB", "five pages").
  QString subject;
  QString unit = QStringLiteral("ms");
  QString peer;
  std::vector<double> ours;
  std::vector<double> theirs;
};

/// Runs both `rounds` times in turn after one uncounted round.
Figure Compare(const QString &name, const QString &subject, const QString &peer, int rounds,
               const std::function<double()> &ours, const std::function<double()> &theirs);

double Median(std::vector<double> values);

/// Prints the figure as one line of JSON on standard output: medians and their ratio.
void Print(const Figure &figure);

}  // namespace velor::bench
