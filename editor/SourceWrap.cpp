// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SourceWrap.h"

#include "app/settings/modSettingManager.h"
#include "platform/Conversions.h"

namespace velor {
namespace {

const QString Setting = QStringLiteral("WrapSource");

}  // namespace

LineWrap ChosenLineWrap(const Registry &registry) {
  const QString chosen = modSettingManager::GetOption(registry, Setting, QStringLiteral("True"));
  return LowerCase(chosen) == QStringLiteral("false") ? LineWrap::Off : LineWrap::On;
}

void ChooseLineWrap(Registry &registry, LineWrap wrap) {
  modSettingManager::SetOption(registry, Setting, BoolText(wrap == LineWrap::On));
}

}  // namespace velor
