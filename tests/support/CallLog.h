// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace velor {

/// What several fakes were asked, in the order in which they were asked it, as "Name(arguments)".
/// A fake that is given no log keeps quiet.
using CallLog = std::vector<QString>;

inline void Note(CallLog *log, const QString &call) {
  if (log != nullptr) log->push_back(call);
}

}  // namespace velor
