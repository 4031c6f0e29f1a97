// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SitePages.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

class SitePages : public ::testing::Test {
 protected:
  SitePages() {
    for (const char *name :
         {"index.htm", "b.HTML", "photo.png", "sub/deep/c.php", "sub/notes.txt"}) {
      const QString path = folder_.filePath(QLatin1String(name));
      QDir().mkpath(QFileInfo(path).path());
      EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    }
  }
  QString Path(const char *name) const { return ToLogic(folder_.filePath(QLatin1String(name))); }

  QTemporaryDir folder_;
};

TEST_F(SitePages, OfAProjectAreAllBelowItsFolderButTheOneThatLinks) {
  EXPECT_EQ(PagesAround(Path("index.htm"), ToLogic(folder_.path())),
            QStringList({Path("b.HTML"), Path("sub/deep/c.php")}));
  EXPECT_EQ(PagesAround(Path("sub/deep/c.php"), ToLogic(folder_.path())),
            QStringList({Path("b.HTML"), Path("index.htm")}));
}

TEST_F(SitePages, WithoutAProjectAreThoseInThePagesFolder) {
  EXPECT_EQ(PagesAround(Path("index.htm"), {}), QStringList(Path("b.HTML")));
  EXPECT_TRUE(PagesAround({}, {}).isEmpty()) << "the page is in no file";
}

}  // namespace
}  // namespace velor
