// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>

#include <functional>

namespace velor {

class MenuPainter;
class Registry;

/// Where the menu painter's pictures come from.
struct MenuPictures {
  /// A picture of the window's menu image list, counted from 1; IndexOutOfBounds (35600) beyond it.
  std::function<QPixmap(int)> numbered;
  /// A picture file as the settings name it; RuntimeError where it cannot be loaded.
  std::function<QPixmap(const QString &)> file;
};

/// The pictures the program comes with, and files in whatever form Qt reads.
MenuPictures ProgramMenuPictures();

/// Sets up the painter as the settings say: the background, then text, border, highlight and
/// highlighted text colour. A picture file that cannot be loaded leaves the background as it was.
/// For a setting that is no number, or names no picture, the default counts; when all is set, one
/// error names every such setting and the file. `showStyle` is told the style that counts, 0 for a
/// picture file.
void PrepareMenus(const Registry &registry, const MenuPictures &pictures, MenuPainter &painter,
                  const std::function<void(int style)> &showStyle);

/// Stores the chosen style and shows its picture at once.
void ChooseMenuStyle(int index, Registry &registry, const MenuPictures &pictures,
                     MenuPainter &painter);

}  // namespace velor
