// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

class FileDialog;

/// How many characters of `text` equal `character` exactly.
int CountChar(const QString &text, QChar character);

/// The link from the page at `pagePath` to the file at `targetPath`, both full paths in logic form.
/// A target on another drive, or one without a name, gives "file:///" and the target.
///
/// Drives are told apart ignoring letter case, every segment including the drive is compared with
/// it: two paths that differ in the case of a segment only part ways there. Links are the names as
/// they stand, nothing is percent-encoded.
QString MakeRelativeLink(const QString &pagePath, const QString &targetPath);

/// "file:///" and the path with "/" for every "\".
QString MakeAbsoluteLink(const QString &path);

/// Asks for an existing file. `filter` holds pairs of description and patterns separated by "|",
/// patterns separated by ";". Returns the full path; the empty text when cancelled and when the
/// dialog fails.
QString BrowseForFile(FileDialog &dialog, const QString &filter);

}  // namespace velor
