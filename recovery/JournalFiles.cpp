// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/JournalFiles.h"

#include "files/FileBytes.h"
#include "files/OwnFiles.h"
#include "files/StateFolder.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"
#include "recovery/JournalFormat.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <utility>
#include <vector>

namespace velor {

namespace {

/// Bytes that a journal may be longer than twice its page before Compact writes it anew.
constexpr qsizetype MostSlack = 256 * 1024;
/// Bytes. No page is so large that its journal is that long.
constexpr qint64 LargestJournal = 512 * 1024 * 1024;
/// Bytes that a journal needs at least.
constexpr qsizetype RoomAtLeast = 4096;
/// Folders that Abandoned looks into, empty ones included: a limit for the time of a start.
constexpr int MostLookedAt = 1000;

const QString LockName = QStringLiteral("lock");
const QString Fragments = QStringLiteral("*.tmp");

/// Everything with a journal's name, plain file or not: what cannot be read is reported, not
/// skipped.
QStringList JournalsIn(const QString &folder) {
  return QDir(folder).entryList(
      {QStringLiteral("*.page")},
      QDir::Files | QDir::Dirs | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// Locks a run's folder; not open where another process has the lock, or the folder is gone.
FileDescriptor TakeLock(const QString &folder) {
  return OpenLocked(folder + u'/' + LockName, LockCreation::IfMissing);
}

/// The folders of runs, the newest first.
QStringList RunsIn(const QString &root) {
  const auto filter = QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot;
  std::vector<std::pair<qint64, QString>> runs;
  for (const QString &name : QDir(root).entryList(filter, QDir::Unsorted))
    runs.emplace_back(QStringView(name).mid(name.indexOf(u'-') + 1).toLongLong(), name);
  std::sort(runs.begin(), runs.end(), std::greater());
  QStringList names;
  for (auto &[begin, name] : runs) names << std::move(name);
  return names;
}

RuntimeError Defect(const QString &path, const QString &why) {
  return RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("Journal"),
                      Words::tr("%1 cannot be read: %2").arg(path, why));
}

/// Opens a journal for reading. Raises RuntimeError where it cannot be opened, is no plain file, is
/// another user's or too large.
FileDescriptor OpenJournal(const QString &path) {
  OwnFile journal = OpenOwnFile(path);
  switch (journal.defect) {
    case OwnFileDefect::Unreadable:
      throw RuntimeError::FromErrno(journal.error, QStringLiteral("Journal"), path);
    case OwnFileDefect::NoPlainFile:
      throw Defect(path, Words::tr("it is not a file."));
    case OwnFileDefect::OtherUsers:
      throw Defect(path, Words::tr("it is another user's."));
    case OwnFileDefect::None:
      break;
  }
  if (journal.bytes > LargestJournal) throw Defect(path, Words::tr("it is too large."));
  return std::move(journal.file);
}

QString DamagedBeginning() {
  return Words::tr("its beginning is damaged, or another version of the program wrote it.");
}

AbandonedPage Summary(const QString &path) {
  AbandonedPage page;
  try {
    const FileDescriptor file = OpenJournal(path);
    QFile reader;
    reader.open(file.Number(), QIODevice::ReadOnly);
    const auto summary = SummariseJournal(reader);
    if (!summary) throw Defect(path, DamagedBeginning());
    page = *summary;
  } catch (const RuntimeError &error) {
    page.defect = error.Description();
    page.time = QFileInfo(path).lastModified();
  }
  page.id = path;
  return page;
}

class JournalFile : public Journal {
 public:
  JournalFile(JournalFiles &journals, int number, FileCalls &calls)
      : journals_(journals), number_(number), calls_(calls) {}

  void Write(const JournalledPage &page) override {
    if (!file_.IsOpen()) {
      path_ = QStringLiteral("%1/%2.page").arg(journals_.OwnFolder()).arg(number_);
      WriteWhole(page, Durability::Process);
    } else if (IsSamePage(page)) {
      Append(JournalChange(last_.page.document, page.page.document, page.time) +
             JournalSourceChange(last_.source, page.source, page.time) +
             JournalPictures(last_.pictures, page.pictures, page.time) +
             JournalEnd(page.end, page.time));
    } else {
      Append(JournalRecord(page));
    }
    last_ = page;
  }

  void Sync() override {
    if (!file_.IsOpen()) return;
    if (!SyncFile(calls_, file_.Number())) throw Failure();
    SyncName();
  }

  void Compact() override {
    if (!file_.IsOpen()) return;
    if (size_ <= 2 * WholeSize() + MostSlack) return Sync();
    WriteWhole(last_, Durability::Disk);
    SyncName();
  }

  void Remove() override {
    file_ = FileDescriptor();
    if (!path_.isEmpty()) calls_.Unlink(Name().constData());
    path_.clear();
    last_ = {};
  }

 private:
  /// Which crash the content has to survive once it is written: of the process, or of the machine.
  enum class Durability { Process, Disk };

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
    const qsizetype codeUnits =
        last_.page.document.size() + last_.source.value_or(QString()).size();
    return last_.page.original.size() + codeUnits * qsizetype{sizeof(QChar)};
  }

  /// Syncs the folder and the one above, so that both names survive a crash of the machine.
  void SyncName() {
    if (isNameOnDisk_) return;
    const QString folder = QFileInfo(path_).path();
    for (const QString &holder : {folder, QFileInfo(folder).path()}) {
      if (!SyncFolder(calls_, QFile::encodeName(holder))) throw Failure();
    }
    isNameOnDisk_ = true;
  }

  void Append(const QByteArray &record) {
    if (WriteBytes(calls_, file_.Number(), record)) {
      size_ += record.size();
      return;
    }
    const RuntimeError failure = Failure();
    // A torn record would hide the records behind it. Where it cannot be cut off, the next Write
    // begins another file.
    if (Uninterrupted([&] { return calls_.Truncate(file_.Number(), size_); }) != 0)
      file_ = FileDescriptor();
    throw failure;
  }

  /// Replaces the journal by a new file with one record. A crash at any moment leaves the old file
  /// or the new one.
  void WriteWhole(const JournalledPage &page, Durability durability) {
    const QByteArray content = JournalHead() + JournalRecord(page);
    const QString freshPath = QStringLiteral("%1/%2.tmp").arg(QFileInfo(path_).path()).arg(number_);
    const QByteArray fresh = QFile::encodeName(freshPath);
    FileDescriptor file = CreateOwnFile(calls_, freshPath);
    if (!file.IsOpen()) throw Failure();
    const bool isThere =
        WriteBytes(calls_, file.Number(), content) &&
        (durability == Durability::Process || SyncFile(calls_, file.Number())) &&
        Uninterrupted([&] { return calls_.Rename(fresh.constData(), Name().constData()); }) == 0;
    if (!isThere) {
      const RuntimeError failure = Failure();
      calls_.Unlink(fresh.constData());
      throw failure;
    }
    file_ = std::move(file);
    size_ = content.size();
    isNameOnDisk_ = false;
  }

  JournalFiles &journals_;
  const int number_;
  FileCalls &calls_;
  QString path_;  ///< empty while nothing is there
  FileDescriptor file_;
  qsizetype size_ = 0;
  bool isNameOnDisk_ = false;
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
  // Another run may look into the new folder before it is locked, and remove it; the next name is
  // tried then.
  for (int attempt = 0; own_.isEmpty() || !QFile::exists(own_); ++attempt) {
    constexpr int MostAttempts = 10;
    const QString folder = QStringLiteral("%1/%2-%3")
                               .arg(root_, QString::number(QCoreApplication::applicationPid()),
                                    QString::number(startTime + attempt));
    MakePrivateFolder(root_);
    MakePrivateFolder(folder);
    FileDescriptor lock = TakeLock(folder);
    if (lock.IsOpen()) {
      locks_[folder] = std::move(lock);
      own_ = folder;
    } else if (attempt == MostAttempts) {
      throw RuntimeError::Of(ErrorNumber::PathFileAccess, QStringLiteral("Journal"), folder);
    }
  }
  return own_;
}

std::unique_ptr<Journal> JournalFiles::Begin() {
  return std::make_unique<JournalFile>(*this, ++begun_, calls_);
}

QString JournalFiles::ReasonUnavailable() {
  try {
    const QString folder = OwnFolder();
    const bool hasRoom = WriteBytes(calls_, locks_[folder].Number(), QByteArray(RoomAtLeast, '\0'));
    const int error = errno;
    RemoveIfEmpty(folder);
    if (hasRoom) return {};
    return RuntimeError::FromErrno(error, QStringLiteral("Journal"), root_).Description();
  } catch (const RuntimeError &error) {
    return error.Description();
  }
}

bool JournalFiles::LockFolder(const QString &folder) {
  if (folder == own_) return false;
  if (locks_.contains(folder)) return true;
  FileDescriptor lock = TakeLock(folder);
  if (!lock.IsOpen()) return false;
  locks_[folder] = std::move(lock);
  return true;
}

std::vector<AbandonedPage> JournalFiles::Abandoned() {
  std::vector<AbandonedPage> pages;
  int lookedAt = 0;
  for (const QString &run : RunsIn(root_)) {
    if (pages.size() >= MostOffered || ++lookedAt > MostLookedAt) break;
    const QString folder = root_ + u'/' + run;
    if (!LockFolder(folder)) continue;
    for (const QString &name : JournalsIn(folder)) pages.push_back(Summary(folder + u'/' + name));
    RemoveIfEmpty(folder);
  }
  std::stable_sort(pages.begin(), pages.end(),
                   [](const auto &one, const auto &other) { return one.time > other.time; });
  return pages;
}

JournalReading JournalFiles::Read(const QString &id) {
  const FileDescriptor file = OpenJournal(id);
  QFile reader;
  reader.open(file.Number(), QIODevice::ReadOnly);
  auto reading = ReadJournal(reader.readAll());
  if (!reading) throw Defect(id, DamagedBeginning());
  return *std::move(reading);
}

void JournalFiles::Discard(const QString &id) {
  if (calls_.Unlink(QFile::encodeName(id).constData()) != 0 && errno != ENOENT)
    throw RuntimeError::FromErrno(errno, QStringLiteral("Journal"), id);
  RemoveIfEmpty(QFileInfo(id).path());
}

void JournalFiles::RemoveIfEmpty(const QString &folder) {
  if (!JournalsIn(folder).isEmpty() || !locks_.contains(folder)) return;
  const auto remove = [&](const QString &name) {
    calls_.Unlink(QFile::encodeName(folder + u'/' + name).constData());
  };
  // Files that a process left half written.
  for (const QString &name : QDir(folder).entryList({Fragments}, QDir::Files | QDir::Hidden))
    remove(name);
  remove(LockName);
  QDir().rmdir(folder);
  locks_.erase(folder);
  if (folder == own_) own_.clear();
}

}  // namespace velor
