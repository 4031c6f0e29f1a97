// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Additions.h"

#include "app/settings/modSettingManager.h"

#include <QLocale>

namespace velor {

Additions ReadAdditions(const Registry &registry) {
  return modSettingManager::HasAdditions(registry) ? Additions::On : Additions::Off;
}

bool KeepsTemplateSignsWhole(const Registry &registry) {
  return ReadAdditions(registry) == Additions::On &&
         modSettingManager::IsOn(registry, PreferenceOf("WholeTemplateSigns"));
}

QString OwnLanguage(const Registry &registry) {
  const QString chosen =
      modSettingManager::GetOption(registry, PreferenceOf("SpellingLanguage")).trimmed();
  if (!chosen.isEmpty()) return chosen;
  const QLocale system = QLocale::system();
  return system.language() == QLocale::C ? QStringLiteral("en") : system.name();
}

}  // namespace velor
