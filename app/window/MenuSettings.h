// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/settings/Preferences.h"

#include <QPixmap>
#include <QString>

#include <array>
#include <cstdint>
#include <functional>

namespace velor {

class MenuPainter;
class Registry;

/// Where the menu painter's pictures come from.
struct MenuPictures {
  /// A picture of the window's menu image list by its number from 1. Raises IndexOutOfBounds
  /// (35600) for any other number.
  std::function<QPixmap(int)> numbered;
  /// A picture file by its path as the settings have it. Raises RuntimeError where it cannot be
  /// loaded.
  std::function<QPixmap(const QString &)> file;
};

/// A preference that is a colour of the menus.
struct ColorSetting {
  const Preference &preference;
  const char *label;
  void (MenuPainter::*set)(std::int32_t color);
};

/// In the order in which they are read and set.
extern const std::array<ColorSetting, 4> ColorSettings;

/// The program's own pictures, and files of all formats that Qt reads.
MenuPictures ProgramMenuPictures();

/// Sets up the painter by the settings: background, then text, border, highlight and highlighted
/// text colour. A picture file that cannot be loaded leaves the background unchanged. A setting
/// that is no number, or the number of no picture, is replaced by its default; after all is set,
/// one RuntimeError with the names of all such settings is raised. `showStyle` is called with the
/// number of the menu style, 0 for a picture file.
void PrepareMenus(const Registry &registry, const MenuPictures &pictures, MenuPainter &painter,
                  const std::function<void(int style)> &showStyle);

/// Stores a menu style and sets its picture as the painter's background.
void ChooseMenuStyle(int index, Registry &registry, const MenuPictures &pictures,
                     MenuPainter &painter);

}  // namespace velor
