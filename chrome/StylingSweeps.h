// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace velor {

/// Sweeps: each goes once over all controls of a window and gives them the program's flat look. A
/// window calls those that it wants when it loads. Type names are those of the control kinds:
/// "CommandButton", "TextBox", "ComboBox", "ImageCombo", "HScrollBar", "ListBox", "ProgressBar".
class StylingSweeps {
 public:
  virtual ~StylingSweeps() = default;

  /// Attaches a flat painter to every control that can have one.
  virtual void FlatSweep(QWidget &window) = 0;
  /// Attaches a flat painter to every combo box.
  virtual void FlatComboSweep(QWidget &window) = 0;
  /// Gives every button, text box and progress bar a thin edge (ThinEdge).
  virtual void ThinEdgeSweep(QWidget &window) = 0;
  /// Gives every control of that type name, letter case ignored, a thin edge.
  virtual void ThinEdgeByType(QWidget &window, const QString &typeName) = 0;
};

}  // namespace velor
