// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FrmNewPage.h"

#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace velor {

using namespace FormParts;

FrmNewPage::FrmNewPage(const std::vector<PageTemplate> &templates, QWidget *parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("FrmNewPage"));
  setWindowTitle(Words::tr("New from Template"));
  setModal(true);
  QVBoxLayout *window = MakePage(this);
  QFormLayout *form = AddForm(window);
  templates_ = AddComboBox(form, QStringLiteral("cobTemplate"), Words::tr("&Template:"), {});
  templates_->addItem(Words::tr("HTML5 page"), QString());
  for (const PageTemplate &one : templates) templates_->addItem(one.name, one.path);
  title_ = AddTextBox(form, QStringLiteral("txtTitle"), Words::tr("T&itle:"));
  language_ = AddTextBox(form, QStringLiteral("txtLanguage"), Words::tr("&Language:"));
  language_->setText(QLocale().bcp47Name());
  fitsPhones_ = AddCheckBox(form, QStringLiteral("chkPhones"),
                            Words::tr("Fits the &width of phones (viewport)"));
  fitsPhones_->setChecked(true);
  connect(templates_, &QComboBox::currentIndexChanged, this, [this](int index) {
    for (QWidget *box : std::initializer_list<QWidget *>{title_, language_, fitsPhones_})
      box->setEnabled(index == 0);
  });
  QPushButton *ok = MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  ok->setDefault(true);
  QPushButton *cancel = MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  connect(ok, &QPushButton::clicked, this, &FrmNewPage::accept);
  connect(cancel, &QPushButton::clicked, this, &FrmNewPage::reject);
  AddButtonRow(window, {ok, cancel});
  AlignLabels(this);
  title_->setFocus();
}

QString FrmNewPage::TemplatePath() const {
  return templates_->currentData().toString();
}

PageBeginning FrmNewPage::Beginning() const {
  return {title_->text().trimmed(), language_->text().trimmed(), fitsPhones_->isChecked()};
}

}  // namespace velor
