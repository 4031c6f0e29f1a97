// SPDX-License-Identifier: GPL-3.0-or-later
// The program as it starts, in a scratch program folder.
#include "app/startup/RealStartUpWindows.h"
#include "app/window/MfrmProgram.h"
#include "bench/Children.h"
#include "bench/Figures.h"
#include "chrome/Palette.h"
#include "editor/PageSlots.h"
#include "editor/modWorkFlow.h"
#include "platform/qt/RealPlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sqlite3.h>

namespace velor::bench {

namespace {

/// A program folder with an empty catalogue and an image folder, so that a start asks nothing.
void Prepare(const QString &folder) {
  QDir(folder).mkdir(QStringLiteral("eImages"));
  sqlite3 *database = nullptr;
  sqlite3_open(QFile::encodeName(folder + QStringLiteral("/eThumbs.mdb")).constData(), &database);
  sqlite3_exec(database, "create table Project (IdProject integer)", nullptr, nullptr, nullptr);
  sqlite3_close(database);
  qputenv("VELOR_PROGRAM_FOLDER", QFile::encodeName(folder));
}

class OurProgram {
 public:
  OurProgram() {
    Prepare(folder_.path());
    DressApplication(*qApp);
    real_ = std::make_unique<RealPlatform>(0, nullptr);
    RealStartUpWindows windows(real_->parts, values_, [this] {
      window_ = std::make_unique<MfrmProgram>(real_->parts, values_);
      window_->Load();
    });
    StartUp(real_->parts, values_, windows);
    (void)QTest::qWaitForWindowExposed(window_.get());
  }

  EditorContext &Context() { return window_->Context(); }

 private:
  QTemporaryDir folder_;
  ProgramValues values_;
  std::unique_ptr<RealPlatform> real_;
  std::unique_ptr<MfrmProgram> window_;
};

}  // namespace

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
