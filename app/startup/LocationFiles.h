// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Files.h"

#include <QString>

namespace velor {

/// The two files beside the program with the paths of the catalogue database and of the image
/// folder. Each has one line: the path in the form for people (ForPeople) between double quotes,
/// then CR LF; UTF-8. Arguments and results are in logic form.

/// Writes the path; a file that has it already is not written.
void WriteLocation(Files &files, const QString &file, const QString &location);

/// The path in the file: the FirstItem of its text. Raises InputPastEnd (62) when the file is
/// empty.
QString ReadLocation(const Files &files, const QString &file);

/// The first item of the first line: the text between its quotes when it is quoted, otherwise up to
/// the first comma or the line's end, without leading blanks.
QString FirstItem(QStringView text);

}  // namespace velor
