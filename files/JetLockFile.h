// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// Who has the database open, for people, by the lock file beside it (its name with ".ldb" for the
/// extension, letter case ignored); empty when nobody has. A lock file without live locks was left
/// behind and does not count.
///
/// The lock file is a row of slots, 32 bytes machine name and 32 bytes user name; the holder of a
/// slot locks a byte far beyond the file's end, at LockBase plus the slot's number.
QString JetLockHolders(const QString &databasePath);

}  // namespace velor
