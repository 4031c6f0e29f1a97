// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/FormParts.h"

#include "insert/TextBox.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace velor::FormParts {
namespace {

constexpr int Margin = 14;
constexpr int Spacing = 10;
constexpr int NumberWidth = 90;
/// Pixels that the edge of a frame takes.
constexpr int FrameEdge = 3;

void Arrange(QFormLayout &form) {
  form.setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  form.setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form.setHorizontalSpacing(Spacing);
  form.setVerticalSpacing(Spacing);
}

/// Adds `row` under a label that leads to `control`.
template <typename Row>
void AddRow(QFormLayout *form, const QString &label, Row *row, QWidget *control) {
  auto *labelWidget = new QLabel(label);
  labelWidget->setBuddy(control);
  // Forms align labels to the top of the row; a label as high as the box is centred beside it.
  labelWidget->setMinimumHeight(std::min(control->sizeHint().height(), control->maximumHeight()));
  form->addRow(labelWidget, row);
}

}  // namespace

void Name(QWidget &control, const QString &name, const QString &label) {
  control.setObjectName(name);
  control.setAccessibleName(QString(label).remove(u'&'));
}

QVBoxLayout *MakePage(QWidget *page) {
  auto *layout = new QVBoxLayout(page);
  layout->setContentsMargins(Margin, Margin, Margin, Margin);
  layout->setSpacing(Spacing);
  return layout;
}

QFormLayout *AddForm(QVBoxLayout *page) {
  auto *form = new QFormLayout;
  Arrange(*form);
  // The same indentation as forms within frames have.
  form->setContentsMargins(Margin + FrameEdge, 0, Margin + FrameEdge, 0);
  page->addLayout(form);
  return form;
}

QFormLayout *AddFrame(QVBoxLayout *page, const QString &title) {
  auto *frame = new QGroupBox(title);
  page->addWidget(frame);
  auto *form = new QFormLayout(frame);
  Arrange(*form);
  form->setContentsMargins(Margin, Spacing, Margin, Margin);
  return form;
}

TextBox *AddTextBox(QFormLayout *form, const QString &name, const QString &label, QWidget *beside) {
  auto *box = new TextBox;
  AddControl(form, name, label, box, beside);
  return box;
}

TextBox *AddNumberBox(QFormLayout *form, const QString &name, const QString &label,
                      const QString &value, const QString &unit) {
  auto *box = new TextBox(value);
  Name(*box, name, label);
  box->setFixedWidth(NumberWidth);
  auto *row = new QHBoxLayout;
  row->setSpacing(Spacing);
  row->addWidget(box);
  if (!unit.isEmpty()) row->addWidget(new QLabel(unit));
  row->addStretch();
  AddRow(form, label, row, box);
  return box;
}

void AddControl(QFormLayout *form, const QString &name, const QString &label, QWidget *control,
                QWidget *beside) {
  Name(*control, name, label);
  if (beside == nullptr) return AddRow(form, label, control, control);
  auto *row = new QHBoxLayout;
  row->setSpacing(Spacing);
  row->addWidget(control, 1);
  row->addWidget(beside);
  AddRow(form, label, row, control);
}

QComboBox *AddComboBox(QFormLayout *form, const QString &name, const QString &label,
                       std::span<const char *const> values) {
  auto *box = new QComboBox;
  for (const char *value : values) box->addItem(Words::tr(value), QLatin1String(value));
  AddControl(form, name, label, box);
  return box;
}

QCheckBox *AddCheckBox(QFormLayout *form, const QString &name, const QString &caption) {
  auto *box = new QCheckBox(caption);
  Name(*box, name, caption);
  form->addRow(box);
  return box;
}

QPushButton *MakeButton(const QString &name, const QString &caption) {
  auto *button = new QPushButton(caption);
  Name(*button, name, caption);
  button->setAutoDefault(false);
  return button;
}

void AddButton(QFormLayout *form, QPushButton *button) {
  auto *row = new QHBoxLayout;
  row->addWidget(button);
  row->addStretch();
  form->addRow(row);
}

void AddButtonRow(QVBoxLayout *window, std::initializer_list<QPushButton *> buttons) {
  auto *row = new QHBoxLayout;
  row->setSpacing(Spacing);
  row->addStretch();
  for (QPushButton *button : buttons) row->addWidget(button);
  (*buttons.begin())->setDefault(true);
  window->addLayout(row);
}

QLabel *AddRefusal(QVBoxLayout *window, std::initializer_list<TextBox *> boxes) {
  auto *line = new QLabel;
  line->setObjectName(QStringLiteral("lblRefusal"));
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  // Its room stays free, so that the window does not grow by it.
  QSizePolicy policy = line->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  line->setSizePolicy(policy);
  line->hide();
  window->addWidget(line);
  for (const TextBox *box : boxes)
    QObject::connect(box, &QLineEdit::textEdited, line, &QWidget::hide);
  return line;
}

void Refuse(QLabel &line, const QString &why, TextBox &box) {
  line.setText(why);
  line.show();
  box.setFocus();
  SelectAllText(box);
}

void AlignLabels(QWidget *page) {
  QList<QLabel *> labels;
  int width = 0;
  for (QLabel *label : page->findChildren<QLabel *>()) {
    if (!label->buddy()) continue;
    labels.append(label);
    width = std::max(width, label->sizeHint().width());
  }
  for (QLabel *label : labels) label->setMinimumWidth(width);
}

}  // namespace velor::FormParts
