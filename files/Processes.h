// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace velor {

/// Ends a process at once, which may be busy for ever. A number that is not positive names none.
void EndProcess(qint64 number);

/// Whether this process runs with the superuser's rights, as in a container.
bool IsSuperuser();

}  // namespace velor
