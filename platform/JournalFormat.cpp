// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFormat.h"

#include "platform/TextDifference.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace velor {

namespace {

enum class Kind : quint8 { Page = 1, Change = 2 };

constexpr qsizetype LengthSize = sizeof(quint64);
constexpr qsizetype ChecksumSize = sizeof(quint64);

/// Tells a torn or empty end of a file from what was written; no protection against intent.
quint64 Checksum(QByteArrayView bytes) {
  constexpr quint64 prime = 0x9E3779B97F4A7C15U;
  quint64 sum = prime;
  for (; !bytes.isEmpty(); bytes = bytes.sliced(std::min(bytes.size(), ChecksumSize))) {
    quint64 word = 0;
    std::memcpy(&word, bytes.data(), static_cast<size_t>(std::min(bytes.size(), ChecksumSize)));
    sum = (sum ^ word) * prime;
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
  stream << static_cast<quint8>(kind);
  (stream << ... << fields);
  return Number(static_cast<quint64>(payload.size())) + Number(Checksum(payload)) + payload;
}

/// Carries a record out on the page; false for one that says nothing to us.
bool Apply(const QByteArray &payload, std::optional<JournalledPage> &page) {
  QDataStream stream(payload);
  stream.setVersion(QDataStream::Qt_6_4);
  quint8 kind = 0;
  qint64 time = 0;
  stream >> kind >> time;
  if (kind == static_cast<quint8>(Kind::Page)) {
    JournalledPage whole;
    quint8 saving = 0;
    PageMemory &memory = whole.page;
    stream >> whole.path >> whole.caption >> saving >> memory.original >> memory.base >>
        memory.document;
    whole.saving = static_cast<JournalledPage::Saving>(saving);
    page = whole;
  } else if (kind == static_cast<quint8>(Kind::Change) && page) {
    qint64 start = 0;
    qint64 removed = 0;
    QString inserted;
    stream >> start >> removed >> inserted;
    page->page.document.replace(start, removed, inserted);
  } else {
    return false;
  }
  page->time = QDateTime::fromMSecsSinceEpoch(time);
  return stream.status() == QDataStream::Ok;
}

}  // namespace

QByteArray JournalHead() {
  return QByteArrayLiteral("Velor page journal 1\n");
}

QByteArray JournalRecord(const JournalledPage &page) {
  return Record(Kind::Page, qint64{page.time.toMSecsSinceEpoch()}, page.path, page.caption,
                static_cast<quint8>(page.saving), page.page.original, page.page.base,
                page.page.document);
}

QByteArray JournalChange(const QString &before, const QString &after, const QDateTime &time) {
  const auto difference = TextDifference::Between(before, after);
  return Record(Kind::Change, qint64{time.toMSecsSinceEpoch()}, qint64{difference.start},
                qint64{difference.removed}, difference.InsertedIn(after).toString());
}

std::optional<JournalledPage> ReadJournal(const QByteArray &journal) {
  std::optional<JournalledPage> page;
  if (!journal.startsWith(JournalHead())) return page;
  qsizetype offset = JournalHead().size();
  for (;;) {
    const qsizetype payload = offset + LengthSize + ChecksumSize;
    if (payload > journal.size()) return page;
    const quint64 length = NumberAt(journal, offset);
    if (length > static_cast<quint64>(journal.size() - payload)) return page;
    const QByteArray bytes =
        QByteArray::fromRawData(journal.constData() + payload, static_cast<qsizetype>(length));
    if (Checksum(bytes) != NumberAt(journal, offset + LengthSize)) return page;
    if (!Apply(bytes, page)) return page;
    offset = payload + bytes.size();
  }
}

}  // namespace velor
