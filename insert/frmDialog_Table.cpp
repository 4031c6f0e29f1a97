// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/frmDialog_Table.h"

#include "insert/FormParts.h"
#include "insert/TableHtml.h"
#include "insert/TextBox.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velor {
namespace {

constexpr int ComfortableWidth = 360;

/// Takes any text. Its list is filled again whenever it drops down, and the text stays.
class AlignmentBox : public QComboBox {
 public:
  AlignmentBox() {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // The typed text is written to the page as it is: no completion from the list.
    setCompleter(nullptr);
    Refill();
  }

  void showPopup() override {
    Refill();
    QComboBox::showPopup();
  }

 private:
  void Refill() {
    const QString text = currentText();
    clear();
    addItems({QStringLiteral("Left"), QStringLiteral("Center"), QStringLiteral("Right")});
    setCurrentIndex(findText(text));
    setEditText(text);
  }
};

}  // namespace

frmDialog_Table::frmDialog_Table(QString &html, QWidget *parent, DialogScope scope, Dialect dialect)
    : QDialog(parent),
      html_(html),
      dialect_(scope == DialogScope::Extended ? dialect : Dialect::Attributes) {
  setObjectName(QStringLiteral("frmDialog_Table"));
  setWindowTitle(Words::tr("Table Editor"));
  setModal(true);

  auto *page = new QWidget;
  QVBoxLayout *rows = FormParts::MakePage(page);
  QFormLayout *form = FormParts::AddForm(rows);
  const QString one = QStringLiteral("1");
  const QString three = QStringLiteral("3");
  columns_ =
      FormParts::AddNumberBox(form, QStringLiteral("Text1"), Words::tr("# Of Columns:"), three);
  rows_ = FormParts::AddNumberBox(form, QStringLiteral("Text2"), Words::tr("# Of Rows:"), three);
  alignment_ = new AlignmentBox;
  const bool isExtended = scope == DialogScope::Extended;
  alignment_->setEditText(isExtended ? QString() : QStringLiteral("Left"));
  FormParts::AddControl(form, QStringLiteral("Combo1"), Words::tr("Align:"), alignment_);
  alignment_->lineEdit()->setAccessibleName(alignment_->accessibleName());
  border_ = FormParts::AddNumberBox(form, QStringLiteral("combo2"), Words::tr("Border:"), one);
  cellSpacing_ =
      FormParts::AddNumberBox(form, QStringLiteral("combo3"), Words::tr("Cell Spacing:"), one);
  cellPadding_ =
      FormParts::AddNumberBox(form, QStringLiteral("combo4"), Words::tr("Cell Padding:"), one);

  if (isExtended) {
    alignment_->lineEdit()->setPlaceholderText(tr("None"));
    headings_ = FormParts::AddCheckBox(form, QStringLiteral("chkHeadings"),
                                       tr("&Headings in the first row"));
  }

  auto *tabs = new QTabWidget;
  FormParts::Name(*tabs, QStringLiteral("TabStrip1"), Words::tr("Table Setup:"));
  tabs->addTab(page, Words::tr("Table"));

  QPushButton *insertButton =
      FormParts::MakeButton(QStringLiteral("Command1"), Words::tr("Insert"));
  QPushButton *cancelButton =
      FormParts::MakeButton(QStringLiteral("Command2"), Words::tr("Cancel"));
  connect(insertButton, &QPushButton::clicked, this, &frmDialog_Table::Insert);
  connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);

  QVBoxLayout *window = FormParts::MakePage(this);
  window->addWidget(new QLabel(Words::tr("Table Setup:")));
  window->addWidget(tabs, 1);
  refusal_ = FormParts::AddRefusal(window, {columns_, rows_});
  FormParts::AddButtonRow(window, {insertButton, cancelButton});
  setMinimumWidth(ComfortableWidth);
  columns_->setFocus();
}

void frmDialog_Table::Insert() {
  const TableValues values{.align = alignment_->currentText(),
                           .cellSpacing = cellSpacing_->text(),
                           .cellPadding = cellPadding_->text(),
                           .border = border_->text(),
                           .rows = rows_->text(),
                           .columns = columns_->text(),
                           .firstRow = headings_ != nullptr && headings_->isChecked()
                                           ? FirstRow::Headings
                                           : FirstRow::Cells,
                           .dialect = dialect_};
  if (const QString why = TableRefusal(values); !why.isEmpty())
    return FormParts::Refuse(*refusal_, why, *rows_);
  html_ = TableHtml(values);
  accept();
}

}  // namespace velor
