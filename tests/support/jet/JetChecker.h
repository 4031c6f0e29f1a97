// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace velor::fixture {

/// Everything about a Jet 4 file's structure that is not as it should be, one sentence each; empty
/// for a sound file. Looks at the header, page headers and slots, free counts, row boundaries,
/// usage maps (global, owned, free), row counts, pointers of moved rows, memo chains, and index
/// entries against the live rows. Shares no code with the program's own reader.
QStringList JetComplaints(const QByteArray &file);

}  // namespace velor::fixture
