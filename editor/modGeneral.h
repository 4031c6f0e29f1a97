// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageEncoding.h"
#include "platform/Files.h"

#include <QString>

/// Whole files as text, and the parts of a path. Paths in logic form.
namespace velor::modGeneral {

/// The file's whole content as text, decoded as pages are (page/text/PageEncoding.h).
QString ReadWholeFile(const Files &files, const QString &path);

/// Encodes a page's text: in the charset that the text declares, else in that of `page`.
QByteArray PageBytes(const QString &text, const PageEncoding &page);

/// Creates the file or replaces its content by PageBytes of the text followed by CR LF.
void WriteTextFile(Files &files, const QString &path, const QString &text,
                   const PageEncoding &page);

/// The text after the last "\"; the whole text when it holds none.
QString FileNameOfPath(const QString &path);

/// The text before the last "\", without it. Raises error 5 when there is none.
QString FolderOfPath(const QString &path);

/// The path of a page's temporary copy: every "." of the whole path, folders included, becomes
/// "TMP.". It may name a folder that does not exist; none is created for it.
QString TemporaryPath(const QString &path);

}  // namespace velor::modGeneral
