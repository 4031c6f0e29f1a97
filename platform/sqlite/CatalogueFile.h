// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// Whether a file can be a catalogue, told from its first bytes. Raises RuntimeError with the
/// file's name and what is wrong with it: missing (53), a folder or no access (75), empty, kept in
/// a format that only other programs read, or no database at all (57). `nativePath` in native form.
void CheckCatalogueFile(const QString &nativePath);

}  // namespace velor
