// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

/// The program's palettes, the colours derived from the palette in use, and measures in
/// device-independent pixels.
namespace velor {

enum class Shade { Light, Dark };

/// The value of $VELOR_PALETTE ("light" or "dark") where it is set, else the desktop's shade.
Shade ChosenShade();
QPalette PaletteFor(Shade shade);
Shade ShadeOf(const QPalette &palette);

/// Whether the palette is a high-contrast one: text and background nearly as far apart as black and
/// white (Contrast above 19.5).
bool IsHighContrast(const QPalette &palette);

/// Sets style, palette and icon of the application, and how its combo boxes report to assistive
/// technology (AnnounceComboBoxLabels). Called once, before the first window. A desktop's
/// high-contrast palette stays, unless $VELOR_PALETTE is set; what is switched off, hints and lines
/// get colours that are seen on its background.
void StyleApplication(QApplication &application);

/// The thin line between neighbouring areas.
QColor Hairline(const QPalette &palette);
/// The edge of boxes and buttons.
QColor BoxEdge(const QPalette &palette);
/// Text of less weight: hints, captions of tabs that are not in front.
QColor QuietText(const QPalette &palette);
/// The background behind the page windows.
QColor Backdrop(const QPalette &palette);
/// Backgrounds of a button: under the pointer; pressed or switched on.
QColor HoverField(const QPalette &palette);
QColor PressedField(const QPalette &palette);

/// The luminance contrast of two opaque colours, 1 to 21.
double Contrast(const QColor &one, const QColor &other);
/// The least contrast at which text counts as legible.
inline constexpr double LegibleContrast = 4.5;
/// As LegibleContrast, on a high-contrast palette.
inline constexpr double HighLegibleContrast = 7;

inline constexpr int ToolIconSize = 20;
inline constexpr int MenuIconSize = 16;
inline constexpr int Rounding = 4;
inline constexpr int BarMargin = 6;
inline constexpr int BarSpacing = 2;
inline constexpr int BoxHeight = 28;

}  // namespace velor
