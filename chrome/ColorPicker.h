// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QToolButton>

#include <cstdint>
#include <vector>

namespace velor {

class ColorPalette;

/// A tool button with a picture over a bar of its colour; it drops down a palette. Colours are
/// 32-bit values, red in the low byte.
class ColorPicker final : public QToolButton {
  Q_OBJECT

 public:
  /// Chosen colours kept for the palette's second part, the latest first.
  static constexpr std::size_t RecentColors = 8;

  /// `iconKey` as in IconFor.
  ColorPicker(const QString &iconKey, QWidget *parent);

  QString IconKey() const { return iconKey_; }
  std::int32_t Color() const { return color_; }
  /// Shows a colour without emitting ColorChosen.
  void SetColor(std::int32_t color);

  /// The panel that drops down, hidden until then.
  ColorPalette &Panel() { return *panel_; }

 Q_SIGNALS:
  /// The person chose a colour, be it the one already shown.
  void ColorChosen(std::int32_t color);

 protected:
  void paintEvent(QPaintEvent *event) override;
  QSize sizeHint() const override;

 private:
  void Choose(const QColor &color);
  void AskForCustom();

  const QString iconKey_;
  std::int32_t color_ = 0;
  std::vector<QColor> recent_;
  ColorPalette *panel_;
};

}  // namespace velor
