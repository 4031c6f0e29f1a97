// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"

#include <QString>

namespace velor {

// A save writes the new content to a temporary file `.velor-NUMBER.tmp` beside the page's file and
// renames it over that file. A process that is killed in between leaves a stale one behind.

/// The path of a temporary file in a native folder, under a random name that no other file has.
QString NewTempName(const QString &folder);

/// Takes a lock (flock) that marks the temporary file as in use until `file` is closed.
void MarkTempInUse(int file);

/// Removes the stale temporary files in a native folder. A file stays if another user owns it, a
/// process holds its lock, it has a second name (hard link), or it is younger than a minute, since
/// it may then be about to be locked or renamed. A file that cannot be removed stays too.
void RemoveStaleTempFiles(const QString &folder, FileCalls &calls);

}  // namespace velor
