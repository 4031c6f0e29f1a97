// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QComboBox;

namespace velor {

class TextBox;
struct ProgramValues;

/// The table dialog. Insert leaves the table's HTML in ProgramValues::HTMLString and closes; Cancel
/// closes and leaves that text as it was. Made for one showing, modal, and released after it.
class frmDialog_Table : public QDialog {
  Q_OBJECT

 public:
  explicit frmDialog_Table(ProgramValues &values, QWidget *parent = nullptr);

 private:
  void Insert();

  ProgramValues &values_;
  TextBox *Text1 = nullptr;     ///< columns
  TextBox *Text2 = nullptr;     ///< rows
  QComboBox *Combo1 = nullptr;  ///< alignment
  TextBox *combo2 = nullptr;    ///< border
  TextBox *combo3 = nullptr;    ///< cell spacing
  TextBox *combo4 = nullptr;    ///< cell padding
};

}  // namespace velor
