// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace velor {

/// The calls of several fakes in one order, as "Name(arguments)". A fake without a log notes
/// nothing.
using CallLog = std::vector<QString>;

inline void Note(CallLog *log, const QString &call) {
  if (log != nullptr) log->push_back(call);
}

}  // namespace velor
