// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetStorage.h"

#include <memory>

namespace velor {

/// The storage on the real file. Raises when the file is missing or cannot be read. The file is
/// opened for writing at the first write.
std::unique_ptr<JetStorage> OpenJetStorage(const QString &nativePath);

}  // namespace velor
