// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/MenuSettings.h"

#include "app/settings/modSettingManager.h"
#include "chrome/MenuPainter.h"
#include "platform/Conversions.h"
#include "platform/Paths.h"
#include "platform/Registry.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QStringList>

#include <optional>

namespace velor {
namespace {

constexpr const Preference &MenuStyle = PreferenceOf("MenuStyle");

void LoadBackground(const QString &name, const MenuPictures &pictures, MenuPainter &painter) {
  try {
    painter.SetBackground(pictures.file(name));
  } catch (const RuntimeError &) {
    // A picture that cannot be read leaves the background as it was.
  }
}

QPixmap Loaded(const QString &file, ErrorNumber failure) {
  const QPixmap picture(file);
  if (picture.isNull()) throw RuntimeError::Of(failure, QStringLiteral("MenuPictures"), file);
  return picture;
}

}  // namespace

const std::array<ColorSetting, 4> ColorSettings{{
    {PreferenceOf("mnuFore"), Words::Mark("Text:"), &MenuPainter::SetTextColor},
    {PreferenceOf("mnuBorder"), Words::Mark("Border:"), &MenuPainter::SetBorderColor},
    {PreferenceOf("mnuHighlight"), Words::Mark("Chosen item:"), &MenuPainter::SetHighlightColor},
    {PreferenceOf("mnuHighFore"), Words::Mark("Text of the chosen item:"),
     &MenuPainter::SetHighlightTextColor},
}};

MenuPictures ProgramMenuPictures() {
  return {.numbered =
              [](int number) {
                return Loaded(QStringLiteral(":/velor/menu/%1.png").arg(number),
                              ErrorNumber::IndexOutOfBounds);
              },
          .file =
              [](const QString &name) {
                return Loaded(ToNative(FromPeople(name)), ErrorNumber::FileNotFound);
              }};
}

void PrepareMenus(const Registry &registry, const MenuPictures &pictures, MenuPainter &painter,
                  const std::function<void(int style)> &showStyle) {
  std::optional<RuntimeError> first;
  QStringList faults;
  const auto tell = [&](const RuntimeError &fault) {
    if (!first) first = fault;
    faults << fault.Description();
  };
  int style = modSettingManager::IntegerOption(registry, MenuStyle, tell);
  if (style != 0) {
    try {
      painter.SetBackground(pictures.numbered(style));
    } catch (const RuntimeError &error) {
      tell(modSettingManager::FaultOf(registry, MenuStyle, error));
      style = CInt(MenuStyle.Default());
      painter.SetBackground(pictures.numbered(style));
    }
  } else {
    LoadBackground(modSettingManager::GetOption(registry, PreferenceOf("MenuBackground")), pictures,
                   painter);
  }
  for (const ColorSetting &setting : ColorSettings) {
    (painter.*setting.set)(modSettingManager::LongOption(registry, setting.preference, tell));
  }
  showStyle(style);
  if (first) throw RuntimeError(first->Number(), first->Source(), faults.join(u'\n'));
}

void ChooseMenuStyle(int index, Registry &registry, const MenuPictures &pictures,
                     MenuPainter &painter) {
  modSettingManager::SetOption(registry, MenuStyle.Name(), QString::number(index));
  painter.SetBackground(pictures.numbered(index));
}

}  // namespace velor
