// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Spelling.h"

#include "platform/Words.h"

namespace velor {

QStringList MissingDictionaries(Spelling &spelling) {
  QStringList notices;
  for (const QString &package : spelling.PackagesToTell())
    notices << Words::tr(
                   "The spelling of a language of this page is not checked: the package %1 is not "
                   "installed.")
                   .arg(package);
  return notices;
}

}  // namespace velor
