// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/MenuSettings.h"

#include "app/settings/modSettingManager.h"
#include "chrome/MenuPainter.h"
#include "platform/Conversions.h"
#include "platform/Paths.h"
#include "platform/Registry.h"
#include "platform/RuntimeError.h"

#include <array>

namespace velor {
namespace {

constexpr const char16_t *StyleSetting = u"MenuStyle";
constexpr const char16_t *BackgroundSetting = u"MenuBackground";

struct ColorSetting {
  const char *name;
  const char *defaultValue;
  void (MenuPainter::*set)(std::int32_t color);
};

/// In the order in which they are read and set.
constexpr std::array<ColorSetting, 4> ColorSettings{{
    {"mnuFore", "0", &MenuPainter::SetTextColor},
    {"mnuBorder", "8388608", &MenuPainter::SetBorderColor},
    {"mnuHighlight", "16761024", &MenuPainter::SetHighlightColor},
    {"mnuHighFore", "0", &MenuPainter::SetHighlightTextColor},
}};

QString Option(const Registry &registry, const QString &name, const QString &defaultValue) {
  return modSettingManager::GetOption(registry, name, defaultValue);
}

void LoadBackground(const QString &name, const MenuPictures &pictures, MenuPainter &painter) {
  try {
    painter.SetBackground(pictures.file(name));
  } catch (const RuntimeError &) {
    // The background stays as it was.
  }
}

QPixmap Loaded(const QString &file, ErrorNumber failure) {
  const QPixmap picture(file);
  if (picture.isNull()) throw RuntimeError::Of(failure, QStringLiteral("MenuPictures"), file);
  return picture;
}

}  // namespace

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

void PrepareMenus(const Registry &registry, const MenuPictures &pictures, MenuPainter &painter) {
  const int style = CInt(Option(registry, QString::fromUtf16(StyleSetting), QStringLiteral("2")));
  if (style != 0) {
    painter.SetBackground(pictures.numbered(style));
  } else {
    LoadBackground(Option(registry, QString::fromUtf16(BackgroundSetting), QString()), pictures,
                   painter);
  }
  for (const ColorSetting &setting : ColorSettings) {
    (painter.*setting.set)(CLng(Option(registry, QString::fromLatin1(setting.name),
                                       QString::fromLatin1(setting.defaultValue))));
  }
}

void ChooseMenuStyle(int index, Registry &registry, const MenuPictures &pictures,
                     MenuPainter &painter) {
  modSettingManager::SetOption(registry, QString::fromUtf16(StyleSetting), QString::number(index));
  painter.SetBackground(pictures.numbered(index));
}

}  // namespace velor
