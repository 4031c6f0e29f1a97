// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/QtFileWatches.h"
#include "files/QtFiles.h"
#include "files/ReplacedFiles.h"
#include "files/TemporaryCopyFiles.h"
#include "platform/Platform.h"
#include "qt/QtComponents.h"
#include "qt/QtDialogs.h"
#include "qt/QtRegistry.h"
#include "qt/QtRuntime.h"
#include "qt/QtWindowSystem.h"
#include "qt/SystemSpelling.h"
#include "recovery/JournalFiles.h"
#include "spelling/HunspellSpelling.h"

namespace velor {

/// All services of the real environment. Made after the application object; outlives every window.
struct RealPlatform {
  RealPlatform(int argc, char **argv) : runtime(argc, argv) {}

  QtDialogs dialogs;
  QtRuntime runtime;
  QtFiles files;
  QtRegistry registry;
  QtComponents components{files, runtime.ProgramFolder()};
  QtWindowSystem windows;
  JournalFiles journals;
  ReplacedFiles replaced;
  TemporaryCopyFiles copies;
  QtFileWatches watches;
  /// Of pages that name none.
  QString ownLanguage = QStringLiteral("en");
  HunspellSpelling spelling{files, SystemSpelling(), [this] { return ownLanguage; }};
  Platform parts{files,     runtime,   dialogs, registry, components, &windows,
                 &journals, &replaced, &copies, &watches, &spelling};
};

}  // namespace velor
