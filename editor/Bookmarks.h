// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace velor {

class Files;

/// The names of places that links can lead to in a page's text, in the page's order, each once: the
/// ids of its elements and the names of its anchors.
QStringList BookmarksIn(const QString &html);

/// The same of the page in a file, `path` in logic form. Empty where it cannot be read, or is no
/// text.
QStringList BookmarksInFile(const QString &path, const Files &files);

}  // namespace velor
