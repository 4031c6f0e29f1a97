// SPDX-License-Identifier: GPL-3.0-or-later
// frmProperties: the controls of its fields.
#include "chrome/Captions.h"
#include "chrome/ColorPicker.h"
#include "chrome/ColorValue.h"
#include "chrome/FontFamilies.h"
#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "platform/EditingCommands.h"
#include "platform/Words.h"
#include "properties/PropertyHost.h"
#include "properties/frmProperties.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace velor {
namespace {

/// Beside the text in a box.
constexpr int BoxEdges = 28;
constexpr int ShownLines = 3;

/// Names that every browser has a family for.
const QStringList GenericFamilies = {QStringLiteral("serif"), QStringLiteral("sans-serif"),
                                     QStringLiteral("monospace"), QStringLiteral("cursive"),
                                     QStringLiteral("fantasy")};
QStringList Sizes() {
  QStringList sizes;
  for (const int points : FontSizePoints) sizes << QString::number(points);
  return sizes;
}

QString NameOf(const PropertyField &field) {
  return QStringLiteral("prp_") + QLatin1String(field.name);
}

void ShowHelp(QWidget &control, const PropertyField &field) {
  if (*field.help == '\0') return;
  control.setToolTip(Words::tr(field.help));
  control.setAccessibleDescription(Words::tr(field.help));
}

/// Shows the field's help in the empty box, which is as wide as that.
void ShowHint(QLineEdit &box, const PropertyField &field) {
  if (*field.help == '\0') return;
  box.setPlaceholderText(Words::tr(field.help));
  box.ensurePolished();
  box.setMinimumWidth(box.fontMetrics().horizontalAdvance(box.placeholderText()) + BoxEdges);
}

QString SpokenLabel(QString label) {
  return SpokenCaption(label.remove(u':'));
}

}  // namespace

void frmProperties::AddRow(const PropertyField &field, const QString &value) {
  Row row{.field = &field};
  switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Length:
    case FieldKind::Color:
      AddTextBox(row, value, nullptr);
      break;
    case FieldKind::Address:
      AddAddressBox(row, value);
      break;
    case FieldKind::Font:
      Offer(*AddListBox(row, value, nullptr), GenericFamilies + InstalledFamilies());
      break;
    case FieldKind::Size:
      Offer(*AddListBox(row, value, nullptr), Sizes());
      break;
    case FieldKind::Addresses:
      AddLines(row, value);
      break;
    case FieldKind::Choice:
      AddChoice(row, value);
      break;
    case FieldKind::Charset:
      AddCharset(row, value);
      break;
    case FieldKind::Truth:
      AddTruth(row, value);
      break;
    case FieldKind::Told:
      return AddTold(field, value);
    case FieldKind::Part:
      return;
  }
  rows_.push_back(row);
}

void frmProperties::AddTextBox(Row &row, const QString &value, QWidget *beside) {
  const QString name = NameOf(*row.field);
  const QString label = Words::tr(row.field->label);
  const bool isColor = row.field->kind == FieldKind::Color;
  row.text = FormParts::AddTextBox(Form(), name, label, isColor ? MakePicker(name, label) : beside);
  BeginText(row, value);
  if (isColor) Connect(*row.text, name);
}

QComboBox *frmProperties::AddListBox(Row &row, const QString &value, QWidget *beside) {
  const QString name = NameOf(*row.field);
  const QString label = Words::tr(row.field->label);
  auto *list = new QComboBox;
  row.text = new TextBox;
  list->setLineEdit(row.text);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  // Only a family's name is known before it is typed to its end.
  if (row.field->kind != FieldKind::Font) list->setCompleter(nullptr);
  FormParts::AddControl(Form(), name + QStringLiteral("_list"), label, list, beside);
  FormParts::Name(*row.text, name, label);
  BeginText(row, value);
  return list;
}

void frmProperties::BeginText(Row &row, const QString &value) {
  row.text->setText(value);
  ShowHint(*row.text, *row.field);
  ShowHelp(*row.text, *row.field);
  connect(row.text, &QLineEdit::textEdited, this, [this] { refusal_->hide(); });
  connect(row.text, &QLineEdit::textChanged, this, &frmProperties::ShowSample);
}

void frmProperties::Offer(QComboBox &list, const QStringList &offers) {
  const QSignalBlocker quiet(list);
  const QString typed = list.currentText();
  list.clear();
  list.addItems(offers);
  list.setCurrentIndex(-1);
  list.setEditText(typed);
}

