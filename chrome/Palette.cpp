// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Palette.h"

#include "chrome/ApplicationAccess.h"
#include "chrome/ComboBoxAccess.h"
#include "chrome/HouseStyle.h"
#include "chrome/Icons.h"
#include "chrome/TabBarAccess.h"

#include <QApplication>

#include <algorithm>
#include <cmath>

namespace velor {
namespace {

struct Colors {
  QColor window, base, alternate, text, button, faded, hint, accent, onAccent, link;
  QColor light, midlight, mid, dark, shadow;
};

Colors ColorsFor(Shade shade) {
  if (shade == Shade::Dark) {
    return {.window = 0x24272d,
            .base = 0x1b1d22,
            .alternate = 0x20232a,
            .text = 0xe3e6eb,
            .button = 0x2d3138,
            .faded = 0x646b76,
            .hint = 0x9aa2af,
            .accent = 0x3f78d8,
            .onAccent = 0xffffff,
            .link = 0x84b0ff,
            .light = 0x59606d,
            .midlight = 0x3a3f48,
            .mid = 0x3a3f48,
            .dark = 0x14161a,
            .shadow = 0x0b0c0e};
  }
  return {.window = 0xf6f7f9,
          .base = 0xffffff,
          .alternate = 0xf1f3f7,
          .text = 0x1e2430,
          .button = 0xe2e6ee,
          .faded = 0xa7aeba,
          .hint = 0x5f6878,
          .accent = 0x2f6fde,
          .onAccent = 0xffffff,
          .link = 0x2f6fde,
          .light = 0xffffff,
          .midlight = 0xeceef2,
          .mid = 0xd8dce4,
          .dark = 0xaab1bd,
          .shadow = 0x6b7382};
}

QColor Mix(const QColor &one, const QColor &other, qreal share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return {part(one.red(), other.red()), part(one.green(), other.green()),
          part(one.blue(), other.blue())};
}

double Luminance(const QColor &color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

/// A desktop's high-contrast palette with the roles that its theme leaves to chance: what is
/// switched off, hints and lines are seen on the background.
QPalette WithVisibleParts(QPalette palette) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const auto between = [&](qreal share) { return Mix(window, text, share); };
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(QPalette::Disabled, role, between(0.55));
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, between(0.3));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, text);
  palette.setColor(QPalette::PlaceholderText, between(0.75));
  // Buttons and boxes are seen by it.
  if (Contrast(palette.color(QPalette::Button), window) < 1.3)
    palette.setColor(QPalette::Button, between(0.25));
  const bool isDark = ShadeOf(palette) == Shade::Dark;
  palette.setColor(QPalette::Light, isDark ? between(0.7) : window);
  palette.setColor(QPalette::Midlight, between(0.3));
  palette.setColor(QPalette::Mid, between(0.6));
  palette.setColor(QPalette::Dark, between(isDark ? 0.15 : 0.7));
  palette.setColor(QPalette::Shadow, between(isDark ? 0 : 0.9));
  return palette;
}

}  // namespace

Shade ChosenShade() {
  const QByteArray wish = qgetenv("VELOR_PALETTE");
  if (wish == "dark") return Shade::Dark;
  if (wish == "light") return Shade::Light;
  return ShadeOf(QGuiApplication::palette());
}

Shade ShadeOf(const QPalette &palette) {
  return palette.color(QPalette::Window).lightness() <
                 palette.color(QPalette::WindowText).lightness()
             ? Shade::Dark
             : Shade::Light;
}

QPalette PaletteFor(Shade shade) {
  const Colors colors = ColorsFor(shade);
  QPalette palette;
  palette.setColor(QPalette::Window, colors.window);
  palette.setColor(QPalette::Base, colors.base);
  palette.setColor(QPalette::AlternateBase, colors.alternate);
  palette.setColor(QPalette::Button, colors.button);
  palette.setColor(QPalette::ToolTipBase, colors.base);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, colors.text);
    palette.setColor(QPalette::Disabled, role, colors.faded);
  }
  palette.setColor(QPalette::PlaceholderText, colors.hint);
  palette.setColor(QPalette::Highlight, colors.accent);
  palette.setColor(QPalette::HighlightedText, colors.onAccent);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.mid);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colors.faded);
  palette.setColor(QPalette::Link, colors.link);
  palette.setColor(QPalette::LinkVisited, colors.link);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Light, colors.light);
  palette.setColor(QPalette::Midlight, colors.midlight);
  palette.setColor(QPalette::Mid, colors.mid);
  palette.setColor(QPalette::Dark, colors.dark);
  palette.setColor(QPalette::Shadow, colors.shadow);
  return palette;
}

bool IsHighContrast(const QPalette &palette) {
  // The contrast of ordinary palettes, Qt's own among them, is lower.
  constexpr double Ordinary = 19.5;
  return Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) > Ordinary;
}

void StyleApplication(QApplication &application) {
  const QPalette desktops = QGuiApplication::palette();
  const bool keeps = !qEnvironmentVariableIsSet("VELOR_PALETTE") && IsHighContrast(desktops);
  const QPalette palette = keeps ? WithVisibleParts(desktops) : PaletteFor(ChosenShade());
  QApplication::setStyle(new HouseStyle);
  QApplication::setPalette(palette);
  AnnounceComboBoxLabels();
  AnnounceTabStates();
  AnnounceSeenWindows();
  application.setWindowIcon(ProgramIcon());
}

QColor Hairline(const QPalette &palette) {
  return palette.color(QPalette::Mid);
}

QColor BoxEdge(const QPalette &palette) {
  return Mix(palette.color(QPalette::Window), palette.color(QPalette::WindowText),
             IsHighContrast(palette) ? 0.75 : 0.22);
}

QColor QuietText(const QPalette &palette) {
  return palette.color(QPalette::PlaceholderText);
}

QColor Backdrop(const QPalette &palette) {
  return Mix(palette.color(QPalette::Window), palette.color(QPalette::Dark),
             ShadeOf(palette) == Shade::Dark ? 0.45 : 0.12);
}

QColor HoverField(const QPalette &palette) {
  return Mix(palette.color(QPalette::Window), palette.color(QPalette::Highlight), 0.12);
}

QColor PressedField(const QPalette &palette) {
  return Mix(palette.color(QPalette::Window), palette.color(QPalette::Highlight), 0.24);
}

double Contrast(const QColor &one, const QColor &other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace velor
