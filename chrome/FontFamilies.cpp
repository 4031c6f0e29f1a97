// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FontFamilies.h"

#include <QFontDatabase>

namespace velor {

QStringList InstalledFamilies() {
  QStringList families;
  for (QString family : QFontDatabase::families()) {
    if (QFontDatabase::isPrivateFamily(family)) continue;
    if (family.endsWith(u']')) family.truncate(family.lastIndexOf(QStringLiteral(" [")));
    families.append(family);
  }
  families.removeDuplicates();
  return families;
}

}  // namespace velor
