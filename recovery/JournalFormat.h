// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"

#include <optional>

class QIODevice;

/// What a page's journal is made of: a first line, then records, each with its length and a
/// checksum. A record that the process did not live to finish ends the journal: what stands before
/// it counts. All of it is in the machine's favour, not a person's: journals do not travel.
namespace velor {

/// The beginning of every journal.
QByteArray JournalHead();

/// The whole page.
QByteArray JournalRecord(const JournalledPage &page);

/// The step from one state of the document to another: the one stretch that differs.
QByteArray JournalChange(const QString &before, const QString &after, const QDateTime &time);

/// The same for the source that was not applied; nothing where there is none.
QByteArray JournalSourceChange(const std::optional<QString> &before,
                               const std::optional<QString> &after, const QDateTime &time);

/// The page as the last whole record leaves it; nothing where not even the first is whole.
std::optional<JournalReading> ReadJournal(const QByteArray &journal);

/// What a list says of a journal, from a few bytes of each record: nothing is checked that is not
/// read. Nothing where it does not begin as a journal does.
std::optional<AbandonedPage> SummariseJournal(QIODevice &journal);

}  // namespace velor
