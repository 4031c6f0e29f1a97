// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "properties/PropertySheets.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace velor {

class ColorPicker;
class TextBox;

/// The one frame of all properties dialogs: a sheet's fields with their values, OK, Apply, Cancel.
/// A control is named after its field ("prp_width"). Fields that the page has no value for by name
/// are left out.
class frmProperties final : public QDialog {
  Q_OBJECT

 public:
  frmProperties(const PropertySheet &sheet, const PropertyValues &values, QWidget *parent);

 Q_SIGNALS:
  /// OK or Apply was pressed: the values that the person changed since the last time.
  void Changed(const velor::PropertyValues &changed);

 private:
  struct Row {
    const PropertyField *field;
    TextBox *text = nullptr;
    QComboBox *choice = nullptr;
    QCheckBox *truth = nullptr;
  };

  void AddRow(const PropertyField &field, const QString &value, QFormLayout *form);
  /// The palette beside a colour's box. Before the row is there, with which Connect connects it.
  ColorPicker *MakePicker(const QString &name, QString label);
  void Connect(TextBox &box, const QString &name);
  static QString ValueOf(const Row &row);
  /// False where a field refuses its text.
  bool Apply();

  std::vector<Row> rows_;
  PropertyValues known_;
  QLabel *refusal_ = nullptr;
};

}  // namespace velor
