// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

class FileDialog;

/// The number of occurrences of `character` in `text`, letter case counted.
int CountChar(const QString &text, QChar character);

/// The link from the page at `pagePath` to the file at `targetPath`, both full paths in logic form.
/// A target on another drive, or one without a name, gives "file:///" and the target.
///
/// Whether both lie on one drive is decided ignoring letter case. The folders that both have in
/// common are found by exact comparison: from the first segment that differs, in letter case only
/// even, the link goes up by "..". Names are written as they stand, nothing is percent-encoded.
QString MakeRelativeLink(const QString &pagePath, const QString &targetPath);

/// "file:///" followed by the path with every "\" as "/".
QString MakeAbsoluteLink(const QString &path);

/// The link to a file as it is put into an address box: MakeRelativeLink, or MakeAbsoluteLink where
/// `pagePath` is empty, with exactly those characters percent-encoded that would lead it elsewhere:
/// "#", "?", a "%" before two hexadecimal digits, double quotes, control characters, what Unicode
/// calls no character, backslashes within native names, a blank at either end, and the colon of
/// what reads as a scheme.
QString LinkToFile(const QString &pagePath, const QString &targetPath);

/// The file that a link leads to from the page at `pagePath` (empty for a page without a path), in
/// logic form; the empty text where it leads to no file of this computer.
QString FileOfLink(const QString &pagePath, const QString &link);

/// Asks for an existing file. `filter` holds pairs of description and patterns separated by "|",
/// patterns separated by ";". Returns the full path; the empty text when cancelled and when the
/// dialog fails.
QString BrowseForFile(FileDialog &dialog, const QString &filter);

}  // namespace velor
