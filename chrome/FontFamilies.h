// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velor {

/// The installed families as pages name them: without the maker that tells files of one family
/// apart ("Some Face [maker]").
QStringList InstalledFamilies();

}  // namespace velor
