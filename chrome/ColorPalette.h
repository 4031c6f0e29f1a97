// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFrame>
#include <QString>

#include <vector>

class QGridLayout;
class QToolButton;

namespace velor {

/// One colour that people choose by its name.
struct NamedColor {
  const char *name;
  QRgb rgb;
};

/// The forty colours of the palette, row by row, eight a row.
const std::vector<NamedColor> &PaletteColors();

/// The panel that drops down from a colour picker: the palette, the colours chosen lately, and the
/// way to any other colour. The arrow keys walk the fields, Enter chooses, Escape closes.
class ColorPalette final : public QFrame {
  Q_OBJECT

 public:
  static constexpr int Columns = 8;

  explicit ColorPalette(QWidget *parent);

  void SetRecent(const std::vector<QColor> &colors);
  /// Shows the panel below `anchor`, with the field of `current` (or the first) in focus.
  void DropDownFrom(const QWidget &anchor, const QColor &current);

 Q_SIGNALS:
  void Chosen(const QColor &color);
  void CustomWanted();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  QToolButton *AddField(QGridLayout *grid, int index, const QString &name, const QColor &color);

  std::vector<QToolButton *> fields_;
  QGridLayout *recentGrid_ = nullptr;
  QWidget *recentArea_ = nullptr;
  QToolButton *custom_ = nullptr;
};

}  // namespace velor
