// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Files.h"

#include <QString>

namespace velor {

/// The two small files beside the program that say where the catalogue database and the image
/// folder lie. Each holds one line: a path between double quotes, then CR LF; UTF-8, and the path
/// in the form in which people know it (Paths.h, ForPeople).
///
/// `file` and the paths read and written are in logic form.

/// Replaces the file's whole content.
void WriteLocation(Files &files, const QString &file, const QString &location);

/// The first item of the first line: without its quotes when it is quoted, otherwise up to the
/// first comma or the line's end, leading blanks dropped. Raises InputPastEnd (62) when the file is
/// empty.
QString ReadLocation(const Files &files, const QString &file);

/// ReadLocation's rule for a file's text.
QString FirstItem(QStringView text);

}  // namespace velor
