// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// Finds the program folder, and makes it where it is missing. It is in native form, without a
/// trailing separator except at a root:
/// `$VELOR_PROGRAM_FOLDER`, else the executable's folder when it is writable and not the "bin" of
/// an installation ("../share/velor-web-creator" is there), else
/// `$XDG_DATA_HOME/velor-web-creator`. The last is made when it is missing and then filled with the
/// sample catalogue by the sample maker beside the executable, so that a first start asks nothing;
/// without the sample maker it stays empty and the program asks.
QString PrepareProgramFolder(const QString &executableFolder);

/// The program folder of an installed program, `$XDG_DATA_HOME/velor-web-creator`, in native form.
QString InstalledProgramFolder();

}  // namespace velor