void frmProperties::AddAddressBox(Row &row, const QString &value) {
  if (host_ == nullptr) return AddTextBox(row, value, nullptr);
  QPushButton *browse = MakeBrowse(*row.field);
  if (sheet_.subject == PropertySubject::Link) {
    QComboBox *list = AddListBox(row, value, browse);
    const auto offer = [this, list] { Offer(*list, host_->Offers(list->currentText())); };
    offer();
    connect(row.text, &QLineEdit::editingFinished, list, offer);
  } else {
    AddTextBox(row, value, browse);
  }
  connect(browse, &QPushButton::clicked, this, [this, field = row.field, box = row.text] {
    const QString address = host_->Browse(Words::tr(field->filter));
    if (!address.isEmpty()) box->setText(address);
  });
}

QPushButton *frmProperties::MakeBrowse(const PropertyField &field) {
  QPushButton *browse =
      FormParts::MakeButton(NameOf(field) + QStringLiteral("_browse"), Words::tr("Browse..."));
  browse->setAccessibleName(Words::tr("Browse: %1").arg(SpokenLabel(Words::tr(field.label))));
  return browse;
}

void frmProperties::AddLines(Row &row, const QString &value) {
  auto *lines = row.lines = new QPlainTextEdit(value);
  lines->setTabChangesFocus(true);
  lines->setLineWrapMode(QPlainTextEdit::NoWrap);
  lines->ensurePolished();
  lines->setFixedHeight(lines->fontMetrics().lineSpacing() * ShownLines + BoxEdges);
  lines->setPlaceholderText(Words::tr(row.field->help));
  ShowHelp(*lines, *row.field);
  QPushButton *browse = host_ == nullptr ? nullptr : MakeBrowse(*row.field);
  FormParts::AddControl(Form(), NameOf(*row.field), Words::tr(row.field->label), lines, browse);
  if (browse == nullptr) return;
  connect(browse, &QPushButton::clicked, this, [this, lines, field = row.field] {
    const QString address = host_->Browse(Words::tr(field->filter));
    if (!address.isEmpty())
      lines->setPlainText((lines->toPlainText().trimmed() + u'\n' + address).trimmed());
  });
}

void frmProperties::AddChoice(Row &row, const QString &value) {
  row.choice = FormParts::AddComboBox(Form(), NameOf(*row.field), Words::tr(row.field->label), {});
  for (const PropertyChoice &choice : row.field->choices)
    row.choice->addItem(Words::tr(choice.caption), QLatin1String(choice.value));
  if (row.choice->findData(value) < 0) row.choice->addItem(value, value);
  row.choice->setCurrentIndex(row.choice->findData(value));
  ShowHelp(*row.choice, *row.field);
}

void frmProperties::AddCharset(Row &row, const QString &value) {
  AddChoice(row, value);
  if (host_ == nullptr) return;
  for (const QString &charset : host_->Charsets())
    if (charset != value) row.choice->addItem(charset, charset);
  connect(row.choice, &QComboBox::activated, this, [this] { refusal_->hide(); });
}

void frmProperties::AddTruth(Row &row, const QString &value) {
  row.truth = FormParts::AddCheckBox(Form(), NameOf(*row.field), Words::tr(row.field->label));
  if (value == u"mixed")
    row.truth->setCheckState(Qt::PartiallyChecked);
  else
    row.truth->setChecked(value == u"true");
  ShowHelp(*row.truth, *row.field);
  connect(row.truth, &QCheckBox::stateChanged, this, &frmProperties::ShowSample);
}

void frmProperties::AddTold(const PropertyField &field, const QString &value) {
  const auto words = std::find_if(
      field.choices.begin(), field.choices.end(),
      [&](const PropertyChoice &choice) { return value == QLatin1String(choice.value); });
  auto *text = new QLabel(words == field.choices.end() ? value : Words::tr(words->caption));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  FormParts::AddControl(Form(), NameOf(field), Words::tr(field.label), text);
}

ColorPicker *frmProperties::MakePicker(const QString &name, const QString &label) {
  auto *picker = new ColorPicker(QStringLiteral("backcolor"), this);
  picker->setObjectName(name + QStringLiteral("_picker"));
  picker->setAccessibleName(Words::tr("Choose: %1").arg(SpokenLabel(label)));
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

QString frmProperties::ValueOf(const Row &row) {
  if (row.text != nullptr) return row.text->text().trimmed();
  if (row.choice != nullptr) return row.choice->currentData().toString();
  if (row.lines != nullptr) return row.lines->toPlainText().trimmed();
  if (row.truth->checkState() == Qt::PartiallyChecked) return QStringLiteral("mixed");
  return row.truth->isChecked() ? QStringLiteral("true") : QString();
}

}  // namespace velor
