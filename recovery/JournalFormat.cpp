// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/JournalFormat.h"

#include "platform/TextDifference.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace velor {

// Found by QDataStream through the type's namespace.
static QDataStream &operator<<(QDataStream &stream, const JournalledPicture &picture) {
  return stream << picture.path << picture.address << picture.digest << picture.saved
                << picture.savedDigest << picture.page;
}
static QDataStream &operator>>(QDataStream &stream, JournalledPicture &picture) {
  return stream >> picture.path >> picture.address >> picture.digest >> picture.saved >>
         picture.savedDigest >> picture.page;
}

namespace {

enum class Kind : quint8 {
  Page = 1,
  Change = 2,
  SourceChange = 3,
  SourceGone = 4,
  PageWithSource = 5,
  KeptAtExit = 6,
  Pictures = 7,
};

constexpr qsizetype LengthSize = sizeof(quint64);
constexpr qsizetype ChecksumSize = sizeof(quint64);

/// Detects records that were cut off or never written; it does not protect against forgery.
quint64 Checksum(QByteArrayView bytes) {
  constexpr quint64 Prime = 0x9E3779B97F4A7C15U;
  quint64 sum = Prime;
  for (; !bytes.isEmpty(); bytes = bytes.sliced(std::min(bytes.size(), ChecksumSize))) {
    quint64 word = 0;
    std::memcpy(&word, bytes.data(), static_cast<size_t>(std::min(bytes.size(), ChecksumSize)));
    sum = (sum ^ word) * Prime;
    sum ^= sum >> 32U;
  }
  return sum;
}

QByteArray Number(quint64 number) {
  return {reinterpret_cast<const char *>(&number), sizeof number};
}

quint64 NumberAt(QByteArrayView bytes, qsizetype offset) {
  quint64 number = 0;
  std::memcpy(&number, bytes.data() + offset, sizeof number);
  return number;
}

template <typename... Fields>
QByteArray Record(Kind kind, const Fields &...fields) {
  QByteArray payload;
  QDataStream stream(&payload, QIODevice::WriteOnly);
  stream.setVersion(QDataStream::Qt_6_4);
  stream << kind;
  (stream << ... << fields);
  return Number(static_cast<quint64>(payload.size())) + Number(Checksum(payload)) + payload;
}

QByteArray ChangeRecord(Kind kind, const QString &before, const QString &after,
                        const QDateTime &time) {
  const auto difference = TextDifference::Between(before, after);
  return Record(kind, qint64{time.toMSecsSinceEpoch()}, qint64{difference.start},
                qint64{difference.removed}, difference.InsertedIn(after).toString());
}

/// Replaces the range that a change record holds; false, with nothing changed, where it does not
/// lie within the text.
bool Replace(QString &text, QDataStream &change) {
  qint64 start = 0;
  qint64 removed = 0;
  QString inserted;
  change >> start >> removed >> inserted;
  const bool isWithin =
      start >= 0 && start <= text.size() && removed >= 0 && removed <= text.size() - start;
  if (change.status() != QDataStream::Ok || !isWithin) return false;
  text.replace(start, removed, inserted);
  return true;
}

std::optional<JournalledPage> WholePage(QDataStream &stream, Kind kind) {
  JournalledPage whole;
  quint8 saving = 0;
  PageMemory &memory = whole.page;
  stream >> whole.path >> whole.caption >> saving >> memory.original >> memory.base >>
      memory.document;
  if (kind == Kind::PageWithSource) stream >> whole.source.emplace();
  if (stream.status() != QDataStream::Ok) return std::nullopt;
  whole.saving = static_cast<JournalledPage::Saving>(saving);
  return whole;
}

/// How the run ended, by its last record: records behind the one of an exit mean that it went on.
RunEnd EndOf(Kind last) {
  return last == Kind::KeptAtExit ? RunEnd::Exit : RunEnd::Unforeseen;
}

/// Applies a record to the page; false, with nothing changed, for a record of unknown form.
bool Apply(const QByteArray &payload, std::optional<JournalledPage> &page) {
  QDataStream stream(payload);
  stream.setVersion(QDataStream::Qt_6_4);
  Kind kind{};
  qint64 time = 0;
  stream >> kind >> time;
  if (kind == Kind::Page || kind == Kind::PageWithSource) {
    auto whole = WholePage(stream, kind);
    if (!whole) return false;
    page = std::move(whole);
  } else if (kind == Kind::Change && page) {
    if (!Replace(page->page.document, stream)) return false;
  } else if (kind == Kind::SourceChange && page) {
    QString source = page->source.value_or(QString());
    if (!Replace(source, stream)) return false;
    page->source = source;
  } else if (kind == Kind::SourceGone && page) {
    page->source.reset();
  } else if (kind == Kind::Pictures && page) {
    QList<JournalledPicture> pictures;
    stream >> pictures;
    if (stream.status() != QDataStream::Ok) return false;
    page->pictures = pictures;
  } else if (kind != Kind::KeptAtExit || !page) {
    return false;
  }
  page->end = EndOf(kind);
  page->time = QDateTime::fromMSecsSinceEpoch(time);
  return true;
}

}  // namespace

