// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

/// The program's colours and measures, all of them functions of the palette in use. Measures are in
/// device-independent pixels.
namespace velor {

enum class Shade { Light, Dark };

/// VELOR_PALETTE ("light" or "dark") where it is set, else the desktop's.
Shade ChosenShade();
QPalette PaletteFor(Shade shade);
Shade ShadeOf(const QPalette &palette);

/// Whether somebody chose the palette for its contrast: nothing but black on white, or the like.
bool IsHighContrast(const QPalette &palette);

/// Style, palette and icon of the whole program, and its names for people who hear it; called once,
/// before the first window. A desktop's high-contrast palette stays as it is, unless the
/// environment asks for one of ours.
void DressApplication(QApplication &application);

/// The thin line between neighbouring areas.
QColor Hairline(const QPalette &palette);
/// The edge of boxes and buttons.
QColor BoxEdge(const QPalette &palette);
/// Text that stands back: hints, captions of pages that are not in front.
QColor QuietText(const QPalette &palette);
/// The field behind the page windows.
QColor Backdrop(const QPalette &palette);
/// A button under the pointer, and one that is pressed or switched on.
QColor HoverField(const QPalette &palette);
QColor PressedField(const QPalette &palette);

/// The luminance contrast of two opaque colours, 1 to 21.
double Contrast(const QColor &one, const QColor &other);
/// The least contrast at which text counts as legible.
inline constexpr double LegibleContrast = 4.5;
/// The same where the palette was chosen for its contrast.
inline constexpr double HighLegibleContrast = 7;

inline constexpr int ToolIconSize = 20;
inline constexpr int MenuIconSize = 16;
inline constexpr int Rounding = 4;
inline constexpr int BarMargin = 6;
inline constexpr int BarSpacing = 2;
inline constexpr int BoxHeight = 28;

}  // namespace velor
