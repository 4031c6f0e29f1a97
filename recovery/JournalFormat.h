// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"

#include <optional>

class QIODevice;

/// The format of a page's journal: a first line, then records, each with its length and a checksum.
/// A torn record ends the journal: what stands before it counts. Numbers are in the machine's own
/// byte order, since journals do not travel.
namespace velor {

/// The first line.
QByteArray JournalHead();

/// A record of the whole page.
QByteArray JournalRecord(const JournalledPage &page);

/// A record of a change of the document: the one stretch that differs.
QByteArray JournalChange(const QString &before, const QString &after, const QDateTime &time);

/// The same for the source that was not applied; empty where the two are equal.
QByteArray JournalSourceChange(const std::optional<QString> &before,
                               const std::optional<QString> &after, const QDateTime &time);

/// That the page was left like this when the person closed the program; nothing for another end.
QByteArray JournalEnd(RunEnd end, const QDateTime &time);

/// The page as the last whole record leaves it; nothing where not even the first is whole.
std::optional<JournalReading> ReadJournal(const QByteArray &journal);

/// What a list says of a journal, read from a few bytes of each record without checking the sums.
/// Nothing where it does not begin as a journal does.
std::optional<AbandonedPage> SummariseJournal(QIODevice &journal);

}  // namespace velor
