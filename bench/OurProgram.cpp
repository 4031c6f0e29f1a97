// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/OurProgram.h"

#include "app/startup/RealStartUpWindows.h"
#include "chrome/Palette.h"
#include "qt/RealPlatform.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

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

}  // namespace

OurProgram::OurProgram() {
  Prepare(folder_.path());
  StyleApplication(*qApp);
  real_ = std::make_unique<RealPlatform>(0, nullptr);
  RealStartUpWindows windows(real_->parts.components, real_->dialogs,
                             {values_.ImageFolderPath, values_.ProjectFolderResult}, [this] {
                               window_ = std::make_unique<MfrmProgram>(real_->parts, values_);
                               window_->Load();
                             });
  StartUp(real_->parts, values_, windows);
  (void)QTest::qWaitForWindowExposed(window_.get());
}

OurProgram::~OurProgram() = default;

}  // namespace velor::bench
