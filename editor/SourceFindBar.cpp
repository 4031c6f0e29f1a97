// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SourceFindBar.h"

#include "chrome/Palette.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace velor {

namespace {

constexpr int BoxWidth = 260;

QLineEdit *AddBox(QHBoxLayout &row, const char *name, const QString &label) {
  auto *box = new QLineEdit;
  box->setObjectName(QString::fromLatin1(name));
  box->setAccessibleName(label);
  box->setPlaceholderText(label);
  box->setMaximumWidth(BoxWidth);
  box->setClearButtonEnabled(true);
  row.addWidget(box, 1);
  return box;
}

QPushButton *AddButton(QHBoxLayout &row, const char *name, const QString &caption,
                       const QString &tooltip) {
  auto *button = new QPushButton(caption);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(caption);
  button->setToolTip(tooltip);
  button->setAutoDefault(false);
  row.addWidget(button);
  return button;
}

QHBoxLayout *MakeRow() {
  auto *row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(BarMargin);
  return row;
}

bool IsOneLine(const QString &text) {
  return !text.isEmpty() && !text.contains(u'\n') && !text.contains(u'\r');
}

}  // namespace

SourceFindBar::SourceFindBar(SourceControl &source, QWidget *parent)
    : QWidget(parent), source_(source) {
  setObjectName(QStringLiteral("picFind"));
  setAccessibleName(QStringLiteral("Find and Replace"));
  setAutoFillBackground(true);
  Build();
  hide();
}

void SourceFindBar::Build() {
  QHBoxLayout *finding = MakeRow();
  findText_ = AddBox(*finding, "txtFind", QStringLiteral("Find"));
  connect(findText_, &QLineEdit::textEdited, this, [this] { Find(SearchDirection::Here); });
  connect(AddButton(*finding, "cmdPrevious", QStringLiteral("Previous"),
                    QStringLiteral("Find Previous (Shift+F3)")),
          &QPushButton::clicked, this, [this] { Find(SearchDirection::Backward); });
  connect(AddButton(*finding, "cmdNext", QStringLiteral("Next"), QStringLiteral("Find Next (F3)")),
          &QPushButton::clicked, this, [this] { Find(SearchDirection::Forward); });
  matchCase_ = new QCheckBox(QStringLiteral("Match Case"));
  matchCase_->setObjectName(QStringLiteral("chkCase"));
  matchCase_->setAccessibleName(matchCase_->text());
  connect(matchCase_, &QCheckBox::toggled, this, [this] { Find(SearchDirection::Here); });
  finding->addWidget(matchCase_);
  result_ = new QLabel;
  result_->setObjectName(QStringLiteral("lblResult"));
  finding->addWidget(result_, 1);
  connect(AddButton(*finding, "cmdCloseFind", QStringLiteral("Close"),
                    QStringLiteral("Close (Escape)")),
          &QPushButton::clicked, this, &SourceFindBar::CloseBar);

  QHBoxLayout *replacing = MakeRow();
  replacement_ = AddBox(*replacing, "txtReplace", QStringLiteral("Replace with"));
  connect(AddButton(*replacing, "cmdReplace", QStringLiteral("Replace"),
                    QStringLiteral("Replace this one and find the next")),
          &QPushButton::clicked, this, &SourceFindBar::ReplaceFound);
  connect(AddButton(*replacing, "cmdReplaceAll", QStringLiteral("Replace All"),
                    QStringLiteral("Replace every one in the source")),
          &QPushButton::clicked, this, &SourceFindBar::ReplaceEverywhere);
  replacing->addStretch(1);
  replacing_ = new QWidget;
  replacing_->setLayout(replacing);

  auto *rows = new QVBoxLayout(this);
  rows->setContentsMargins(BarMargin, BarMargin, BarMargin, BarMargin);
  rows->setSpacing(BarMargin);
  rows->addLayout(finding);
  rows->addWidget(replacing_);
  // From the words to their replacement, before the buttons of either.
  QWidget::setTabOrder(findText_, replacement_);
  QWidget::setTabOrder(replacement_, findChild<QPushButton *>(QStringLiteral("cmdPrevious")));
}

void SourceFindBar::Open(Purpose purpose) {
  const QString selected = source_.SelectedText();
  if (IsOneLine(selected)) findText_->setText(selected);
  replacing_->setVisible(purpose == Purpose::Replace);
  result_->clear();
  show();
  findText_->setFocus();
  findText_->selectAll();
}

void SourceFindBar::FindOn(SearchDirection direction) {
  if (findText_->text().isEmpty()) {
    Open(Purpose::Find);
  } else {
    Find(direction);
  }
}

void SourceFindBar::CloseBar() {
  hide();
  source_.SetFocus();
}

void SourceFindBar::Find(SearchDirection direction) {
  const QString wanted = findText_->text();
  const bool found = source_.Find(wanted, direction, ChosenCase());
  result_->setText(found || wanted.isEmpty() ? QString() : QStringLiteral("Not found"));
}

void SourceFindBar::ReplaceFound() {
  const auto rule = matchCase_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
  if (source_.SelectedText().compare(findText_->text(), rule) == 0 && !findText_->text().isEmpty())
    source_.ReplaceSelection(replacement_->text());
  Find(SearchDirection::Forward);
}

void SourceFindBar::ReplaceEverywhere() {
  const int count = source_.ReplaceAll(findText_->text(), replacement_->text(), ChosenCase());
  result_->setText(QStringLiteral("%1 replaced").arg(count));
}

LetterCase SourceFindBar::ChosenCase() const {
  return matchCase_->isChecked() ? LetterCase::Matched : LetterCase::Ignored;
}

void SourceFindBar::keyPressEvent(QKeyEvent *event) {
  const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_Escape:
      CloseBar();
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (replacement_->hasFocus()) {
        ReplaceFound();
      } else {
        Find(back ? SearchDirection::Backward : SearchDirection::Forward);
      }
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace velor
