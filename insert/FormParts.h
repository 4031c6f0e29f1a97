// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <initializer_list>
#include <span>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace velor {

class TextBox;

/// Builds the pages of this folder's dialogs row by row. Each control gets `name` as object name
/// and its label as accessible name. Tab goes through the controls in the order of these calls.
namespace FormParts {

/// Sets object name and accessible name; the mnemonic's "&" is taken out of `label`.
void Name(QWidget &control, const QString &name, const QString &label);

/// Gives `page` a column layout with the margins that all pages share.
QVBoxLayout *MakePage(QWidget *page);
/// Appends a form (labels at the left, controls at the right) to the page.
QFormLayout *AddForm(QVBoxLayout *page);
/// Appends a form within a frame that has this title.
QFormLayout *AddFrame(QVBoxLayout *page, const QString &title);

/// Appends a text box as wide as its row, with the control `beside` at its right where given.
TextBox *AddTextBox(QFormLayout *form, const QString &name, const QString &label,
                    QWidget *beside = nullptr);
/// Appends a narrow text box for a number, with `unit` at its right.
TextBox *AddNumberBox(QFormLayout *form, const QString &name, const QString &label,
                      const QString &value, const QString &unit = {});
/// Appends any other control, likewise.
void AddControl(QFormLayout *form, const QString &name, const QString &label, QWidget *control,
                QWidget *beside = nullptr);
/// `values` go into pages or settings: each is shown translated and stands in the item's data.
QComboBox *AddComboBox(QFormLayout *form, const QString &name, const QString &label,
                       std::span<const char *const> values);
QCheckBox *AddCheckBox(QFormLayout *form, const QString &name, const QString &caption);
/// Makes a button that Enter presses only where it was made the dialog's default.
QPushButton *MakeButton(const QString &name, const QString &caption);
/// Appends a button on a row of its own, as narrow as its caption allows.
void AddButton(QFormLayout *form, QPushButton *button);
/// Appends the window's last row, its buttons at the right; the first one becomes the default.
void AddButtonRow(QVBoxLayout *window, std::initializer_list<QPushButton *> buttons);

/// Appends a line, unseen at first, for why the dialog does not close. It goes when one of `boxes`
/// is edited.
QLabel *AddRefusal(QVBoxLayout *window, std::initializer_list<TextBox *> boxes);
/// Shows why the dialog does not close, and gives the keyboard to the box to mend.
void Refuse(QLabel &line, const QString &why, TextBox &box);

/// Gives all labels of a page the same width, so that the boxes of its frames line up.
void AlignLabels(QWidget *page);

}  // namespace FormParts
}  // namespace velor
