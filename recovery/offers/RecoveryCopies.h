// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"

#include <QStringList>

namespace velor {

/// Writes what every open page with unsaved changes holds, and every source that was edited and not
/// applied, to "RecoveredN.htm" in `folder` (logic form), N the first number that is free. Answers
/// where the copies lie, as people read paths. What cannot be written does not keep the others from
/// it.
QStringList WriteRecoveryCopies(EditorContext &context, const QString &folder);

}  // namespace velor
