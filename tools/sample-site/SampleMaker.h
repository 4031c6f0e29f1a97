// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// Makes a folder that the program can start in: the sample catalogue eThumbs.mdb, which names the
/// sites by their place in that folder, the image folder eImages and the sample sites. What is
/// there already is left as it is, so that edited pages survive a second run.
/// Raises RuntimeError with the file that could not be written.
void MakeSample(const QString &folder);

}  // namespace velor
