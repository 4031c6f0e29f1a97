// SPDX-License-Identifier: GPL-3.0-or-later
// What every implementation of Files promises, run against the real one and the fake.
#include "files/QtFiles.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace velor {
namespace {

/// An implementation and an empty folder of its own.
class FilesWorld {
 public:
  virtual ~FilesWorld() = default;
  virtual Files &Subject() = 0;
  /// The folder, in logic form.
  virtual QString Folder() const = 0;
  virtual void AddFolder(const QString &path) = 0;
  virtual void AddFile(const QString &path, const QByteArray &content) = 0;
  virtual void MakeReadOnly(const QString &path) = 0;
};

class FakeWorld : public FilesWorld {
 public:
  FakeWorld() { files_.AddFolder(Folder()); }
  Files &Subject() override { return files_; }
  QString Folder() const override { return R"(\home\u\site)"; }
  void AddFolder(const QString &path) override { files_.AddFolder(path); }
  void AddFile(const QString &path, const QByteArray &content) override {
    files_.AddFile(path, content);
  }
  void MakeReadOnly(const QString &path) override { files_.MakeReadOnly(path); }

 private:
  FakeFiles files_;
};

class RealWorld : public FilesWorld {
 public:
  Files &Subject() override { return files_; }
  QString Folder() const override { return ToLogic(folder_.path()); }
  void AddFolder(const QString &path) override { QDir().mkpath(ToNative(path)); }
  void AddFile(const QString &path, const QByteArray &content) override {
    QDir().mkpath(QFileInfo(ToNative(path)).path());
    QFile file(ToNative(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  void MakeReadOnly(const QString &path) override {
    QFile::setPermissions(ToNative(path), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
  }

 private:
  QtFiles files_;
  QTemporaryDir folder_;
};

enum class Implementation { Fake, Real };

class FilesContract : public testing::TestWithParam<Implementation> {
 protected:
  FilesContract() {
    if (GetParam() == Implementation::Fake) {
      world_ = std::make_unique<FakeWorld>();
    } else {
      world_ = std::make_unique<RealWorld>();
    }
  }

  Files &Subject() { return world_->Subject(); }
  FilesWorld &World() { return *world_; }
  QString Path(const QString &name) const { return world_->Folder() + u'\\' + name; }

 private:
  std::unique_ptr<FilesWorld> world_;
};

INSTANTIATE_TEST_SUITE_P(All, FilesContract,
                         testing::Values(Implementation::Fake, Implementation::Real),
                         [](const auto &test) {
                           return test.param == Implementation::Fake ? "Fake" : "Real";
                         });

TEST_P(FilesContract, TellsFilesFromFolders) {
  World().AddFile(Path("a.htm"), "x");
  World().AddFolder(Path("images"));
  EXPECT_TRUE(Subject().FileExists(Path("a.htm")));
  EXPECT_FALSE(Subject().FolderExists(Path("a.htm")));
  EXPECT_TRUE(Subject().FolderExists(Path("images")));
  EXPECT_TRUE(Subject().FolderExists(Path("images\\")));
  EXPECT_FALSE(Subject().FileExists(Path("images")));
  EXPECT_TRUE(Subject().FolderExists("\\"));
  EXPECT_FALSE(Subject().FileExists(""));
  EXPECT_FALSE(Subject().FolderExists(""));
}

TEST_P(FilesContract, KnowsAFileByItsNameAndNothingThatIsMissing) {
  World().AddFile(Path("a.htm"), "x");
  World().AddFile(Path("b.htm"), "x");
  EXPECT_TRUE(Subject().IsSameFile(Path("a.htm"), Path("a.htm")));
  EXPECT_FALSE(Subject().IsSameFile(Path("a.htm"), Path("b.htm")));
  EXPECT_FALSE(Subject().IsSameFile(Path("gone.htm"), Path("gone.htm")));
  EXPECT_FALSE(Subject().IsSameFile({}, {}));
}

TEST_P(FilesContract, TakesAChosenNameExactly) {
  World().AddFile(Path("INDEX.HTM"), "x");
  EXPECT_FALSE(Subject().FileExists(Path("Index.htm")));
  EXPECT_EQ(ErrorOf([&] { Subject().ReadAll(Path("Index.htm")); }), ErrorNumber::FileNotFound);
}

TEST_P(FilesContract, FindsItsOwnNamesInAnyLetterCase) {
  World().AddFile(Path("FILES\\HOME.htm"), "home");
  EXPECT_TRUE(Subject().FileExists(Path("Files\\Home.htm"), NameOrigin::Program));
  EXPECT_TRUE(Subject().FolderExists(Path("Files"), NameOrigin::Program));
  EXPECT_EQ(Subject().ReadAll(Path("Files\\Home.htm"), NameOrigin::Program), "home");
}

TEST_P(FilesContract, PrefersTheExactNameOfItsOwn) {
  World().AddFile(Path("INDEX.htm"), "upper");
  World().AddFile(Path("Index.htm"), "exact");
  EXPECT_EQ(Subject().ReadAll(Path("Index.htm"), NameOrigin::Program), "exact");
}

TEST_P(FilesContract, ReadsTheWholeContent) {
  World().AddFile(Path("a.htm"), QByteArray("a\0b\r\n\xFF", 6));
  EXPECT_EQ(Subject().ReadAll(Path("a.htm")), QByteArray("a\0b\r\n\xFF", 6));
  World().AddFile(Path("empty.htm"), "");
  EXPECT_EQ(Subject().ReadAll(Path("empty.htm")), "");
  const QByteArray large(20 * 1024 * 1024, 'x');
  World().AddFile(Path("large.htm"), large);
  EXPECT_TRUE(Subject().ReadAll(Path("large.htm")) == large);
}

TEST_P(FilesContract, NamesWhyItCannotRead) {
  World().AddFolder(Path("images"));
  const auto errorOf = [&](const QString &path) {
    return ErrorOf([&] { Subject().ReadAll(path); });
  };
  EXPECT_EQ(errorOf(Path("missing.htm")), ErrorNumber::FileNotFound);
  EXPECT_EQ(errorOf(Path("nowhere\\a.htm")), ErrorNumber::PathNotFound);
  EXPECT_EQ(errorOf(R"(C:\Site\a.htm)"), ErrorNumber::PathNotFound);
  EXPECT_EQ(errorOf(Path("images")), ErrorNumber::PathFileAccess);
}

TEST_P(FilesContract, NamesTheFileInTheError) {
  try {
    Subject().ReadAll(Path("missing.htm"));
    FAIL() << "nothing was raised";
  } catch (const RuntimeError &error) {
    EXPECT_TRUE(error.Description().contains("missing.htm"));
  }
}

TEST_P(FilesContract, CreatesAndReplacesFiles) {
  Subject().ReplaceAll(Path("new.htm"), "first and longer");
  EXPECT_EQ(Subject().ReadAll(Path("new.htm")), "first and longer");
  Subject().ReplaceAll(Path("new.htm"), "second");
  EXPECT_EQ(Subject().ReadAll(Path("new.htm")), "second");
  Subject().ReplaceAll(Path("new.htm"), "");
  EXPECT_EQ(Subject().ReadAll(Path("new.htm")), "");
}

TEST_P(FilesContract, WritesNamesWithUncommonCharacters) {
  for (const QString &name :
       {QStringLiteral("a b.htm"), QStringLiteral("#1%20&?.htm"), QStringLiteral("\"it's\".htm"),
        QString::fromUtf8("網頁.htm"), QStringLiteral("x.y\\z.htm"),
        QString::fromUtf8("back\uF05Cslash.htm")}) {
    World().AddFolder(Path("x.y"));
    Subject().ReplaceAll(Path(name), name.toUtf8());
    EXPECT_TRUE(Subject().FileExists(Path(name)));
    EXPECT_EQ(Subject().ReadAll(Path(name)), name.toUtf8());
    Subject().Delete(Path(name));
    EXPECT_FALSE(Subject().FileExists(Path(name)));
  }
}

TEST_P(FilesContract, RefusesToReplaceAReadOnlyFile) {
  World().AddFile(Path("a.htm"), "old");
  EXPECT_FALSE(Subject().IsReadOnly(Path("a.htm")));
  World().MakeReadOnly(Path("a.htm"));
  EXPECT_TRUE(Subject().IsReadOnly(Path("a.htm")));
  EXPECT_EQ(ErrorOf([&] { Subject().ReplaceAll(Path("a.htm"), "new"); }),
            ErrorNumber::PathFileAccess);
  EXPECT_EQ(Subject().ReadAll(Path("a.htm")), "old");
}

TEST_P(FilesContract, RefusesToWriteWhereNoFileCanBe) {
  World().AddFolder(Path("images"));
  const auto errorOf = [&](const QString &path) {
    return ErrorOf([&] { Subject().ReplaceAll(path, "x"); });
  };
  EXPECT_EQ(errorOf(Path("images")), ErrorNumber::PathFileAccess);
  EXPECT_EQ(errorOf(Path("nowhere\\a.htm")), ErrorNumber::PathNotFound);
  EXPECT_EQ(errorOf(R"(C:\Site\a.htm)"), ErrorNumber::PathNotFound);
}

TEST_P(FilesContract, SaysWhetherAFolderTakesFiles) {
  EXPECT_TRUE(Subject().FolderWritable(Path("new.htm")));
  EXPECT_FALSE(Subject().FolderWritable(Path("nowhere\\new.htm")));
  World().AddFile(Path("a.htm"), "x");
  EXPECT_FALSE(Subject().FolderWritable(Path("a.htm\\new.htm")));
}

TEST_P(FilesContract, RaisesForTheAttributeOfAMissingFile) {
  EXPECT_EQ(ErrorOf([&] { Subject().IsReadOnly(Path("missing.htm")); }), ErrorNumber::FileNotFound);
}

TEST_P(FilesContract, CreatesAFileOnlyWhereNothingIs) {
  EXPECT_TRUE(Subject().CreateNew(Path("a.png"), "first"));
  EXPECT_FALSE(Subject().CreateNew(Path("a.png"), "second"));
  EXPECT_EQ(Subject().ReadAll(Path("a.png")), "first");
  World().AddFolder(Path("b.png"));
  EXPECT_FALSE(Subject().CreateNew(Path("b.png"), "x"));
  EXPECT_EQ(ErrorOf([&] { Subject().CreateNew(Path(R"(none\a.png)"), "x"); }),
            ErrorNumber::PathNotFound);
}

TEST_P(FilesContract, DeletesFilesOnly) {
  World().AddFile(Path("a.htm"), "x");
  World().AddFolder(Path("images"));
  Subject().Delete(Path("a.htm"));
  EXPECT_FALSE(Subject().FileExists(Path("a.htm")));
  EXPECT_EQ(ErrorOf([&] { Subject().Delete(Path("a.htm")); }), ErrorNumber::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { Subject().Delete(Path("images")); }), ErrorNumber::PathFileAccess);
  EXPECT_TRUE(Subject().FolderExists(Path("images")));
}

TEST(FakeFiles, FailsTheNextWriteWhenTold) {
  FakeFiles files;
  files.AddFile(R"(\a.htm)", "old");
  files.FailNextWrite(ErrorNumber::DiskFull);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceAll(R"(\a.htm)", "new"); }), ErrorNumber::DiskFull);
  EXPECT_EQ(files.Content(R"(\a.htm)"), "old");
  files.ReplaceAll(R"(\a.htm)", "new");
  EXPECT_EQ(files.Content(R"(\a.htm)"), "new");
  EXPECT_EQ(files.Calls(), QStringList({R"(ReplaceAll \a.htm)", R"(ReplaceAll \a.htm)"}));
}

TEST(FakeFiles, TakesNoNewFileInAnUnwritableFolder) {
  FakeFiles files;
  files.AddFile(R"(\site\a.htm)", "old");
  files.MakeFolderUnwritable(R"(\site)");
  EXPECT_FALSE(files.FolderWritable(R"(\site\b.htm)"));
  EXPECT_EQ(ErrorOf([&] { files.ReplaceAll(R"(\site\b.htm)", "x"); }), ErrorNumber::PathFileAccess);
  files.ReplaceAll(R"(\site\a.htm)", "new");
  EXPECT_EQ(files.Paths(), QStringList(R"(\site\a.htm)"));
}

}  // namespace
}  // namespace velor
