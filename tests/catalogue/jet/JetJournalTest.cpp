// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetJournal.h"
#include "files/JetLockFile.h"
#include "files/PosixJetStorage.h"
#include "tests/support/Checks.h"
#include "tests/support/jet/OthersLockFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace velor {
namespace {

using jet::Page;
using jet::PageNumber;

/// Ends the process's part in the middle of a commit: nothing of its clean-up runs.
struct Killed {};

/// The real storage, stopped before or failing at one of its page writes.
class InterruptedStorage final : public JetStorage {
 public:
  enum class Ending { Killed, DiskFull };

  InterruptedStorage(const QString &path, int writesBefore, Ending ending)
      : real_(OpenJetStorage(path)), left_(writesBefore), ending_(ending) {}

  QString Path() const override { return real_->Path(); }
  JetStamp Stamp() override { return real_->Stamp(); }
  QString WriteObjection() override { return real_->WriteObjection(); }
  QString LockedBy() override { return real_->LockedBy(); }
  void ReadPage(PageNumber number, Page &page) override { real_->ReadPage(number, page); }
  void WritePage(PageNumber number, const Page &page) override {
    if (left_-- == 0) {
      if (ending_ == Ending::Killed) throw Killed();
      throw RuntimeError::Of(ErrorNumber::DiskFull, QStringLiteral("Test"));
    }
    real_->WritePage(number, page);
  }
  void Truncate(qint64 bytes) override { real_->Truncate(bytes); }
  void Sync() override { real_->Sync(); }
  void PinModificationTime(std::optional<qint64> time) override {
    real_->PinModificationTime(time);
  }
  void Backup() override { real_->Backup(); }
  JournalState FindJournal() override { return real_->FindJournal(); }
  qint64 JournalModified() override { return real_->JournalModified(); }
  QByteArray ReadJournal() override { return real_->ReadJournal(); }
  void CreateJournal() override { real_->CreateJournal(); }
  void AppendJournal(const QByteArray &bytes) override { real_->AppendJournal(bytes); }
  void SyncJournal() override { real_->SyncJournal(); }
  void RemoveJournal() override { real_->RemoveJournal(); }
  QString SetJournalAside() override { return real_->SetJournalAside(); }

 private:
  std::unique_ptr<JetStorage> real_;
  int left_;
  Ending ending_;
};

constexpr int Pages = 5;
constexpr int ChangedPages = 4;

/// A file of five pages, whose pages 1 and 3 are changed and to which two are appended.
class JetJournal : public ::testing::Test {
 protected:
  JetJournal() : path_(folder_.filePath(QStringLiteral("file.mdb"))) {
    for (int page = 0; page < Pages; ++page) {
      before_ += QByteArray(jet::PageBytes, static_cast<char>('a' + page));
    }
    after_ = before_;
    after_.replace(1 * jet::PageBytes, jet::PageBytes, QByteArray(jet::PageBytes, 'X'));
    after_.replace(3 * jet::PageBytes, jet::PageBytes, QByteArray(jet::PageBytes, 'Y'));
    after_ += QByteArray(jet::PageBytes, 'Z') + QByteArray(jet::PageBytes, 'W');
    Write(path_, before_);
  }

