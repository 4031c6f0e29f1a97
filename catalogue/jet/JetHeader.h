// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetStorage.h"

namespace velor {

/// Reads page 0 and returns the key that later pages are encoded with (0: they are not). Raises
/// DeviceIoError that says what the file is and what to do, if it is not a Jet 4 file without a
/// password.
quint32 ReadJetHeader(JetStorage &storage);

}  // namespace velor
