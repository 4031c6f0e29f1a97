// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetJournal.h"

#include "catalogue/jet/JetBytes.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <array>
#include <cstring>
#include <optional>
#include <vector>

namespace velor {

namespace {

constexpr std::array<char, 16> JournalMark = {'V', 'e', 'l', 'o', 'r', ' ', 'J', 'e',
                                              't', ' ', 'j', 'n', 'l', ' ', '1', '\n'};
constexpr int SectorBytes = 512;
constexpr int Sectors = jet::PageBytes / SectorBytes;
constexpr qint64 Millisecond = 1'000'000;
/// How far apart the time of a page write and that of the journal's touch before it can lie: file
/// systems keep times to two seconds at worst, and round down.
constexpr qint64 LatestWrite = 250 * Millisecond;
constexpr qint64 EarliestWrite = -2000 * Millisecond;

struct Record {
  jet::PageNumber number = 0;
  jet::Page before = {};
  std::array<quint64, Sectors> after = {};
};

struct Head {
  qint64 bytesBefore = 0;
  qint64 bytesAfter = 0;
  qint64 modified = 0;
  quint32 records = 0;
};

struct Journal {
  Head head;
  std::vector<Record> records;
};

constexpr std::size_t HeadBytes = JournalMark.size() + 8 + 8 + 8 + 4 + 8;
constexpr std::size_t RecordBytes = 4 + jet::PageBytes + Sectors * 8 + 8;

/// FNV-1a over words of eight bytes, the last one filled with zeros.
quint64 Checksum(JetBytes bytes) {
  quint64 sum = 0xCBF29CE484222325;
  for (std::size_t at = 0; at < bytes.size(); at += sizeof(quint64)) {
    std::array<unsigned char, sizeof(quint64)> word = {};
    std::memcpy(word.data(), bytes.data() + at, std::min(word.size(), bytes.size() - at));
    sum = (sum ^ jet::Get<quint64>(word.data())) * 0x100000001B3;
  }
  return sum;
}

std::array<quint64, Sectors> SectorSums(const jet::Page &page) {
  std::array<quint64, Sectors> sums;
  for (std::size_t sector = 0; sector < sums.size(); ++sector) {
    sums[sector] = Checksum(JetBytes(page).subspan(sector * SectorBytes, SectorBytes));
  }
  return sums;
}

/// Appends numbers and bytes, and in the end the checksum of what was appended.
class Writer {
 public:
  template <typename Number>
  void Add(Number number) {
    std::array<unsigned char, sizeof number> bytes;
    jet::Put(bytes.data(), number);
    AddBytes(bytes.data(), bytes.size());
  }
  void AddBytes(const void *bytes, std::size_t count) {
    bytes_.append(static_cast<const char *>(bytes), static_cast<qsizetype>(count));
  }
  QByteArray Finish() {
    Add(Checksum({reinterpret_cast<const unsigned char *>(bytes_.constData()),
                  static_cast<std::size_t>(bytes_.size())}));
    return bytes_;
  }

