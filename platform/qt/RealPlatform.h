// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "platform/qt/QtComponents.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/QtRegistry.h"
#include "platform/qt/QtRuntime.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/qt/files/JournalFiles.h"
#include "platform/qt/files/ReplacedFiles.h"

namespace velor {

/// The real environment, composed. Made after the application object; outlives every window.
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
  Platform parts{files, runtime, dialogs, registry, components, &windows, &journals, &replaced};
};

}  // namespace velor
