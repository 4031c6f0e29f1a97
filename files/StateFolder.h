// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// The native folder for files of the program itself that outlive a run (journals, replaced
/// versions, lists of copies):
/// `$XDG_STATE_HOME/velor-web-creator`, by default below `~/.local/state`. It need not exist.
QString StateFolder();

/// Makes a native folder and what is missing above it, for its owner alone. Raises RuntimeError;
/// also where something of that name is there that is no folder, or is another user's.
void MakePrivateFolder(const QString &folder);

}  // namespace velor
