// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace velor {

class TextBox;

/// The rows of which this folder's forms are made. Each control gets its contract name as object
/// name and its label as accessible name; controls are made in the order of the rows, so that the
/// tab order follows the eye.
namespace FormParts {

/// Names a control; `label` may hold a mnemonic.
void Name(QWidget &control, const QString &name, const QString &label);

/// A page of rows with the margins that all pages share.
QVBoxLayout *MakePage(QWidget *page);
/// A form straight on the page.
QFormLayout *AddForm(QVBoxLayout *page);
/// A form within a titled frame.
QFormLayout *AddFrame(QVBoxLayout *page, const QString &title);

/// A box that takes the width of its row, with `beside` (a button) at its right.
TextBox *AddTextBox(QFormLayout *form, const QString &name, const QString &label,
                    QPushButton *beside = nullptr);
/// A narrow box for a number, followed by `unit`.
TextBox *AddNumberBox(QFormLayout *form, const QString &name, const QString &label,
                      const QString &value, const QString &unit = {});
/// Any other control, as wide as its row.
void AddControl(QFormLayout *form, const QString &name, const QString &label, QWidget *control);
QComboBox *AddComboBox(QFormLayout *form, const QString &name, const QString &label,
                       const QStringList &items);
QCheckBox *AddCheckBox(QFormLayout *form, const QString &name, const QString &caption);
/// A button that answers Enter only once it is made the default.
QPushButton *MakeButton(const QString &name, const QString &caption);
/// A button on a row of its own, no wider than it must be.
void AddButton(QFormLayout *form, QPushButton *button);
/// The row of buttons that ends a window; the first one is the default.
void AddButtonRow(QVBoxLayout *window, std::initializer_list<QPushButton *> buttons);

/// Gives the labels of a page one width, so that its boxes stand in one line across frames.
void AlignLabels(QWidget *page);

}  // namespace FormParts
}  // namespace velor
