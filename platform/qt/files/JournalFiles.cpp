// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/files/JournalFiles.h"

#include "platform/JournalFormat.h"
#include "platform/RuntimeError.h"
#include "platform/qt/StateFolder.h"
#include "platform/qt/files/FileBytes.h"
#include "platform/qt/files/FileReplacement.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velor {

namespace {

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;
/// A journal may be this much longer than what it stands for before it is written anew.
constexpr qsizetype MostSlack = 256 * 1024;

QString LockOf(const QString &folder) {
  return folder + QStringLiteral("/lock");
}

QStringList JournalsIn(const QString &folder) {
  return QDir(folder).entryList({QStringLiteral("*.page")}, QDir::Files, QDir::Name);
}

/// The lock of a run's folder; not open where another holds it, or where the folder has gone.
FileDescriptor TakeLock(const QString &folder, int flags) {
  FileDescriptor lock(
      open(QFile::encodeName(LockOf(folder)).constData(), O_RDWR | O_CLOEXEC | flags, OwnerOnly));
  struct stat status {};
  const bool isOurs = lock.IsOpen() && flock(lock.Number(), LOCK_EX | LOCK_NB) == 0 &&
                      fstat(lock.Number(), &status) == 0 && status.st_nlink > 0;
  return isOurs ? std::move(lock) : FileDescriptor();
}

QByteArray ContentOf(const QString &nativePath) {
  QFile file(nativePath);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class JournalFile : public Journal {
 public:
  JournalFile(JournalFiles &journals, int number, FileCalls &calls)
      : journals_(journals), number_(number), calls_(calls) {}

  void Write(const JournalledPage &page) override {
    if (!file_.IsOpen()) {
      path_ = QStringLiteral("%1/%2.page").arg(journals_.OwnFolder()).arg(number_);
      file_ = FileDescriptor(calls_.Open(
          Name().constData(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, OwnerOnly));
      if (!file_.IsOpen()) throw Failure();
      size_ = 0;
      Append(JournalHead() + JournalRecord(page));
    } else if (IsSamePage(page)) {
      Append(JournalChange(last_.page.document, page.page.document, page.time));
    } else {
      Append(JournalRecord(page));
    }
    last_ = page;
  }

  void Sync() override {
    if (file_.IsOpen() && !SyncFile(calls_, file_.Number())) throw Failure();
  }

  void Rest() override {
    const bool hasGrown = file_.IsOpen() && size_ > 2 * WholeSize() + MostSlack;
    hasGrown ? WriteAnew() : Sync();
  }

  void Remove() override {
    if (!file_.IsOpen()) return;
    file_.Close();
    calls_.Unlink(Name().constData());
    last_ = {};
  }

 private:
  QByteArray Name() const { return QFile::encodeName(path_); }
  RuntimeError Failure() const {
    return RuntimeError::FromErrno(errno, QStringLiteral("Journal"), path_);
  }
  bool IsSamePage(const JournalledPage &page) const {
    return page.path == last_.path && page.caption == last_.caption &&
           page.saving == last_.saving && page.page.base == last_.page.base &&
           page.page.original == last_.page.original;
  }
  qsizetype WholeSize() const {
    return last_.page.original.size() + last_.page.document.size() * qsizetype{sizeof(QChar)};
  }

  void Append(const QByteArray &record) {
    if (WriteBytes(calls_, file_.Number(), record)) {
      size_ += record.size();
      return;
    }
    const RuntimeError failure = Failure();
    // Half a record would hide what is appended after it.
    if (size_ == 0 || calls_.Truncate(file_.Number(), size_) != 0) file_.Close();
    throw failure;
  }

  void WriteAnew() {
    const QByteArray content = JournalHead() + JournalRecord(last_);
    CreatePrivateFile(path_, content, calls_);
    file_ = FileDescriptor(calls_.Open(Name().constData(), O_WRONLY | O_APPEND | O_CLOEXEC, 0));
    if (!file_.IsOpen()) throw Failure();
    size_ = content.size();
  }

  JournalFiles &journals_;
  const int number_;
  FileCalls &calls_;
  QString path_;
  FileDescriptor file_;
  qsizetype size_ = 0;
  JournalledPage last_;
};

}  // namespace

JournalFiles::JournalFiles(FileCalls &calls)
    : calls_(calls), root_(StateFolder() + QStringLiteral("/recovery")) {}

JournalFiles::~JournalFiles() {
  if (!own_.isEmpty()) RemoveIfEmpty(own_);
}

QString JournalFiles::OwnFolder() {
  const auto startTime = QDateTime::currentMSecsSinceEpoch();
  // Another run may look into the folder before it is locked, and remove it: then the next name.
  for (int attempt = 0; own_.isEmpty() || !QFile::exists(own_); ++attempt) {
    constexpr int mostAttempts = 10;
    const QString folder =
        QStringLiteral("%1/%2-%3")
            .arg(root_, QString::number(getpid()), QString::number(startTime + attempt));
    MakePrivateFolder(root_);
    MakePrivateFolder(folder);
    FileDescriptor lock = TakeLock(folder, O_CREAT);
    if (lock.IsOpen()) {
      locks_[folder] = std::move(lock);
      own_ = folder;
    } else if (attempt == mostAttempts) {
      throw RuntimeError::Of(ErrorNumber::PathFileAccess, QStringLiteral("Journal"), folder);
    }
  }
  return own_;
}

std::unique_ptr<Journal> JournalFiles::Begin() {
  return std::make_unique<JournalFile>(*this, ++begun_, calls_);
}

QStringList JournalFiles::Claim() {
  QStringList claimed;
  for (const QString &name : QDir(root_).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QString folder = root_ + u'/' + name;
    if (folder == own_) continue;
    if (!locks_.contains(folder)) {
      FileDescriptor lock = TakeLock(folder, 0);
      if (!lock.IsOpen()) continue;
      locks_[folder] = std::move(lock);
    }
    claimed << folder;
  }
  return claimed;
}

std::vector<AbandonedPage> JournalFiles::Abandoned() {
  std::vector<AbandonedPage> pages;
  for (const QString &folder : Claim()) {
    for (const QString &name : JournalsIn(folder)) {
      const QString id = folder + u'/' + name;
      if (auto page = ReadJournal(ContentOf(id))) {
        pages.push_back({id, *page});
      } else {
        Discard(id);
      }
    }
    RemoveIfEmpty(folder);
  }
  std::stable_sort(pages.begin(), pages.end(), [](const auto &one, const auto &other) {
    return one.page.time < other.page.time;
  });
  return pages;
}

void JournalFiles::Discard(const QString &id) {
  calls_.Unlink(QFile::encodeName(id).constData());
  RemoveIfEmpty(QFileInfo(id).path());
}

void JournalFiles::RemoveIfEmpty(const QString &folder) {
  if (!JournalsIn(folder).isEmpty() || !locks_.contains(folder)) return;
  // Whole, with what a process left there that ended while it wrote.
  QDir(folder).removeRecursively();
  locks_.erase(folder);
  if (folder == own_) own_.clear();
}

}  // namespace velor