  static void Write(const QString &path, const QByteArray &content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Content() const {
    QFile file(path_);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  QStringList Beside() const { return QDir(folder_.path()).entryList(QDir::Files); }

  static void Commit(JetStorage &storage) {
    JetPager pager(storage);
    pager.Reset(storage.Stamp());
    pager.Modify(1).fill('X');
    pager.Modify(3).fill('Y');
    pager.Modify(pager.Append()).fill('Z');
    pager.Modify(pager.Append()).fill('W');
    CommitJetChanges(storage, pager);
  }

  /// Leaves the file and the journal as a process does that is killed there.
  void KillBeforeWrite(int number) const {
    InterruptedStorage storage(path_, number, InterruptedStorage::Ending::Killed);
    EXPECT_THROW(Commit(storage), Killed);
  }

  QString Recover() const {
    const auto storage = OpenJetStorage(path_);
    return RecoverJetFile(*storage);
  }

  QTemporaryDir folder_;
  QString path_;
  QByteArray before_;
  QByteArray after_;
};

TEST_F(JetJournal, IsGoneAfterACommitThatEnded) {
  Commit(*OpenJetStorage(path_));
  EXPECT_EQ(Content(), after_);
  EXPECT_EQ(Beside(), QStringList{QStringLiteral("file.mdb")});
  EXPECT_EQ(Recover(), "");
}

TEST_F(JetJournal, GivesTheFileTheTimeOfTheChange) {
  const auto storage = OpenJetStorage(path_);
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime);
  file.close();
  Commit(*storage);
  EXPECT_LT(QFileInfo(path_).lastModified().secsTo(QDateTime::currentDateTime()), 60);
}

TEST_F(JetJournal, PutsTheFileBackAfterAKillBeforeAnyWrite) {
  for (int number = 0; number < ChangedPages; ++number) {
    KillBeforeWrite(number);
    EXPECT_FALSE(Recover().isEmpty());
    EXPECT_EQ(Content(), before_) << "killed before write " << number;
    EXPECT_EQ(Beside(), QStringList{QStringLiteral("file.mdb")});
  }
}

TEST_F(JetJournal, PutsTheFileBackAtOnceWhenAWriteFails) {
  InterruptedStorage storage(path_, 2, InterruptedStorage::Ending::DiskFull);
  EXPECT_EQ(ErrorOf([&] { Commit(storage); }), ErrorNumber::DiskFull);
  EXPECT_EQ(Content(), before_);
  EXPECT_EQ(Beside(), QStringList{QStringLiteral("file.mdb")});
}

TEST_F(JetJournal, IsSetAsideWhenAnotherProgramHasWrittenTheFileSince) {
  KillBeforeWrite(2);
  QByteArray others = Content();
  others[2 * jet::PageBytes] = '!';
  others[3 * jet::PageBytes] = '!';
  Write(path_, others);
  EXPECT_TRUE(Recover().contains(QStringLiteral("file.mdb-journal.aside")));
  EXPECT_EQ(Content(), others);
  EXPECT_TRUE(Beside().contains(QStringLiteral("file.mdb-journal.aside")));
}

TEST_F(JetJournal, IsSetAsideWhenTheFileHasAnotherTimeOrSize) {
  KillBeforeWrite(1);
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.setFileTime(QDateTime::currentDateTime().addSecs(100), QFileDevice::FileModificationTime);
  file.close();
  EXPECT_TRUE(Recover().contains(QStringLiteral("journal.aside")));

  Write(path_, before_);
  KillBeforeWrite(1);
  const QByteArray longer = before_ + QByteArray(10 * jet::PageBytes, '!');
  Write(path_, longer);
  EXPECT_TRUE(Recover().contains(QStringLiteral("journal.aside-2")));
  EXPECT_EQ(Content(), longer);
}

TEST_F(JetJournal, UndoesTheOneWriteThatTheKillCaughtBeforeItsTimeWasSetBack) {
  KillBeforeWrite(1);
  // The kill after the write itself: the page is new, the time is now.
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  QFile journal(path_ + QStringLiteral("-journal"));
  ASSERT_TRUE(journal.open(QIODevice::ReadWrite));
  journal.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
  file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
  file.close();
  EXPECT_FALSE(Recover().contains(QStringLiteral("aside")));
  EXPECT_EQ(Content(), before_);
}

TEST_F(JetJournal, ThatWasNeverFinishedIsRemoved) {
  KillBeforeWrite(0);
  const QString journal = path_ + QStringLiteral("-journal");
  QFile file(journal);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  file.close();
  for (const qsizetype size : {qsizetype(0), qsizetype(7), qsizetype(20), whole.size() / 2}) {
    Write(journal, whole.left(size));
    EXPECT_EQ(Recover(), "");
    EXPECT_EQ(Content(), before_);
    EXPECT_FALSE(QFileInfo::exists(journal));
  }
}

TEST_F(JetJournal, ThatIsDamagedOrNotOursIsSetAside) {
  KillBeforeWrite(0);
  const QString journal = path_ + QStringLiteral("-journal");
  QFile file(journal);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.seek(2000);
  file.write("?");
  file.close();
  EXPECT_TRUE(Recover().contains(QStringLiteral("damaged")));
  EXPECT_EQ(Content(), before_);
  Write(journal, QByteArray(5000, 'n'));
  EXPECT_TRUE(Recover().contains(QStringLiteral("aside-2")));
}

TEST_F(JetJournal, OfAnotherProgramThatIsWritingIsLeftAlone) {
  const auto writer = OpenJetStorage(path_);
  writer->CreateJournal();
  EXPECT_EQ(ErrorOf([this] { Recover(); }), ErrorNumber::PermissionDenied);
  EXPECT_NE(ErrorOf([this] { Commit(*OpenJetStorage(path_)); }), ErrorNumber::None);
  EXPECT_TRUE(QFileInfo::exists(path_ + QStringLiteral("-journal")));
  EXPECT_EQ(Content(), before_);
}

TEST_F(JetJournal, IsNotPutBackUnderAProgramThatHasTheFileOpen) {
  KillBeforeWrite(1);
  fixture::OthersLockFile locks(folder_.filePath(QStringLiteral("file.ldb")));
  locks.WriteSlots({"PC", "Admin"});
  locks.Hold(0);
  EXPECT_EQ(ErrorOf([this] { Recover(); }), ErrorNumber::PermissionDenied);
  locks.Release();
  Recover();
  EXPECT_EQ(Content(), before_);
}

TEST_F(JetJournal, CopiesTheFileWholeForTheBackup) {
  OpenJetStorage(path_)->Backup();
  QFile copy(path_ + QStringLiteral(".bak"));
  ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
  EXPECT_EQ(copy.readAll(), before_);
  EXPECT_EQ(Beside().size(), 2);
}

TEST_F(JetJournal, StorageWithoutAWriteBitIsNotWritten) {
  EXPECT_EQ(OpenJetStorage(path_)->WriteObjection(), "");
  QFile::setPermissions(path_, QFile::ReadOwner);
  EXPECT_NE(OpenJetStorage(path_)->WriteObjection(), "");
}

class JetLocks : public ::testing::Test {
 protected:
  JetLocks()
      : database_(folder_.filePath(QStringLiteral("eThumbs.mdb"))),
        locks_(folder_.filePath(QStringLiteral("ETHUMBS.LDB"))) {}

  QTemporaryDir folder_;
  QString database_;
  fixture::OthersLockFile locks_;
};

TEST_F(JetLocks, AreNobodysWithoutALockFile) {
  EXPECT_EQ(JetLockHolders(database_), "");
}

TEST_F(JetLocks, ThatWereLeftBehindDoNotCount) {
  locks_.WriteSlots({"OFFICE", "Admin"});
  EXPECT_EQ(JetLockHolders(database_), "");
}

TEST_F(JetLocks, NameTheirHolders) {
  locks_.WriteSlots({"OFFICE", "Admin", "LAPTOP", "Eva", "GONE", "Left"});
  locks_.Hold(1);
  EXPECT_EQ(JetLockHolders(database_), "Eva on LAPTOP");
  locks_.Hold(0);
  EXPECT_EQ(JetLockHolders(database_), "Admin on OFFICE, Eva on LAPTOP");
}

TEST_F(JetLocks, WithoutANameAreAnotherPrograms) {
  locks_.WriteSlots({});
  locks_.Hold(0xFF);
  EXPECT_EQ(JetLockHolders(database_), "another program");
}

}  // namespace
}  // namespace velor
