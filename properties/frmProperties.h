// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "properties/PropertySheets.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

namespace velor {

class ColorPicker;
class FontSample;
class PropertyHost;
class TextBox;

/// The one frame of all properties dialogs: a sheet's fields with their values, OK, Apply, Cancel.
/// A control is named after its field ("prp_width"). Fields that the page has no value for by name
/// are left out.
class frmProperties final : public QDialog {
  Q_OBJECT

 public:
  /// Without a host no file is looked for, and nothing is offered or objected to.
  frmProperties(const PropertySheet &sheet, const PropertyValues &values, QWidget *parent,
                PropertyHost *host = nullptr);

 Q_SIGNALS:
  /// OK or Apply was pressed: the values that the person changed since the last time.
  void Changed(const velor::PropertyValues &changed);

 private:
  struct Row {
    const PropertyField *field;
    TextBox *text = nullptr;
    QComboBox *choice = nullptr;
    QCheckBox *truth = nullptr;
    QPlainTextEdit *lines = nullptr;
  };

  /// The form that the next row goes into: the window's own, or that of the last part.
  QFormLayout *Form();

  // The controls of a field (PropertyControls.cpp).
  void AddRow(const PropertyField &field, const QString &value);
  void AddTextBox(Row &row, const QString &value, QWidget *beside);
  /// A box to type into, with a list to choose from.
  QComboBox *AddListBox(Row &row, const QString &value, QWidget *beside);
  /// Gives the box of a row its value and help, and listens to it.
  void BeginText(Row &row, const QString &value);
  /// Fills the list; what is in the box stays.
  static void Offer(QComboBox &list, const QStringList &offers);
  void AddAddressBox(Row &row, const QString &value);
  void AddLines(Row &row, const QString &value);
  void AddChoice(Row &row, const QString &value);
  void AddCharset(Row &row, const QString &value);
  void AddTruth(Row &row, const QString &value);
  void AddTold(const PropertyField &field, const QString &value);
  /// The palette beside a colour's box. Before the box is there, with which Connect connects it.
  ColorPicker *MakePicker(const QString &name, const QString &label);
  void Connect(TextBox &box, const QString &name);
  QPushButton *MakeBrowse(const PropertyField &field);

  static QString ValueOf(const Row &row);
  PropertyValues Values() const;
  /// False where a field refuses its text, or the host objects.
  bool Apply();
  void Remove(const QString &name);
  void ShowSample();

  const PropertySheet &sheet_;
  PropertyHost *host_;
  std::vector<Row> rows_;
  PropertyValues known_;
  QLabel *refusal_ = nullptr;
  FontSample *sample_ = nullptr;

  QVBoxLayout *window_ = nullptr;
  QTabWidget *parts_ = nullptr;
  QFormLayout *form_ = nullptr;
  QString part_;  ///< begins with the next row
};

}  // namespace velor
