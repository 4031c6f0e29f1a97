// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// Name and process number, for people, of the program of this machine that holds a lock on a file.
/// Empty where they are not known (a lock of another machine, a process of another user).
QString LockHolder(const QString &nativePath);

}  // namespace velor
