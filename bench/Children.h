// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor::bench {

// Figures that need a process of their own run this program again with the name of a figure that
// begins with "child-"; it says when it is ready and then waits to be ended.

/// Milliseconds from the start of a child until it says that it is ready.
double TimeToReady(const QString &figure);

/// Proportional set size of a child that is ready and of all its descendants, in MB.
double MemoryOf(const QString &figure);

/// The most memory that a child, without its descendants, had resident until it was ready, in MB.
double MostMemoryOf(const QString &figure);

/// Milliseconds of processor time that a child and all its descendants use in 20 s once they are
/// idle.
double IdleTimeOf(const QString &figure);

/// To be called in a child: says that it is ready and waits to be ended.
void ReportReadyAndWait();

}  // namespace velor::bench
