// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Additions.h"

#include "app/settings/modSettingManager.h"
#include "platform/Conversions.h"

namespace velor {

Additions ReadAdditions(const Registry &registry) {
  const QString publishedOnly = modSettingManager::GetOption(
      registry, QStringLiteral("PublishedOnly"), QStringLiteral("False"));
  return LowerCase(publishedOnly) == QStringLiteral("true") ? Additions::Off : Additions::On;
}

}  // namespace velor