 private:
  QByteArray bytes_;
};

QByteArray HeadOf(const JetStamp &stamp, qint64 bytesAfter, quint32 records) {
  Writer writer;
  writer.AddBytes(JournalMark.data(), JournalMark.size());
  writer.Add(stamp.bytes);
  writer.Add(bytesAfter);
  writer.Add(stamp.modified);
  writer.Add(records);
  return writer.Finish();
}

QByteArray RecordOf(jet::PageNumber number, const jet::Page &before, const jet::Page &after) {
  Writer writer;
  writer.Add(number);
  writer.AddBytes(before.data(), before.size());
  for (const quint64 sum : SectorSums(after)) writer.Add(sum);
  return writer.Finish();
}

bool HasChecksum(JetBytes part) {
  const std::size_t content = part.size() - sizeof(quint64);
  return Checksum(part.first(content)) == jet::Get<quint64>(part.data() + content);
}

Record ReadRecord(JetBytes part) {
  Record record;
  record.number = jet::Get<quint32>(part.data());
  part = part.subspan(sizeof(quint32));
  std::copy_n(part.begin(), record.before.size(), record.before.begin());
  part = part.subspan(record.before.size());
  for (std::size_t sector = 0; sector < record.after.size(); ++sector) {
    record.after[sector] = jet::Get<quint64>(part.data() + sector * sizeof(quint64));
  }
  return record;
}

std::optional<Head> ReadHead(JetBytes bytes) {
  if (bytes.size() < HeadBytes || !HasChecksum(bytes.first(HeadBytes)) ||
      std::memcmp(bytes.data(), JournalMark.data(), JournalMark.size()) != 0) {
    return std::nullopt;
  }
  const unsigned char *head = bytes.data() + JournalMark.size();
  return Head{jet::Get<qint64>(head), jet::Get<qint64>(head + 8), jet::Get<qint64>(head + 16),
              jet::Get<quint32>(head + 24)};
}

/// Whether the journal was cut off while it was written: no page has been written then.
bool IsUnfinished(JetBytes bytes) {
  if (bytes.size() < HeadBytes) {
    const std::size_t known = std::min(bytes.size(), JournalMark.size());
    return std::memcmp(bytes.data(), JournalMark.data(), known) == 0;
  }
  const auto head = ReadHead(bytes);
  return head && bytes.size() < HeadBytes + head->records * RecordBytes;
}

/// Nothing for a journal that is not whole.
std::optional<Journal> ReadJournal(JetBytes bytes) {
  const auto head = ReadHead(bytes);
  if (!head || bytes.size() != HeadBytes + head->records * RecordBytes) return std::nullopt;
  Journal journal{*head, {}};
  for (bytes = bytes.subspan(HeadBytes); !bytes.empty(); bytes = bytes.subspan(RecordBytes)) {
    if (!HasChecksum(bytes.first(RecordBytes))) return std::nullopt;
    journal.records.push_back(ReadRecord(bytes));
  }
  return journal;
}

/// Whether every sector of the file has its content before or after the commit.
bool HoldsOnlyOurs(JetStorage &storage, const Journal &journal) {
  jet::Page page;
  for (const Record &record : journal.records) {
    storage.ReadPage(record.number, page);
    const auto now = SectorSums(page);
    const auto before = SectorSums(record.before);
    for (std::size_t sector = 0; sector < now.size(); ++sector) {
      if (now[sector] != before[sector] && now[sector] != record.after[sector]) return false;
    }
  }
  return true;
}

/// Whether the file's modification time is the one that the commit kept, or that of the commit's
/// last write, if it ended before it could set the time back.
bool IsUnchangedSince(JetStorage &storage, const Journal &journal) {
  const JetStamp stamp = storage.Stamp();
  if (stamp.bytes < journal.head.bytesBefore || stamp.bytes > journal.head.bytesAfter) return false;
  if (stamp.modified == journal.head.modified) return true;
  const qint64 later = stamp.modified - storage.JournalModified();
  return later >= EarliestWrite && later <= LatestWrite && HoldsOnlyOurs(storage, journal);
}

void PutBack(JetStorage &storage, const Journal &journal) {
  storage.PinModificationTime(journal.head.modified);
  for (const Record &record : journal.records) storage.WritePage(record.number, record.before);
  storage.Truncate(journal.head.bytesBefore);
  storage.Sync();
  storage.RemoveJournal();
}

void CheckCanPutBack(JetStorage &storage) {
  QString objection = storage.WriteObjection();
  if (objection.isEmpty()) {
    const QString holder = storage.LockedBy();
    if (holder.isEmpty()) return;
    objection = Words::tr("it is open in another program: %1").arg(holder);
  }
  throw RuntimeError::Of(
      ErrorNumber::PermissionDenied, QStringLiteral("Database"),
      Words::tr("a change of %1 was interrupted and has to be undone first, but %2")
          .arg(storage.Path(), objection));
}

void WriteJournal(JetStorage &storage, const JetPager &pager) {
  const JetStamp &stamp = pager.Stamp();
  const auto existing = static_cast<jet::PageNumber>(stamp.bytes / jet::PageBytes);
  const auto &changes = pager.Now().changes;
  const auto appended = changes.lower_bound(existing);
  storage.AppendJournal(HeadOf(stamp, static_cast<qint64>(pager.PageCount()) * jet::PageBytes,
                               static_cast<quint32>(std::distance(changes.begin(), appended))));
  jet::Page before;
  for (auto change = changes.begin(); change != appended; ++change) {
    storage.ReadPage(change->first, before);
    jet::Page after = *change->second;
    pager.ApplyKey(change->first, after);
    storage.AppendJournal(RecordOf(change->first, before, after));
  }
  storage.SyncJournal();
}

void WritePages(JetStorage &storage, const JetPager &pager) {
  storage.PinModificationTime(pager.Stamp().modified);
  for (const auto &[number, page] : pager.Now().changes) {
    jet::Page encoded = *page;
    pager.ApplyKey(number, encoded);
    storage.WritePage(number, encoded);
  }
  storage.Sync();
}

}  // namespace

void CommitJetChanges(JetStorage &storage, const JetPager &pager) {
  storage.CreateJournal();
  try {
    WriteJournal(storage, pager);
  } catch (const RuntimeError &) {
    // No page has been written: the journal says nothing that the file does not.
    storage.RemoveJournal();
    throw;
  }
  try {
    WritePages(storage, pager);
    storage.RemoveJournal();
  } catch (const RuntimeError &) {
    if (const auto journal = ReadJournal(BytesOf(storage.ReadJournal())))
      PutBack(storage, *journal);
    throw;
  }
  storage.PinModificationTime(std::nullopt);
}

QString RecoverJetFile(JetStorage &storage) {
  switch (storage.FindJournal()) {
    case JetStorage::JournalState::None:
      return {};
    case JetStorage::JournalState::InUse:
      throw RuntimeError::Of(ErrorNumber::PermissionDenied, QStringLiteral("Database"),
                             Words::tr("another program is just writing %1").arg(storage.Path()));
    case JetStorage::JournalState::Leftover:
      break;
  }
  const QByteArray content = storage.ReadJournal();
  if (IsUnfinished(BytesOf(content))) {
    storage.RemoveJournal();
    return {};
  }
  const auto journal = ReadJournal(BytesOf(content));
  if (!journal) {
    return Words::tr(
               "The journal beside %1 is damaged. The file is left as it is; the journal "
               "is kept as %2.")
        .arg(storage.Path(), storage.SetJournalAside());
  }
  if (!IsUnchangedSince(storage, *journal)) {
    return Words::tr(
               "A change of %1 was interrupted, and another program has written the file "
               "since. It is left as it is; what it held before is kept in %2.")
        .arg(storage.Path(), storage.SetJournalAside());
  }
  CheckCanPutBack(storage);
  PutBack(storage, *journal);
  return Words::tr("A change of %1 was interrupted; the file has been put back as it was before.")
      .arg(storage.Path());
}

}  // namespace velor
