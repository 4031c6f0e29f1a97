// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CopiedPictures.h"
#include "platform/ReplacedVersions.h"
#include "tests/support/FakeFiles.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

const QString Path = QStringLiteral("\\site\\rose.png");
const QString With = QStringLiteral("<p><img src=\"rose.png\"></p>");
const QString Without = QStringLiteral("<p><img src=\"old-rose.png\"> rose.png.txt</p>");

class KeptVersions final : public ReplacedVersions {
 public:
  QString Store(const QString &path, const QByteArray &content) override {
    stored << path + u' ' + QString::fromLatin1(content);
    return {};
  }
  QStringList stored;
};

class CopiedPicturesTest : public ::testing::Test {
 protected:
  CopiedPicturesTest() {
    files.AddFile(Path, "rose");
    pictures.Add({.path = Path, .address = QStringLiteral("rose.png"), .isNew = true});
  }
  bool IsThere() const { return files.Content(Path) == QByteArray("rose"); }

  FakeFiles files;
  KeptVersions kept;
  bool isUsed = false;
  CopiedPictures pictures{files, &kept, [this](const QString &) { return isUsed; }};
};

TEST_F(CopiedPicturesTest, UndoTakesTheFileAwayAndRedoBringsItBack) {
  pictures.Follow(Without);
  EXPECT_TRUE(IsThere()) << "the picture is on its way into the page";
  pictures.Follow(With);
  pictures.Follow(Without);
  EXPECT_FALSE(files.Content(Path));
  EXPECT_EQ(kept.stored, QStringList(Path + QStringLiteral(" rose")));
  pictures.Follow(With);
  EXPECT_TRUE(IsThere());
}

TEST_F(CopiedPicturesTest, APictureThatWasUndoneBeforeItWasSeenGoesOnceItIsExpected) {
  EXPECT_TRUE(pictures.AwaitsAny());
  pictures.ExpectAll();
  EXPECT_FALSE(pictures.AwaitsAny());
  pictures.Follow(Without);
  EXPECT_FALSE(files.Content(Path));
}

TEST_F(CopiedPicturesTest, AStyleAndAListNameAPictureToo) {
  pictures.Follow(With);
  pictures.Follow(QStringLiteral("<p style=\"background: url(rose.png)\">"));
  EXPECT_TRUE(IsThere());
  pictures.Follow(QStringLiteral("<img srcset=\"rose.png 2x, b.png\">"));
  EXPECT_TRUE(IsThere());
}

TEST_F(CopiedPicturesTest, WhatASaveNamedBelongsToTheSite) {
  pictures.Follow(With);
  pictures.MarkSaved(With);
  pictures.Follow(Without);
  pictures.RemoveUnsaved();
  EXPECT_TRUE(IsThere());
}

TEST_F(CopiedPicturesTest, ASaveWithoutItLeavesItToRedo) {
  pictures.Follow(With);
  pictures.MarkSaved(Without);
  EXPECT_FALSE(files.Content(Path));
  pictures.Follow(With);
  EXPECT_TRUE(IsThere());
}

TEST_F(CopiedPicturesTest, ClosingWithoutSavingLeavesNoFile) {
  pictures.RemoveUnsaved();
  EXPECT_FALSE(files.Content(Path));
}

TEST_F(CopiedPicturesTest, AFileThatSomebodyChangedStays) {
  pictures.Follow(With);
  files.ReplaceAll(Path, "painted");
  pictures.Follow(Without);
  EXPECT_EQ(files.Content(Path), QByteArray("painted"));
}

TEST_F(CopiedPicturesTest, AFileThatAnotherPageHasStays) {
  isUsed = true;
  pictures.Follow(With);
  pictures.Follow(Without);
  EXPECT_TRUE(IsThere());
}

TEST_F(CopiedPicturesTest, AnotherFileThatHasTheNameMeanwhileStays) {
  pictures.Follow(With);
  pictures.Follow(Without);
  files.AddFile(Path, "another");
  pictures.Follow(With);
  EXPECT_EQ(files.Content(Path), QByteArray("another"));
}

TEST_F(CopiedPicturesTest, AFileThatWasThereBeforeIsNobodysToRemove) {
  files.AddFile(QStringLiteral("\\site\\a.png"), "a");
  pictures.Add({.path = QStringLiteral("\\site\\a.png"), .address = QStringLiteral("a.png")});
  pictures.RemoveUnsaved();
  EXPECT_TRUE(files.Content(QStringLiteral("\\site\\a.png")));
}

}  // namespace
}  // namespace velor
