// SPDX-License-Identifier: GPL-3.0-or-later
#include "properties/frmProperties.h"

#include "chrome/ColorPicker.h"
#include "chrome/ColorValue.h"
#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace velor {
namespace {

constexpr int ComfortableWidth = 420;

QString NameOf(const PropertyField &field) {
  return QStringLiteral("prp_") + QLatin1String(field.name);
}

}  // namespace

frmProperties::frmProperties(const PropertySheet &sheet, const PropertyValues &values,
                             QWidget *parent)
    : QDialog(parent), known_(values) {
  setObjectName(QStringLiteral("frmProperties"));
  setWindowTitle(Words::tr(sheet.title));
  setModal(true);
  QVBoxLayout *window = FormParts::MakePage(this);
  QFormLayout *form = FormParts::AddForm(window);
  for (const PropertyField &field : sheet.fields) {
    if (values.contains(QLatin1String(field.name)))
      AddRow(field, values.value(QLatin1String(field.name)), form);
  }
  refusal_ = FormParts::AddRefusal(window, {});
  QPushButton *ok = FormParts::MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  QPushButton *apply = FormParts::MakeButton(QStringLiteral("cmdApply"), Words::tr("Appl&y"));
  QPushButton *cancel = FormParts::MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  connect(ok, &QPushButton::clicked, this, [this] {
    if (Apply()) accept();
  });
  connect(apply, &QPushButton::clicked, this, &frmProperties::Apply);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  FormParts::AddButtonRow(window, {ok, apply, cancel});
  setMinimumWidth(ComfortableWidth);
}

ColorPicker *frmProperties::MakePicker(const QString &name, QString label) {
  auto *picker = new ColorPicker(QStringLiteral("backcolor"), this);
  picker->setObjectName(name + QStringLiteral("_picker"));
  label = label.remove(u'&').remove(u':');
  picker->setAccessibleName(Words::tr("Choose: %1").arg(label));
  picker->setToolTip(picker->accessibleName());
  return picker;
}

void frmProperties::Connect(TextBox &box, const QString &name) {
  auto *picker = findChild<ColorPicker *>(name + QStringLiteral("_picker"));
  const auto show = [picker](const QString &text) {
    if (QColor::isValidColor(text)) picker->SetColor(ToColorValue(QColor(text)));
  };
  show(box.text());
  connect(&box, &QLineEdit::textChanged, picker, show);
  connect(picker, &ColorPicker::ColorChosen, &box, [this, &box](std::int32_t color) {
    refusal_->hide();
    box.setText(FromColorValue(color).name().toUpper());
  });
}

void frmProperties::AddRow(const PropertyField &field, const QString &value, QFormLayout *form) {
  const QString name = NameOf(field);
  const QString label = Words::tr(field.label);
  Row row{.field = &field};
  QWidget *control = nullptr;
  switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Length:
    case FieldKind::Color:
      control = row.text = FormParts::AddTextBox(
          form, name, label, field.kind == FieldKind::Color ? MakePicker(name, label) : nullptr);
      row.text->setText(value);
      if (field.kind == FieldKind::Color) Connect(*row.text, name);
      row.text->setPlaceholderText(Words::tr(field.help));
      connect(row.text, &QLineEdit::textEdited, this, [this] { refusal_->hide(); });
      break;
    case FieldKind::Choice: {
      control = row.choice = FormParts::AddComboBox(form, name, label, {});
      for (const PropertyChoice &choice : field.choices)
        row.choice->addItem(Words::tr(choice.caption), QLatin1String(choice.value));
      if (row.choice->findData(value) < 0) row.choice->addItem(value, value);
      row.choice->setCurrentIndex(row.choice->findData(value));
      break;
    }
    case FieldKind::Truth:
      control = row.truth = FormParts::AddCheckBox(form, name, label);
      if (value == u"mixed")
        row.truth->setCheckState(Qt::PartiallyChecked);
      else
        row.truth->setChecked(value == u"true");
      break;
    case FieldKind::Told: {
      auto *text = new QLabel(value);
      text->setTextFormat(Qt::PlainText);
      text->setWordWrap(true);
      FormParts::AddControl(form, name, label, text);
      return;
    }
  }
  control->setToolTip(Words::tr(field.help));
  control->setAccessibleDescription(Words::tr(field.help));
  rows_.push_back(row);
}

QString frmProperties::ValueOf(const Row &row) {
  if (row.text != nullptr) return row.text->text().trimmed();
  if (row.choice != nullptr) return row.choice->currentData().toString();
  if (row.truth->checkState() == Qt::PartiallyChecked) return QStringLiteral("mixed");
  return row.truth->isChecked() ? QStringLiteral("true") : QString();
}

bool frmProperties::Apply() {
  PropertyValues changed;
  for (const Row &row : rows_) {
    const QString value = ValueOf(row);
    const QString name = QLatin1String(row.field->name);
    if (value == known_.value(name)) continue;
    if (const QString why = PropertyRefusal(*row.field, value); !why.isEmpty()) {
      FormParts::Refuse(*refusal_, why, *row.text);
      return false;
    }
    changed.insert(name, value);
  }
  for (auto value = changed.begin(); value != changed.end(); ++value)
    known_.insert(value.key(), value.value());
  if (!changed.isEmpty()) Q_EMIT Changed(changed);
  return true;
}

}  // namespace velor
