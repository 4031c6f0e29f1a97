// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditCommands.h"
#include "editor/MainWindow.h"

#include <QString>
#include <QWidget>

#include <array>
#include <cstdint>
#include <span>

class QToolBar;

namespace velor {

class ChoiceBox;
class ColorPicker;
class FontPicker;
class ToolBarAction;

/// The five formatting boxes and the editing toolbar `tbrEdit`. It shows the formats at the caret
/// and emits what the person chooses.
class FormattingBar final : public QWidget, public FormatDisplay {
  Q_OBJECT

 public:
  explicit FormattingBar(QWidget *parent);

  // Fill the lists of the boxes; called while the window loads.
  void InitialiseFonts();
  void FillBlockFormats(const QStringList &names);
  void FillFontSizes();

  void ShowButton(EditingCommand command, ButtonState state) override;
  void ShowFontName(const QString &name) override;
  void ShowBackColor(const QString &htmlColor) override;
  void ShowForeColor(const QString &htmlColor) override;
  void ShowBlockFormat(const QString &name) override;
  void ShowFontSize(const QString &points) override;
  void ShowNothing() override;

  /// The ten buttons in toolbar order.
  std::span<ToolBarAction *const> Buttons() const { return buttons_; }

 Q_SIGNALS:
  /// A button of `tbrEdit` was clicked. It does not change until ShowButton.
  void CommandClicked(velor::EditingCommand command);
  void BlockFormatClicked(const QString &name);
  void FontSizeClicked(const QString &points);
  void FontNameChanged(const QString &name);
  void ForeColorChanged(std::int32_t color);
  void BackColorChanged(std::int32_t color);
  /// The person chose in a box or left it by Escape: the focus can go back to the page.
  void Done();

 private:
  QToolBar *BuildButtons();
  void AddColors(QToolBar &bar);

  ChoiceBox *blockFormat_;
  ChoiceBox *fontSize_;
  FontPicker *fontName_;
  /// A colour picker, and what the page's colour was said to be.
  struct ColorBox {
    ColorPicker *picker;
    std::int32_t shown;
  };
  /// Shows the page's colour again: it may refuse the one that was chosen.
  static void ShowAgain(const ColorBox &box);
  static void ShowColor(ColorBox &box, const QString &htmlColor);

  ColorBox textColor_{};
  ColorBox backColor_{};
  /// In the order of EditCommands.
  std::array<ToolBarAction *, EditCommands.size()> buttons_{};
};

}  // namespace velor
