// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetStorage.h"

#include <QString>

namespace velor {

/// Writes the changed pages to the file, all or none. First the old content of these pages is
/// written to the journal beside the file and synced, then the pages are written, then the journal
/// is removed. When writing fails, the old content is put back and the error raised; when that
/// fails too, the journal stays for the next opening.
///
/// The journal: a head (JournalMark, bytes of the file before and after, its modification time,
/// number of records u32, checksum u64), then a record for each page that the file had: page u32,
/// what it held, the checksums of its eight sectors as they are to be, and the record's checksum.
/// Pages are kept as they stand in the file, encoded or not.
void CommitJetChanges(JetStorage &storage, const JetPager &pager);

/// Deals with a journal that was left behind: puts the file back when nobody else has written it
/// since, and sets the journal aside when somebody has. Returns what happened, for people; empty
/// when there was nothing to do. Raises PermissionDenied when another program is just writing, or
/// has the file open so that it cannot be put back.
QString RecoverJetFile(JetStorage &storage);

}  // namespace velor
