// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFrame>
#include <QString>

#include <vector>

class QGridLayout;
class QToolButton;

namespace velor {

/// A colour of the palette with the name that its field has for people.
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

  /// Shows these colours, the latest first, in the second part; hides that part for none.
  void SetRecent(const std::vector<QColor> &colors);
  /// Shows the panel below `anchor`. The field of `current` gets the focus, the first where none is
  /// of that colour.
  void DropDownFrom(const QWidget &anchor, const QColor &current);

 Q_SIGNALS:
  /// A field was chosen; the panel has closed.
  void Chosen(const QColor &color);
  /// The button for any other colour was pressed; the panel has closed.
  void CustomWanted();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  /// Above it where there is no room below.
  QPoint PlaceBelow(const QWidget &anchor) const;
  QToolButton *AddField(QGridLayout *grid, int index, const QString &name, const QColor &color);

  std::vector<QToolButton *> fields_;
  QGridLayout *recentGrid_ = nullptr;
  QWidget *recentArea_ = nullptr;
  QToolButton *custom_ = nullptr;
};

}  // namespace velor
