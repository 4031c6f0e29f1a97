// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/FindBar.h"

#include "chrome/Palette.h"
#include "platform/LastFirst.h"
#include "platform/Words.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

namespace velor {

namespace {

constexpr int BoxWidth = 260;
constexpr qsizetype LongestMemory = 20;

QLineEdit *AddBox(QHBoxLayout &row, const char *name, const QString &label) {
  auto *box = new QLineEdit;
  box->setObjectName(QString::fromLatin1(name));
  box->setAccessibleName(label);
  box->setPlaceholderText(label);
  box->setToolTip(Words::tr("Up and Down bring earlier words"));
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

QCheckBox *AddCheck(QHBoxLayout &row, const char *name, const QString &caption) {
  auto *check = new QCheckBox(caption);
  check->setObjectName(QString::fromLatin1(name));
  check->setAccessibleName(caption);
  row.addWidget(check);
  return check;
}

QAction *AddOption(QMenu &menu, const char *name, const QString &caption) {
  QAction *option = menu.addAction(caption);
  option->setObjectName(QString::fromLatin1(name));
  option->setCheckable(true);
  return option;
}

QHBoxLayout *MakeRow() {
  auto *row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(BarMargin);
  return row;
}

void Remember(QStringList &used, const QString &words) {
  if (!words.isEmpty()) PutFirst(used, words, LongestMemory);
}

QString InWords(const SearchResult &result, const QString &words) {
  if (result.isInvalid) return Words::tr("Not a regular expression");
  if (result.replaced) return Words::tr("%n replaced", nullptr, *result.replaced);
  if (words.isEmpty()) return {};
  if (result.count == 0) return Words::tr("Not found");
  if (result.current == 0) return Words::tr("%n found", nullptr, result.count);
  return Words::tr("%1 of %2").arg(result.current).arg(result.count);
}

}  // namespace

FindBar::FindBar(FindMemory &memory, QWidget *parent) : QWidget(parent), memory_(memory) {
  setObjectName(QStringLiteral("picFind"));
  setAccessibleName(Words::tr("Find and Replace"));
  setAutoFillBackground(true);
  Build();
  hide();
}

void FindBar::Build() {
  QHBoxLayout *finding = MakeRow();
  findText_ = AddBox(*finding, "txtFind", Words::tr("Find"));
  connect(findText_, &QLineEdit::textEdited, this, [this] { Find(SearchDirection::Here); });
  connect(AddButton(*finding, "cmdPrevious", Words::tr("Previous"),
                    Words::tr("Find Previous (Shift+F3)")),
          &QPushButton::clicked, this, [this] { Find(SearchDirection::Backward); });
  connect(AddButton(*finding, "cmdNext", Words::tr("Next"), Words::tr("Find Next (F3)")),
          &QPushButton::clicked, this, [this] { Find(SearchDirection::Forward); });
  BuildOptions(*finding);
  result_ = new QLabel;
  result_->setObjectName(QStringLiteral("lblResult"));
  finding->addWidget(result_, 1);
  connect(AddButton(*finding, "cmdCloseFind", Words::tr("Close"), Words::tr("Close (Escape)")),
          &QPushButton::clicked, this, &FindBar::CloseBar);

  QHBoxLayout *replacing = MakeRow();
  replacement_ = AddBox(*replacing, "txtReplace", Words::tr("Replace with"));
  connect(AddButton(*replacing, "cmdReplace", Words::tr("Replace"),
                    Words::tr("Replace this one and find the next")),
          &QPushButton::clicked, this, &FindBar::ReplaceFound);
  connect(AddButton(*replacing, "cmdReplaceAll", Words::tr("Replace All"),
                    Words::tr("Replace every one as one step of Undo")),
          &QPushButton::clicked, this, &FindBar::ReplaceEverywhere);
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

void FindBar::BuildOptions(QHBoxLayout &row) {
  matchCase_ = AddCheck(row, "chkCase", Words::tr("Match Case"));
  wholeWords_ = AddCheck(row, "chkWords", Words::tr("Whole Words"));
  auto *more = new QToolButton;
  more->setObjectName(QStringLiteral("cmdFindOptions"));
  more->setText(Words::tr("More"));
  more->setAccessibleName(Words::tr("More options"));
  more->setToolTip(Words::tr("More options for finding"));
  more->setFocusPolicy(Qt::TabFocus);
  more->setPopupMode(QToolButton::InstantPopup);
  auto *menu = new QMenu(more);
  ignoreAccents_ = AddOption(*menu, "optAccents", Words::tr("Ignore &Accents"));
  expression_ = AddOption(*menu, "optExpression", Words::tr("Regular &Expression"));
  inSelection_ = AddOption(*menu, "optSelection", Words::tr("In the &Selection Only"));
  more->setMenu(menu);
  row.addWidget(more);
  for (QCheckBox *check : {matchCase_, wholeWords_})
    connect(check, &QCheckBox::toggled, this, &FindBar::FindAnew);
  for (QAction *option : {ignoreAccents_, expression_, inSelection_})
    connect(option, &QAction::toggled, this, &FindBar::FindAnew);
}

void FindBar::SetTarget(TextSearch &target) {
  if (target_ == &target) return;
  if (target_ != nullptr) target_->End();
  target_ = &target;
  target.SetListener([this, &target](const SearchResult &result) {
    if (target_ == &target) ShowResult(result);
  });
  if (isHidden()) return;
  if (!target.CanReplace()) replacing_->hide();
  target.Recount(Query());
}

void FindBar::Recall() {
  const QSignalBlocker cases(matchCase_);
  const QSignalBlocker edges(wholeWords_);
  const QSignalBlocker accents(ignoreAccents_);
  const QSignalBlocker syntax(expression_);
  const QSignalBlocker scope(inSelection_);
  const SearchQuery &query = memory_.query;
  findText_->setText(query.words);
  replacement_->setText(memory_.replacement);
  matchCase_->setChecked(query.letterCase == LetterCase::Matched);
  wholeWords_->setChecked(query.edges == WordEdges::Whole);
  ignoreAccents_->setChecked(query.accents == Accents::Ignored);
  expression_->setChecked(query.syntax == WordSyntax::Expression);
  inSelection_->setChecked(false);
}

SearchQuery FindBar::Query() {
  SearchQuery query;
  query.words = findText_->text();
  if (matchCase_->isChecked()) query.letterCase = LetterCase::Matched;
  if (wholeWords_->isChecked()) query.edges = WordEdges::Whole;
  if (ignoreAccents_->isChecked()) query.accents = Accents::Ignored;
  if (expression_->isChecked()) query.syntax = WordSyntax::Expression;
  if (inSelection_->isChecked()) query.scope = SearchScope::Selection;
  memory_.query = query;
  memory_.replacement = replacement_->text();
  return query;
}

void FindBar::Open(Purpose purpose) {
  const QPointer<FindBar> alive(this);
  // Waits for the page.
  const QString selected = target_->SelectedLine();
  if (alive.isNull()) return;
  if (isHidden()) Recall();
  if (!selected.isEmpty()) {
    const QSignalBlocker syntax(expression_);
    expression_->setChecked(false);
    findText_->setText(selected);
  }
  replacing_->setVisible(purpose == Purpose::Replace && target_->CanReplace());
  result_->clear();
  show();
  findText_->setFocus();
  findText_->selectAll();
  target_->Recount(Query());
}

void FindBar::FindOn(SearchDirection direction) {
  if (isHidden()) Recall();
  if (findText_->text().isEmpty()) {
    Open(Purpose::Find);
    return;
  }
  Find(direction);
  if (isHidden()) target_->End();
}

void FindBar::TextChanged() {
  if (!isHidden()) target_->Recount(Query());
}

void FindBar::CloseBar() {
  Remember(memory_.words, Query().words);
  target_->End();
  // First: a box that is hidden with the keyboard in it would pass that on as Tab does, and a page
  // that the keyboard comes to by Tab moves its caret to the start.
  target_->SetFocus();
  hide();
}

void FindBar::Find(SearchDirection direction) {
  const SearchQuery query = Query();
  if (direction != SearchDirection::Here) Remember(memory_.words, query.words);
  target_->Find(query, direction);
}

void FindBar::FindAnew() {
  if (inSelection_->isChecked()) {
    // The first match would take the selection's place.
    target_->Recount(Query());
  } else {
    Find(SearchDirection::Here);
  }
}

void FindBar::ReplaceFound() {
  const SearchQuery query = Query();
  Remember(memory_.words, query.words);
  Remember(memory_.replacements, memory_.replacement);
  target_->Replace(query, memory_.replacement);
}

void FindBar::ReplaceEverywhere() {
  const SearchQuery query = Query();
  Remember(memory_.words, query.words);
  Remember(memory_.replacements, memory_.replacement);
  target_->ReplaceAll(query, memory_.replacement);
}

void FindBar::RecallWords(QLineEdit &box, const QStringList &earlier, int step) {
  const qsizetype at = earlier.indexOf(box.text()) + step;
  if (at < 0 || at >= earlier.size()) return;
  box.setText(earlier[at]);
  if (&box == findText_) Find(SearchDirection::Here);
}

void FindBar::ShowResult(const SearchResult &result) {
  result_->setText(InWords(result, findText_->text()));
}

void FindBar::keyPressEvent(QKeyEvent *event) {
  const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
  QLineEdit *box = replacement_->hasFocus() ? replacement_ : findText_;
  switch (event->key()) {
    case Qt::Key_Escape:
      CloseBar();
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (box == replacement_) {
        ReplaceFound();
      } else {
        Find(back ? SearchDirection::Backward : SearchDirection::Forward);
      }
      break;
    case Qt::Key_Up:
    case Qt::Key_Down:
      RecallWords(*box, box == replacement_ ? memory_.replacements : memory_.words,
                  event->key() == Qt::Key_Up ? 1 : -1);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace velor
