// SPDX-License-Identifier: GPL-3.0-or-later
#include "properties/frmProperties.h"

#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "platform/Words.h"
#include "properties/FontSample.h"
#include "properties/PropertyHost.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velor {
namespace {

constexpr int ComfortableWidth = 392;

}  // namespace

frmProperties::frmProperties(const PropertySheet &sheet, const PropertyValues &values,
                             QWidget *parent, PropertyHost *host)
    : QDialog(parent), sheet_(sheet), host_(host), known_(values) {
  setObjectName(QStringLiteral("frmProperties"));
  setWindowTitle(Words::tr(sheet.title));
  setModal(true);
  window_ = FormParts::MakePage(this);
  // Not the window's own minimum, which would cut what is wider.
  window_->addStrut(ComfortableWidth);
  for (const PropertyField &field : sheet.fields) {
    if (field.kind == FieldKind::Part)
      part_ = Words::tr(field.label);
    else if (values.contains(QLatin1String(field.name)))
      AddRow(field, values.value(QLatin1String(field.name)));
  }
  FormParts::AlignLabels(this);
  if (sheet.subject == PropertySubject::Fonts) {
    sample_ = new FontSample;
    window_->addWidget(sample_);
    ShowSample();
  }
  refusal_ = FormParts::AddRefusal(window_, {});
  QPushButton *ok = FormParts::MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  QPushButton *apply = FormParts::MakeButton(QStringLiteral("cmdApply"), Words::tr("Appl&y"));
  QPushButton *cancel = FormParts::MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  connect(ok, &QPushButton::clicked, this, [this] {
    if (Apply()) accept();
  });
  connect(apply, &QPushButton::clicked, this, &frmProperties::Apply);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  if (sheet.remover == nullptr) {
    FormParts::AddButtonRow(window_, {ok, apply, cancel});
  } else {
    QPushButton *remove =
        FormParts::MakeButton(QStringLiteral("cmdRemove"), Words::tr(sheet.removal));
    connect(remove, &QPushButton::clicked, this, [this] { Remove(QLatin1String(sheet_.remover)); });
    FormParts::AddButtonRow(window_, {ok, apply, cancel, remove});
  }
}

QFormLayout *frmProperties::Form() {
  if (!part_.isEmpty()) {
    if (parts_ == nullptr) {
      parts_ = new QTabWidget;
      FormParts::Name(*parts_, QStringLiteral("tabParts"), windowTitle());
      window_->addWidget(parts_);
    }
    auto *page = new QWidget;
    QVBoxLayout *rows = FormParts::MakePage(page);
    form_ = FormParts::AddForm(rows);
    rows->addStretch();
    parts_->addTab(page, part_);
    part_.clear();
  } else if (form_ == nullptr) {
    form_ = FormParts::AddForm(window_);
  }
  return form_;
}

PropertyValues frmProperties::Values() const {
  PropertyValues values;
  for (const Row &row : rows_) values.insert(QLatin1String(row.field->name), ValueOf(row));
  return values;
}

bool frmProperties::Apply() {
  const auto refuse = [this](const QString &why, const Row &row) {
    for (QWidget *page = row.text; parts_ != nullptr && page != nullptr;
         page = page->parentWidget()) {
      if (parts_->indexOf(page) >= 0) parts_->setCurrentWidget(page);
    }
    FormParts::Refuse(*refusal_, why, *row.text);
    return false;
  };
  PropertyValues changed;
  for (const Row &row : rows_) {
    const QString value = ValueOf(row);
    const QString name = QLatin1String(row.field->name);
    if (value == known_.value(name)) continue;
    if (const QString why = PropertyRefusal(*row.field, value); !why.isEmpty())
      return refuse(why, row);
    changed.insert(name, value);
  }
  if (changed.isEmpty()) return true;
  if (const QString why = host_ == nullptr ? QString() : host_->Objection(changed);
      !why.isEmpty()) {
    refusal_->setText(why);
    refusal_->show();
    return false;
  }
  known_.insert(changed);
  Q_EMIT Changed(changed);
  return true;
}

void frmProperties::Remove(const QString &name) {
  Q_EMIT Changed({{name, QString()}});
  accept();
}

void frmProperties::ShowSample() {
  if (sample_ != nullptr) sample_->Show(Values());
}

}  // namespace velor
