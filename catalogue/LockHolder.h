// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// The program of this machine that holds a lock on a file: its name and process number, for
/// people. Empty where that cannot be told (another machine's lock, another user's process).
QString LockHolder(const QString &nativePath);

}  // namespace velor
