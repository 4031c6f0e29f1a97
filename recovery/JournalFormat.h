// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"

#include <optional>

class QIODevice;

// The format of a page's journal: a first line, then records, each with its length and a checksum.
// The first record that is cut off or damaged ends the journal; those before it count. Numbers are
// in native byte order: a journal is only read on the machine that wrote it.
namespace velor {

/// The first line.
QByteArray JournalHead();

/// A record of the whole page.
QByteArray JournalRecord(const JournalledPage &page);

/// A record of a change of the document: the one range that differs.
QByteArray JournalChange(const QString &before, const QString &after, const QDateTime &time);

/// A record of a change of the source that is not applied; nullopt for none. Empty where the two
/// are equal.
QByteArray JournalSourceChange(const std::optional<QString> &before,
                               const std::optional<QString> &after, const QDateTime &time);

/// A record of the pictures that are not in the saved page; empty where the two are equal.
QByteArray JournalPictures(const QList<JournalledPicture> &before,
                           const QList<JournalledPicture> &after, const QDateTime &time);

/// A record that the run ended by an exit; empty for RunEnd::Unforeseen, which has no record.
QByteArray JournalEnd(RunEnd end, const QDateTime &time);

/// The page after the last whole record; nothing where not even the first record is whole.
std::optional<JournalReading> ReadJournal(const QByteArray &journal);

/// The line of a list of journals: reads a few bytes of each record and checks no sums. Nothing
/// where the file does not begin as a journal.
std::optional<AbandonedPage> SummariseJournal(QIODevice &journal);

}  // namespace velor
