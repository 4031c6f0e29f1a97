// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Children.h"
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/OurProgram.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"

#include <QCoreApplication>
#include <QEvent>

namespace velor::bench {

void ChildOurWindow() {
  const OurProgram program;
  ReportReadyAndWait();
}

void ChildOurFivePages() {
  OurProgram program;
  for (int page = 0; page < 5; ++page) modWorkFlow::NewPage(program.Context());
  ReportReadyAndWait();
}

namespace {

void OpenAndClose(int pages) {
  OurProgram program;
  for (int page = 1; page <= pages; ++page) {
    modWorkFlow::NewPage(program.Context());
    frmMain &window = *program.Context().pages.Page(page);
    WaitUntil([&] { return window.PendingAction.isEmpty(); });
    window.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  ReportReadyAndWait();
}

}  // namespace

void ChildOurOneClosed() {
  OpenAndClose(1);
}

void ChildOurFiftyClosed() {
  OpenAndClose(50);
}

}  // namespace velor::bench
