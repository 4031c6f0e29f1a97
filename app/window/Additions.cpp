// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Additions.h"

#include "app/settings/modSettingManager.h"

namespace velor {

Additions ReadAdditions(const Registry &registry) {
  return modSettingManager::HasAdditions(registry) ? Additions::On : Additions::Off;
}

bool KeepsTemplateSignsWhole(const Registry &registry) {
  return ReadAdditions(registry) == Additions::On &&
         modSettingManager::IsOn(registry, PreferenceOf("WholeTemplateSigns"));
}

}  // namespace velor
