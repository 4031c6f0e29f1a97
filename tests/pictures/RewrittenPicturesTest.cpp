// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RewrittenPictures.h"
#include "platform/ReplacedVersions.h"
#include "tests/support/FakeFiles.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

const QString Path = QStringLiteral("\\site\\rose.png");
const QString Copy = QStringLiteral("\\site\\rose-original.png");
const QString Wide = QStringLiteral("<img src=rose.png width=60>");
const QString Narrow = QStringLiteral("<img src=rose.png width=30>");

class VersionsInFiles final : public ReplacedVersions {
 public:
  explicit VersionsInFiles(FakeFiles &files) : files_(files) {}
  QString Store(const QString &, const QByteArray &content) override {
    files_.AddFile(QStringLiteral("\\replaced\\1"), content);
    return QStringLiteral("/replaced/1");
  }

 private:
  FakeFiles &files_;
};

class RewrittenPicturesTest : public ::testing::Test {
 protected:
  RewrittenPicturesTest() { files.AddFile(Path, "wide"); }
  void MakeNarrow() {
    pictures.Rewrite(Path, "narrow");
    pictures.Note(Path, Wide, "wide");
    pictures.Note(Path, Narrow, "narrow");
  }
  std::string There() const { return files.Content(Path)->toStdString(); }

  FakeFiles files;
  VersionsInFiles replaced{files};
  RewrittenPictures pictures{files, &replaced};
};

TEST_F(RewrittenPicturesTest, WhatAFileHeldAtFirstIsKeptOnceUnderAFreeName) {
  files.AddFile(Copy, "another");
  pictures.Rewrite(Path, "narrow");
  pictures.Rewrite(Path, "small");
  EXPECT_EQ(There(), "small");
  EXPECT_EQ(pictures.OriginalOf(Path), QStringLiteral("\\site\\rose-original-2.png"));
  EXPECT_EQ(files.Content(pictures.OriginalOf(Path)), QByteArray("wide"));
  pictures.PutBack(Path);
  EXPECT_EQ(There(), "wide");
  EXPECT_EQ(files.Content(Copy), QByteArray("another"));
  EXPECT_FALSE(files.Content(QStringLiteral("\\site\\rose-original-2.png")));
}

TEST_F(RewrittenPicturesTest, TheFileFollowsTheTextThroughUndoAndRedo) {
  MakeNarrow();
  pictures.Follow(Wide);
  EXPECT_EQ(There(), "wide");
  EXPECT_FALSE(files.Content(Copy));
  pictures.Follow(QStringLiteral("another text"));
  EXPECT_EQ(There(), "wide");
  pictures.Follow(Narrow);
  EXPECT_EQ(There(), "narrow");
  EXPECT_EQ(files.Content(Copy), QByteArray("wide"));
}

TEST_F(RewrittenPicturesTest, AFileThatAnotherProgramHasWrittenStays) {
  MakeNarrow();
  files.ReplaceAll(Path, "theirs");
  pictures.Follow(Wide);
  pictures.RemoveUnsaved();
  EXPECT_EQ(There(), "theirs");
}

TEST_F(RewrittenPicturesTest, APageThatIsNotSavedHasThePictureOfItsSave) {
  MakeNarrow();
  pictures.RemoveUnsaved();
  EXPECT_EQ(There(), "wide");
  MakeNarrow();
  pictures.MarkSaved();
  pictures.Follow(Wide);
  pictures.RemoveUnsaved();
  EXPECT_EQ(There(), "narrow");
}

TEST_F(RewrittenPicturesTest, AFileThatIsOnlySmallerStaysSo) {
  pictures.Rewrite(Path, "small");
  pictures.RemoveUnsaved();
  EXPECT_EQ(There(), "small");
  EXPECT_EQ(files.Content(Copy), QByteArray("wide"));
}

TEST_F(RewrittenPicturesTest, AnotherRunBringsBackWhatTheSavedPageHad) {
  MakeNarrow();
  const QList<JournalledPicture> unsaved = pictures.Unsaved();
  ASSERT_EQ(unsaved.size(), 1);
  EXPECT_EQ(unsaved.front().saved, Copy);
  RewrittenPictures next(files);
  next.Adopt(unsaved, Narrow);
  EXPECT_EQ(next.Unsaved(), unsaved);
  next.RemoveUnsaved();
  EXPECT_EQ(There(), "wide");
  EXPECT_FALSE(files.Content(Copy));
}

TEST_F(RewrittenPicturesTest, WhatTheLastSaveHadIsKeptBeforeItIsWrittenOver) {
  MakeNarrow();
  pictures.MarkSaved();
  EXPECT_TRUE(pictures.Unsaved().isEmpty());
  pictures.Rewrite(Path, "small");
  ASSERT_EQ(pictures.Unsaved().size(), 1);
  EXPECT_EQ(files.Content(pictures.Unsaved().front().saved), QByteArray("narrow"));
  RewrittenPictures next(files);
  next.Adopt(pictures.Unsaved(), QStringLiteral("small"));
  next.RemoveUnsaved();
  EXPECT_EQ(There(), "narrow");
  EXPECT_EQ(files.Content(Copy), QByteArray("wide"));
}

TEST_F(RewrittenPicturesTest, AnotherRunLeavesFilesThatOthersHaveWritten) {
  MakeNarrow();
  files.ReplaceAll(Copy, "theirs");
  RewrittenPictures next(files);
  next.Adopt(pictures.Unsaved(), Narrow);
  EXPECT_TRUE(next.IsEmpty());
  files.Delete(Copy);
  next.Adopt(pictures.Unsaved(), Narrow);
  EXPECT_TRUE(next.IsEmpty());
}

}  // namespace
}  // namespace velor
