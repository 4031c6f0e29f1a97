// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SourceWrap.h"

#include "app/settings/modSettingManager.h"
#include "editor/EditorContext.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "platform/Conversions.h"
#include "platform/Platform.h"

namespace velor {
namespace {

constexpr const Preference &WrapSource = PreferenceOf("WrapSource");

}  // namespace

LineWrap ChosenLineWrap(const Registry &registry) {
  return modSettingManager::IsOn(registry, WrapSource) ? LineWrap::On : LineWrap::Off;
}

void TurnLineWrap(EditorContext &context) {
  Registry &registry = context.platform.registry;
  const bool isOn = ChosenLineWrap(registry) == LineWrap::On;
  modSettingManager::SetOption(registry, WrapSource.Name(), BoolText(!isOn));
  ShowLineWrap(context);
}

void ShowLineWrap(EditorContext &context) {
  const LineWrap wrap = ChosenLineWrap(context.platform.registry);
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    if (frmMain *page = context.pages.Page(number)) page->Code1().SetLineWrap(wrap);
    if (frmCodeEditor *editor = context.pages.CodeEditor(number)) editor->Code().SetLineWrap(wrap);
  }
}

}  // namespace velor
