// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/frmDialog_Table.h"

#include "insert/FormParts.h"
#include "insert/TableHtml.h"
#include "insert/TextBox.h"
#include "platform/ProgramValues.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velor {
namespace {

constexpr int ComfortableWidth = 360;

/// Takes any text; its list is filled anew, below the text that stands there, each time it drops
/// down.
class AlignmentBox : public QComboBox {
 public:
  AlignmentBox() {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // What is typed goes into the page as it is, not as the list would complete it.
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

frmDialog_Table::frmDialog_Table(ProgramValues &values, QWidget *parent)
    : QDialog(parent), values_(values) {
  setObjectName(QStringLiteral("frmDialog_Table"));
  setWindowTitle(QStringLiteral("Table Editor"));
  setModal(true);

  auto *page = new QWidget;
  QVBoxLayout *rows = FormParts::MakePage(page);
  QFormLayout *form = FormParts::AddForm(rows);
  const QString one = QStringLiteral("1");
  const QString three = QStringLiteral("3");
  Text1 = FormParts::AddNumberBox(form, QStringLiteral("Text1"), QStringLiteral("# Of Columns:"),
                                  three);
  Text2 =
      FormParts::AddNumberBox(form, QStringLiteral("Text2"), QStringLiteral("# Of Rows:"), three);
  Combo1 = new AlignmentBox;
  Combo1->setEditText(QStringLiteral("Left"));
  FormParts::AddControl(form, QStringLiteral("Combo1"), QStringLiteral("Align:"), Combo1);
  Combo1->lineEdit()->setAccessibleName(Combo1->accessibleName());
  combo2 = FormParts::AddNumberBox(form, QStringLiteral("combo2"), QStringLiteral("Border:"), one);
  combo3 =
      FormParts::AddNumberBox(form, QStringLiteral("combo3"), QStringLiteral("Cell Spacing:"), one);
  combo4 =
      FormParts::AddNumberBox(form, QStringLiteral("combo4"), QStringLiteral("Cell Padding:"), one);

  auto *TabStrip1 = new QTabWidget;
  FormParts::Name(*TabStrip1, QStringLiteral("TabStrip1"), QStringLiteral("Table Setup:"));
  TabStrip1->addTab(page, QStringLiteral("Table"));

  QPushButton *Command1 =
      FormParts::MakeButton(QStringLiteral("Command1"), QStringLiteral("Insert"));
  QPushButton *Command2 =
      FormParts::MakeButton(QStringLiteral("Command2"), QStringLiteral("Cancel"));
  connect(Command1, &QPushButton::clicked, this, &frmDialog_Table::Insert);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);

  QVBoxLayout *window = FormParts::MakePage(this);
  window->addWidget(new QLabel(QStringLiteral("Table Setup:")));
  window->addWidget(TabStrip1, 1);
  FormParts::AddButtonRow(window, {Command1, Command2});
  setMinimumWidth(ComfortableWidth);
  Text1->setFocus();
}

void frmDialog_Table::Insert() {
  values_.HTMLString = TableHtml({.align = Combo1->currentText(),
                                  .cellSpacing = combo3->text(),
                                  .cellPadding = combo4->text(),
                                  .border = combo2->text(),
                                  .rows = Text2->text(),
                                  .columns = Text1->text()});
  accept();
}

}  // namespace velor
