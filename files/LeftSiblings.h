// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"

#include <QString>

/// The files beside a page's file that its new content is written to before it takes that file's
/// name. A process that is killed in between leaves its one behind.
namespace velor {

/// A name for one, that nothing has.
QString NewSibling(const QString &folder);

/// Says that this process is at work on it, for as long as the open file is not closed.
void ClaimSibling(int file);

/// Removes from a folder what ended processes of this user left there. A file of somebody else's,
/// one that another process is at work on, or one that is so new that it may be about to be, stays.
/// What cannot be removed stays too.
void RemoveLeftSiblings(const QString &folder, FileCalls &calls);

}  // namespace velor
