// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

namespace velor {

class JetFile;

/// Makes the user tables of a Jet file tables of the connection, under their own names, so that
/// the program's statements run on them as they are. The file must outlive the connection.
///
/// Declared types tell recordsets the columns' types: BOOLEAN (1 and 0), INTEGER, DOUBLE, DATETIME
/// (ISO text), VARCHAR, LONGTEXT, GUID, BLOB. Texts compare and order by AddTextCollation.
///
/// Rows can be read and texts in them changed; adding and deleting rows, and everything that would
/// define or attach something, is refused. A statement's changes reach the file together, when it
/// ends; none do when it fails.
void AttachJetFile(sqlite3 *database, JetFile &file);

}  // namespace velor
