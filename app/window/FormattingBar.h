// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>

namespace velor {

class ChoiceBox;
class ColorPicker;
class FontPicker;

/// The five formatting boxes. They show the state of the text under the caret, written only when it
/// differs, and tell what a person chooses; writes never fire the notices.
class FormattingBar final : public QWidget {
  Q_OBJECT

 public:
  explicit FormattingBar(QWidget *parent);

  // Filling, while the window loads.
  void InitialiseFonts();
  void FillBlockFormats(const QStringList &names);
  void FillFontSizes();

  void ShowFontName(const QString &name);
  void ShowBlockFormat(const QString &name);
  void ShowFontSize(const QString &points);
  /// Colours as "#RRGGBB", compared as colours.
  void ShowForeColor(const QString &htmlColor);
  void ShowBackColor(const QString &htmlColor);

  /// The colour pickers, for the end of the editing buttons' row.
  QWidget *ColorPickers() { return colors_; }

 Q_SIGNALS:
  void BlockFormatClicked(const QString &name);
  void FontSizeClicked(const QString &points);
  void FontNameChanged(const QString &name);
  void ForeColorChanged(std::int32_t color);
  void BackColorChanged(std::int32_t color);

 private:
  ChoiceBox *cobFormat;
  ChoiceBox *cobSize;
  FontPicker *Font1;
  ColorPicker *cpFore;
  ColorPicker *cpBack;
  QWidget *colors_;
};

}  // namespace velor
