// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"

#include <QByteArray>
#include <QString>

namespace velor {

/// Creates the file of that native path or replaces its whole content, as Files::ReplaceAll
/// promises: a temporary file beside it is written, synced and renamed over it, and the folder is
/// synced. In place are written: files with several hard links, files whose owner, group, access
/// list or other attributes could not be kept, files in a folder where nothing can be created, and
/// devices. For these the room is reserved first where the file system can do so, what was there is
/// kept among the replaced versions until the new content is on the disk, and it is put back when
/// writing fails.
void ReplaceFile(const QString &nativePath, const QByteArray &content,
                 FileCalls &calls = FileCalls::OfTheSystem());

/// Creates a file that only its owner may read, or replaces the one of that name. A failure leaves
/// no partly written file.
void CreatePrivateFile(const QString &nativePath, const QByteArray &content,
                       FileCalls &calls = FileCalls::OfTheSystem());

}  // namespace velor