QByteArray JournalHead() {
  return QByteArrayLiteral("Velor page journal 1\n");
}

QByteArray JournalRecord(const JournalledPage &page) {
  const auto record = [&page](Kind kind, const auto &...source) {
    return Record(kind, qint64{page.time.toMSecsSinceEpoch()}, page.path, page.caption,
                  static_cast<quint8>(page.saving), page.page.original, page.page.base,
                  page.page.document, source...);
  };
  return (page.source ? record(Kind::PageWithSource, *page.source) : record(Kind::Page)) +
         JournalPictures({}, page.pictures, page.time) + JournalEnd(page.end, page.time);
}

QByteArray JournalEnd(RunEnd end, const QDateTime &time) {
  if (end != RunEnd::Exit) return {};
  return Record(Kind::KeptAtExit, qint64{time.toMSecsSinceEpoch()});
}

QByteArray JournalChange(const QString &before, const QString &after, const QDateTime &time) {
  return ChangeRecord(Kind::Change, before, after, time);
}

QByteArray JournalSourceChange(const std::optional<QString> &before,
                               const std::optional<QString> &after, const QDateTime &time) {
  if (before == after) return {};
  if (!after) return Record(Kind::SourceGone, qint64{time.toMSecsSinceEpoch()});
  return ChangeRecord(Kind::SourceChange, before.value_or(QString()), *after, time);
}

QByteArray JournalPictures(const QList<JournalledPicture> &before,
                           const QList<JournalledPicture> &after, const QDateTime &time) {
  if (before == after) return {};
  return Record(Kind::Pictures, qint64{time.toMSecsSinceEpoch()}, after);
}

std::optional<JournalReading> ReadJournal(const QByteArray &journal) {
  if (!journal.startsWith(JournalHead())) return std::nullopt;
  std::optional<JournalledPage> page;
  qsizetype offset = JournalHead().size();
  while (offset < journal.size()) {
    const qsizetype payload = offset + LengthSize + ChecksumSize;
    if (payload > journal.size()) break;
    const quint64 length = NumberAt(journal, offset);
    if (length > static_cast<quint64>(journal.size() - payload)) break;
    const QByteArray bytes =
        QByteArray::fromRawData(journal.constData() + payload, static_cast<qsizetype>(length));
    if (Checksum(bytes) != NumberAt(journal, offset + LengthSize)) break;
    if (!Apply(bytes, page)) break;
    offset = payload + bytes.size();
  }
  if (!page) return std::nullopt;
  return JournalReading{*page, offset < journal.size()};
}

std::optional<AbandonedPage> SummariseJournal(QIODevice &journal) {
  if (journal.read(JournalHead().size()) != JournalHead()) return std::nullopt;
  std::optional<AbandonedPage> summary;
  for (;;) {
    const QByteArray numbers = journal.read(LengthSize + ChecksumSize);
    if (numbers.size() < LengthSize + ChecksumSize) return summary;
    const auto left = static_cast<quint64>(journal.size() - journal.pos());
    const quint64 length = NumberAt(numbers, 0);
    if (length > left) return summary;
    const qint64 next = journal.pos() + static_cast<qint64>(length);
    QDataStream stream(&journal);
    stream.setVersion(QDataStream::Qt_6_4);
    Kind kind{};
    qint64 time = 0;
    stream >> kind >> time;
    if (!summary && kind != Kind::Page && kind != Kind::PageWithSource) return summary;
    AbandonedPage read = summary.value_or(AbandonedPage());
    if (kind == Kind::Page || kind == Kind::PageWithSource) stream >> read.path >> read.caption;
    if (stream.status() != QDataStream::Ok) return summary;
    read.time = QDateTime::fromMSecsSinceEpoch(time);
    read.end = EndOf(kind);
    if (kind != Kind::Change && kind != Kind::KeptAtExit && kind != Kind::Pictures)
      read.hasSource = kind == Kind::SourceChange || kind == Kind::PageWithSource;
    summary = read;
    if (!journal.seek(next)) return summary;
  }
}

}  // namespace velor
