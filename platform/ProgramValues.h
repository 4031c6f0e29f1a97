// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <QString>

#include <memory>

namespace velor {

/// The program-wide values, under their published names. There is one instance, owned by main; a
/// class takes those values that it uses. Paths in logic form.
struct ProgramValues {
  /// The command line without the program's name, set first of all; nothing acts upon it.
  QString CommandLine;
  /// Full path of the catalogue database: a folder followed by "\eThumbs.mdb".
  QString DatabasePath;
  /// Full path of the image folder; also the folder picker's answer when it picks that folder.
  QString ImageFolderPath;
  /// The folder picker's answer when it picks a project's folder; empty when cancelled.
  QString ProjectFolderResult;
  /// The one connection to the catalogue: created on first use, opened once, never closed.
  std::unique_ptr<DatabaseConnection> DbConnection;
  /// HTML of the table last built, from the table dialog to the main window; never cleared.
  QString HTMLString;
};

}  // namespace velor
