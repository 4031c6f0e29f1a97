// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/QtFiles.h"
#include "pictures/PictureCopier.h"
#include "platform/Paths.h"
#include "tests/pictures/PictureFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FaultyCalls.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

class PictureCopierTest : public ::testing::Test {
 protected:
  PictureCopierTest() {
    Write("site/page.htm", "<p>");
    Write("out/Mein Garten.PNG", CodedAs("PNG", PlainPicture(30, 20)));
    Write("out/rose.png", CodedAs("PNG", PlainPicture(30, 20, Qt::red)));
  }
  QString Native(const char *name) const { return folder.filePath(QString::fromLatin1(name)); }
  QString Logic(const char *name) const { return ToLogic(Native(name)); }
  void Write(const char *name, const QByteArray &content) const {
    QDir().mkpath(QFileInfo(Native(name)).path());
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Bytes(const char *name) const {
    QFile file(Native(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
  }
  QStringList Site() const {
    return QDir(Native("site")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
  }
  PictureCopier Copier() { return {files, {Logic("site/page.htm")}, {}, {}}; }

  QTemporaryDir folder;
  FaultyCalls calls;
  QtFiles files{calls};
};

TEST_F(PictureCopierTest, APictureFromOutsideIsCopiedUnderASafeName) {
  const SitePicture picture = Copier().TakeFile(Logic("out/Mein Garten.PNG"));
  EXPECT_TRUE(picture.isNew);
  EXPECT_EQ(picture.path, Logic("site/mein-garten.png"));
  EXPECT_EQ(picture.address, QStringLiteral("mein-garten.png"));
  EXPECT_EQ(picture.size, QSize(30, 20));
  EXPECT_EQ(Bytes("site/mein-garten.png"), Bytes("out/Mein Garten.PNG"));
}

TEST_F(PictureCopierTest, APictureOfTheSiteStaysWhereItIs) {
  Write("site/a b/x.png", CodedAs("PNG", PlainPicture(7, 5)));
  const SitePicture picture = Copier().TakeFile(Logic("site/a b/x.png"));
  EXPECT_FALSE(picture.isNew);
  EXPECT_EQ(picture.address, QStringLiteral("a%20b/x.png"));
  EXPECT_EQ(picture.size, QSize(7, 5));
  EXPECT_EQ(Site(), QStringList({QStringLiteral("a b"), QStringLiteral("page.htm")}));
}

TEST_F(PictureCopierTest, NoFileIsWrittenOver) {
  Write("site/rose.png", "other");
  const SitePicture picture = Copier().TakeFile(Logic("out/rose.png"));
  EXPECT_EQ(picture.address, QStringLiteral("rose-1.png"));
  EXPECT_EQ(Bytes("site/rose.png"), "other");
}

TEST_F(PictureCopierTest, NoLinkIsFollowed) {
  Write("out/theirs.png", "theirs");
  QFile::link(Native("out/theirs.png"), Native("site/rose.png"));
  QFile::link(Native("out/nowhere.png"), Native("site/rose-1.png"));
  const SitePicture picture = Copier().TakeFile(Logic("out/rose.png"));
  EXPECT_EQ(picture.address, QStringLiteral("rose-2.png"));
  EXPECT_EQ(Bytes("out/theirs.png"), "theirs");
  EXPECT_FALSE(QFile::exists(Native("out/nowhere.png")));
}

TEST_F(PictureCopierTest, TheSameContentTwiceIsOneFile) {
  const SitePicture first = Copier().TakeFile(Logic("out/rose.png"));
  const SitePicture second = Copier().TakeFile(Logic("out/rose.png"));
  EXPECT_EQ(first.path, second.path);
  EXPECT_FALSE(second.isNew);
  Write("out/other name.png", Bytes("out/rose.png"));
  EXPECT_EQ(Copier().TakeFile(Logic("out/other name.png")).path, first.path);
  EXPECT_EQ(Copier().TakeBytes(Bytes("out/rose.png")).path, first.path);
}

TEST_F(PictureCopierTest, PicturesWithoutAFileAreNumberedAfterThePage) {
  EXPECT_EQ(Copier().TakeImage(PlainPicture(9, 9)).address, QStringLiteral("page-1.png"));
  EXPECT_EQ(Copier().TakeImage(PlainPicture(8, 8)).address, QStringLiteral("page-2.png"));
  EXPECT_EQ(Copier().TakeImage(PlainPicture(9, 9)).address, QStringLiteral("page-1.png"));
}

TEST_F(PictureCopierTest, AFullDiskLeavesNothingAndIsTold) {
  for (const auto call : {FaultyCalls::Call::Write, FaultyCalls::Call::Sync}) {
    calls.Fail(call, ENOSPC);
    EXPECT_EQ(ErrorOf([&] { Copier().TakeFile(Logic("out/rose.png")); }), ErrorNumber::DiskFull);
    EXPECT_EQ(Site(), QStringList(QStringLiteral("page.htm")));
  }
  calls.FailNoMore();
  calls.longestWrite = 7;
  EXPECT_TRUE(Copier().TakeFile(Logic("out/rose.png")).isNew);
  EXPECT_EQ(Bytes("site/rose.png"), Bytes("out/rose.png"));
}

TEST_F(PictureCopierTest, AFolderThatCannotBeWrittenIsTold) {
  calls.Fail(FaultyCalls::Call::Open, EACCES);
  EXPECT_EQ(ErrorOf([&] { Copier().TakeFile(Logic("out/rose.png")); }),
            ErrorNumber::PathFileAccess);
  EXPECT_EQ(Site(), QStringList(QStringLiteral("page.htm")));
}

TEST_F(PictureCopierTest, WhatIsMissingOrNoPictureIsTold) {
  Write("out/text.png", "text");
  EXPECT_EQ(ErrorOf([&] { Copier().TakeFile(Logic("out/none.png")); }), ErrorNumber::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { Copier().TakeFile(Logic("out/text.png")); }),
            ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(Site(), QStringList(QStringLiteral("page.htm")));
}

}  // namespace
}  // namespace velor
