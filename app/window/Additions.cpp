// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Additions.h"

#include "app/settings/modSettingManager.h"
#include "platform/Conversions.h"

namespace velor {

namespace {

/// "False" in any letter case turns such a preference off, "True" on; else the default counts.
bool IsChosen(const Registry &registry, const QString &name, const QString &defaultValue) {
  const QString chosen = LowerCase(modSettingManager::GetOption(registry, name, defaultValue));
  return LowerCase(defaultValue) == QStringLiteral("true") ? chosen != QStringLiteral("false")
                                                           : chosen == QStringLiteral("true");
}

}  // namespace

Additions ReadAdditions(const Registry &registry) {
  return IsChosen(registry, QStringLiteral("PublishedOnly"), QStringLiteral("False"))
             ? Additions::Off
             : Additions::On;
}

bool KeepsTemplateSignsWhole(const Registry &registry) {
  return ReadAdditions(registry) == Additions::On &&
         IsChosen(registry, QStringLiteral("WholeTemplateSigns"), QStringLiteral("True"));
}

}  // namespace velor
