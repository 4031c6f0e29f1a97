// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// Creates the file of that native path or replaces its whole content, as Files::ReplaceAll
/// promises: a sibling is written, synced and renamed over it. In place are written: files with
/// several hard links, files whose owner or group could not be kept, files in a folder where
/// nothing can be created, and devices. For these the room is reserved first where the file system
/// can do so, and what was there is put back when writing fails.
void ReplaceFile(const QString &nativePath, const QByteArray &content);

}  // namespace velor
