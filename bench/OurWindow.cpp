// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Children.h"
#include "bench/Figures.h"
#include "bench/OurProgram.h"
#include "editor/modWorkFlow.h"

namespace velor::bench {

void ChildOurWindow() {
  const OurProgram program;
  TellReadyAndWait();
}

void ChildOurFivePages() {
  OurProgram program;
  for (int page = 0; page < 5; ++page) modWorkFlow::NewPage(program.Context());
  TellReadyAndWait();
}

}  // namespace velor::bench
