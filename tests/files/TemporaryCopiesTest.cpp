// SPDX-License-Identifier: GPL-3.0-or-later
// Temporary copies: what every implementation promises, and what the real one does on a disk.
#include "files/StateFolder.h"
#include "files/TemporaryCopyFiles.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeTemporaryCopies.h"
#include "tests/support/FaultyCalls.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velor {
namespace {

using Outcome = TemporaryCopies::Outcome;

/// An implementation and a folder with the page "a.htm".
class CopiesWorld {
 public:
  virtual ~CopiesWorld() = default;
  virtual TemporaryCopies &Subject() = 0;
  virtual QString Folder() const = 0;
  virtual void Write(const QString &name, const QByteArray &content) = 0;
  virtual std::optional<QByteArray> Content(const QString &name) const = 0;
  virtual void AddFolder(const QString &name) = 0;
};

class FakeWorld final : public CopiesWorld {
 public:
  FakeWorld() { files_.AddFolder(Folder()); }
  TemporaryCopies &Subject() override { return copies_; }
  QString Folder() const override { return R"(\site)"; }
  void Write(const QString &name, const QByteArray &content) override {
    files_.AddFile(Folder() + u'\\' + name, content);
  }
  std::optional<QByteArray> Content(const QString &name) const override {
    return files_.Content(Folder() + u'\\' + name);
  }
  void AddFolder(const QString &name) override { files_.AddFolder(Folder() + u'\\' + name); }

 private:
  FakeFiles files_;
  FakeTemporaryCopies copies_{files_};
};

class RealWorld final : public CopiesWorld {
 public:
  TemporaryCopies &Subject() override { return copies_; }
  QString Folder() const override { return ToLogic(folder_.path()); }
  void Write(const QString &name, const QByteArray &content) override {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  std::optional<QByteArray> Content(const QString &name) const override {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
  }
  void AddFolder(const QString &name) override { QDir(folder_.path()).mkpath(name); }

 private:
  QTemporaryDir folder_;
  TemporaryCopyFiles copies_;
};

enum class Implementation { Fake, Real };

class TemporaryCopiesContract : public testing::TestWithParam<Implementation> {
 protected:
  TemporaryCopiesContract() {
    if (GetParam() == Implementation::Fake) {
      world_ = std::make_unique<FakeWorld>();
    } else {
      world_ = std::make_unique<RealWorld>();
    }
    World().Write("a.htm", "page");
  }

  CopiesWorld &World() { return *world_; }
  Outcome Write(const QString &name, const QByteArray &content) {
    return World().Subject().Write(Path(name), content, Path("a.htm"));
  }
  void Remove(const QString &name) { World().Subject().Remove(Path(name)); }
  QString Path(const QString &name) { return World().Folder() + u'\\' + name; }

 private:
  std::unique_ptr<CopiesWorld> world_;
};

INSTANTIATE_TEST_SUITE_P(All, TemporaryCopiesContract,
                         testing::Values(Implementation::Fake, Implementation::Real),
                         [](const auto &test) {
                           return test.param == Implementation::Fake ? "Fake" : "Real";
                         });

TEST_P(TemporaryCopiesContract, ACopyIsMadeWhereNothingIsAndRemoved) {
  EXPECT_EQ(Write("aTMP.htm", "one"), Outcome::Written);
  EXPECT_EQ(World().Content("aTMP.htm"), "one");
  Remove("aTMP.htm");
  EXPECT_EQ(World().Content("aTMP.htm"), std::nullopt);
}

TEST_P(TemporaryCopiesContract, ItsOwnCopyIsWrittenAnewLongerAndShorter) {
  Write("aTMP.htm", "one");
  EXPECT_EQ(Write("aTMP.htm", "three and more"), Outcome::Written);
  EXPECT_EQ(World().Content("aTMP.htm"), "three and more");
  EXPECT_EQ(Write("aTMP.htm", "2"), Outcome::Written);
  EXPECT_EQ(World().Content("aTMP.htm"), "2");
}

TEST_P(TemporaryCopiesContract, APersonsOwnFileOfThatNameIsNeitherWrittenNorRemoved) {
  World().Write("aTMP.htm", "mine");
  EXPECT_EQ(Write("aTMP.htm", "one"), Outcome::NoPlace);
  Remove("aTMP.htm");
  EXPECT_EQ(World().Content("aTMP.htm"), "mine");
}

TEST_P(TemporaryCopiesContract, ACopyThatSomebodyChangedSinceIsTheirs) {
  Write("aTMP.htm", "one");
  World().Write("aTMP.htm", "changed by hand");
  EXPECT_EQ(Write("aTMP.htm", "two"), Outcome::NoPlace);
  Remove("aTMP.htm");
  EXPECT_EQ(World().Content("aTMP.htm"), "changed by hand");
}

TEST_P(TemporaryCopiesContract, ACopyThatWasRemovedMeanwhileIsMadeAnew) {
  Write("aTMP.htm", "one");
  Remove("aTMP.htm");
  EXPECT_EQ(Write("aTMP.htm", "two"), Outcome::Written);
  EXPECT_EQ(World().Content("aTMP.htm"), "two");
}

TEST_P(TemporaryCopiesContract, WhereThereIsAFolderOrNoFolderThereIsNoPlace) {
  World().AddFolder("bTMP.htm");
  EXPECT_EQ(Write("bTMP.htm", "one"), Outcome::NoPlace);
  EXPECT_EQ(Write("nowhere\\aTMP.htm", "one"), Outcome::NoPlace);
  EXPECT_EQ(World().Subject().Write({}, "one", {}), Outcome::NoPlace);
  World().Subject().Remove({});
}

class CopiesOnDisk : public testing::Test {
 protected:
  CopiesOnDisk() { qputenv("XDG_STATE_HOME", folder_.filePath("state").toLocal8Bit()); }
  ~CopiesOnDisk() override { qputenv("XDG_STATE_HOME", stateHome_); }

