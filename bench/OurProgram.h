// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/MfrmProgram.h"
#include "platform/ProgramValues.h"

#include <QTemporaryDir>

#include <memory>

namespace velor {

struct RealPlatform;
struct EditorContext;

namespace bench {

/// The program as it starts, in a scratch program folder, its window on the screen.
class OurProgram {
 public:
  OurProgram();
  ~OurProgram();

  EditorContext &Context() { return window_->Context(); }

 private:
  QTemporaryDir folder_;
  ProgramValues values_;
  std::unique_ptr<RealPlatform> real_;
  std::unique_ptr<MfrmProgram> window_;
};

}  // namespace bench
}  // namespace velor
