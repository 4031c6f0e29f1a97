// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

enum class CatalogueKind {
  Sqlite,
  /// Some version of the Jet engine's format; the store says whether it is one that it reads.
  Jet,
};

/// What kind of catalogue a file is, told from its first bytes. Raises RuntimeError with the file's
/// name and what is wrong with it: missing (53), a folder or no access (75), empty, or no database
/// at all (57). `nativePath` in native form.
CatalogueKind KindOfCatalogue(const QString &nativePath);

}  // namespace velor