  QByteArray Name(const QString &name) const { return QFile::encodeName(folder_.filePath(name)); }
  QString Logic(const QString &name) const { return ToLogic(folder_.filePath(name)); }
  void Put(const QString &name, const QByteArray &content) const {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Content(const QString &name) const {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }
  mode_t Mode(const QString &name) const {
    struct stat status {};
    EXPECT_EQ(stat(Name(name).constData(), &status), 0);
    return status.st_mode & 07777;
  }
  static QStringList Lists() {
    return QDir(StateFolder() + "/copies").entryList({"*.list"}, QDir::Files);
  }
  Outcome Write(TemporaryCopies &copies, const QString &name, const QByteArray &content) {
    return copies.Write(Logic(name), content, Logic("a.htm"));
  }
  /// Does it in a process of its own, which then ends without tidying up.
  template <typename Deed>
  static void InAKilledRun(Deed deed) {
    const pid_t child = fork();
    if (child == 0) {
      auto *copies = new TemporaryCopyFiles;
      deed(*copies);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
  }

  QTemporaryDir folder_;
  const QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
};

TEST_F(CopiesOnDisk, ALinkOfThatNameIsNotFollowed) {
  Put("victim.txt", "victim");
  ASSERT_EQ(symlink(Name("victim.txt").constData(), Name("aTMP.htm").constData()), 0);
  ASSERT_EQ(symlink(Name("nothing").constData(), Name("bTMP.htm").constData()), 0);
  TemporaryCopyFiles copies;
  EXPECT_EQ(Write(copies, "aTMP.htm", "one"), Outcome::NoPlace);
  EXPECT_EQ(Write(copies, "bTMP.htm", "one"), Outcome::NoPlace);
  copies.Remove(Logic("aTMP.htm"));
  EXPECT_EQ(Content("victim.txt"), "victim");
  EXPECT_EQ(Content("nothing"), "(none)");
  EXPECT_EQ(Content("aTMP.htm"), "victim");
}

TEST_F(CopiesOnDisk, ALinkPutInTheCopysPlaceIsNotFollowedEither) {
  Put("victim.txt", "victim");
  TemporaryCopyFiles copies;
  Write(copies, "aTMP.htm", "one");
  ASSERT_EQ(unlink(Name("aTMP.htm").constData()), 0);
  ASSERT_EQ(symlink(Name("victim.txt").constData(), Name("aTMP.htm").constData()), 0);
  EXPECT_EQ(Write(copies, "aTMP.htm", "two"), Outcome::NoPlace);
  copies.Remove(Logic("aTMP.htm"));
  EXPECT_EQ(Content("victim.txt"), "victim");
  EXPECT_TRUE(QFileInfo(folder_.filePath("aTMP.htm")).isSymLink());
}

TEST_F(CopiesOnDisk, AFileSavedOverTheCopyIsNoLongerOurs) {
  TemporaryCopyFiles copies;
  Write(copies, "aTMP.htm", "one");
  Put("fresh", "one");
  ASSERT_EQ(rename(Name("fresh").constData(), Name("aTMP.htm").constData()), 0);
  EXPECT_EQ(Write(copies, "aTMP.htm", "two"), Outcome::NoPlace);
  copies.Remove(Logic("aTMP.htm"));
  EXPECT_EQ(Content("aTMP.htm"), "one");
}

TEST_F(CopiesOnDisk, ACopyIsNotOpenToMoreThanItsPage) {
  Put("a.htm", "page");
  const mode_t umaskBefore = umask(0);
  TemporaryCopyFiles copies;
  for (const mode_t mode : {0600, 0640, 0644, 0664, 0400, 0755}) {
    ASSERT_EQ(chmod(Name("a.htm").constData(), mode), 0);
    ASSERT_EQ(Write(copies, "aTMP.htm", "one"), Outcome::Written);
    EXPECT_EQ(Mode("aTMP.htm"), (mode & 0666U) | 0600U) << std::oct << mode;
    copies.Remove(Logic("aTMP.htm"));
  }
  umask(umaskBefore);
}

TEST_F(CopiesOnDisk, TwoRunsOnOneFolderShareNoCopy) {
  TemporaryCopyFiles one;
  TemporaryCopyFiles other;
  EXPECT_EQ(Write(one, "Temp1.htm", "one"), Outcome::Written);
  EXPECT_EQ(Write(other, "Temp1.htm", "other"), Outcome::NoPlace);
  other.Remove(Logic("Temp1.htm"));
  other.RemoveAbandoned();
  EXPECT_EQ(Content("Temp1.htm"), "one");
}

TEST_F(CopiesOnDisk, WhatAKilledRunLeftIsRemovedByTheNext) {
  InAKilledRun([this](TemporaryCopies &copies) {
    Write(copies, "aTMP.htm", "one");
    Write(copies, "b TMP%\n.htm", "one");
    Write(copies, "b TMP%\n.htm", "two");
  });
  ASSERT_EQ(Content("aTMP.htm"), "one");
  ASSERT_EQ(Lists().size(), 1);
  TemporaryCopyFiles next;
  next.RemoveAbandoned();
  EXPECT_EQ(Content("aTMP.htm"), "(none)");
  EXPECT_EQ(Content("b TMP%\n.htm"), "(none)");
  EXPECT_TRUE(Lists().isEmpty());
}

TEST_F(CopiesOnDisk, WhatWasChangedAfterTheKillStays) {
  InAKilledRun([this](TemporaryCopies &copies) {
    Write(copies, "aTMP.htm", "one");
    Write(copies, "bTMP.htm", "one");
    Write(copies, "cTMP.htm", "one");
  });
  Put("aTMP.htm", "changed by hand");
  ASSERT_EQ(unlink(Name("bTMP.htm").constData()), 0);
  Put("bTMP.htm", "one");
  TemporaryCopyFiles next;
  next.RemoveAbandoned();
  EXPECT_EQ(Content("aTMP.htm"), "changed by hand");
  EXPECT_EQ(Content("bTMP.htm"), "one");
  EXPECT_EQ(Content("cTMP.htm"), "(none)");
}

TEST_F(CopiesOnDisk, ADamagedListRemovesNothingThatIsNotOurs) {
  Put("a.htm", "page");
  InAKilledRun([this](TemporaryCopies &copies) { Write(copies, "aTMP.htm", "one"); });
  const QString list = StateFolder() + "/copies/" + Lists().value(0);
  QFile file(list);
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("1 2 3 4 " + Name("a.htm") + "\n\n x\n0 0 -1 0 " + Name("a.htm"));
  file.close();
  TemporaryCopyFiles next;
  next.RemoveAbandoned();
  EXPECT_EQ(Content("a.htm"), "page");
  EXPECT_EQ(Content("aTMP.htm"), "(none)");
}

TEST_F(CopiesOnDisk, AFailingWriteIsToldAndLeavesNoCopy) {
  FaultyCalls calls;
  for (const bool isThere : {false, true}) {
    TemporaryCopyFiles copies(calls);
    if (isThere) {
      ASSERT_EQ(Write(copies, "aTMP.htm", "one"), Outcome::Written);
    }
    // The file opened, the list written, then the content.
    calls.FailAt(3, ENOSPC);
    EXPECT_EQ(ErrorOf([&] { Write(copies, "aTMP.htm", "two"); }), ErrorNumber::DiskFull);
    calls.FailNoMore();
    EXPECT_EQ(Content("aTMP.htm"), "(none)");
    EXPECT_EQ(Write(copies, "aTMP.htm", "three"), Outcome::Written);
    copies.Remove(Logic("aTMP.htm"));
  }
}

TEST_F(CopiesOnDisk, WithoutAStateFolderCopiesAreMadeAllTheSame) {
  Put("state", "a file where the folder should be");
  TemporaryCopyFiles copies;
  EXPECT_EQ(Write(copies, "aTMP.htm", "one"), Outcome::Written);
  copies.Remove(Logic("aTMP.htm"));
  EXPECT_EQ(Content("aTMP.htm"), "(none)");
}

TEST_F(CopiesOnDisk, ARunWhoseCopiesAreGoneLeavesNoList) {
  {
    TemporaryCopyFiles copies;
    Write(copies, "aTMP.htm", "one");
    EXPECT_EQ(Lists().size(), 1);
    copies.Remove(Logic("aTMP.htm"));
  }
  EXPECT_TRUE(Lists().isEmpty());
}

}  // namespace
}  // namespace velor
