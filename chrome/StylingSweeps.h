// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace velor {

/// The sweeps that give a window's controls the program's flat look. Each window calls those it
/// wants once, when it loads. Type names are those of the control kinds: "CommandButton",
/// "TextBox", "ComboBox", "ImageCombo", "HScrollBar", "ListBox", "ProgressBar".
class StylingSweeps {
 public:
  virtual ~StylingSweeps() = default;

  /// A flat painter for every control that can have one.
  virtual void FlatSweep(QWidget &window) = 0;
  /// A flat painter for every combo box.
  virtual void FlatComboSweep(QWidget &window) = 0;
  /// A thin edge for every button, text box and progress bar.
  virtual void ThinEdgeSweep(QWidget &window) = 0;
  /// A thin edge for every control of that type name, letter case ignored.
  virtual void ThinEdgeByType(QWidget &window, const QString &typeName) = 0;
};

}  // namespace velor
