// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SpellingBar.h"

#include "editor/EditorContext.h"
#include "editor/FrontWindow.h"
#include "editor/PageWords.h"
#include "editor/SuggestionBox.h"
#include "platform/Platform.h"
#include "platform/Words.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace velor {

namespace {

constexpr int BoxWidth = 220;

}  // namespace

SpellingBar::SpellingBar(EditorContext &context, FrontWindow &window, QWidget *parent)
    : NoticeBar("picSpelling", "lblUnknownWord", Words::tr("Spelling"), parent),
      context_(context),
      window_(window) {
  other_ = new SuggestionBox("cobSuggestions");
  other_->setMinimumWidth(BoxWidth);
  Add(*other_);
  const auto add = [this](const char *name, const QString &caption, const QString &tip,
                          const auto &act) {
    QPushButton &button = AddButton(name, caption, tip);
    connect(&button, &QPushButton::clicked, this, act);
    return &button;
  };
  QWidget *change = add("cmdChange", Words::tr("Change"),
                        Words::tr("Change this word and go on (Enter)"), &SpellingBar::Change);
  QWidget *changeAll =
      add("cmdChangeAll", Words::tr("Change All"),
          Words::tr("Change this word everywhere in the page, as one step of Undo"),
          &SpellingBar::ChangeAll);
  correcting_ = {other_, change, changeAll};
  add("cmdIgnore", Words::tr("Ignore"),
      Words::tr("Take this word for known until the program ends"), &SpellingBar::Ignore);
  add("cmdAddWord", Words::tr("Add"), Words::tr("Add this word to my words"),
      [this] { AddTo(WordHome::Person); });
  addToSite_ =
      add("cmdAddToSite", Words::tr("Add to Site"),
          Words::tr("Add this word to the words of the site"), [this] { AddTo(WordHome::Site); });
  next_ = add("cmdNextWord", Words::tr("Next"), Words::tr("Leave this word and go on (F7)"),
              &SpellingBar::GoOn);
  add("cmdCloseSpelling", Words::tr("Close"), Words::tr("Close (Escape)"), &SpellingBar::CloseBar);
}

void SpellingBar::GoOn() {
  PageSpelling *spelling = SpellingOf(context_, window_);
  if (spelling == nullptr) return;
  const QPointer<SpellingBar> alive(this);
  const auto found = spelling->SelectNext();
  if (alive.isNull()) return;
  if (found) return Show(*found);
  context_.mainWindow.status.Report(Words::tr("There is no unknown word in this page"));
  if (!isHidden()) CloseBar();
}

void SpellingBar::Show(const UnknownWord &found) {
  shown_ = found;
  Tell(Words::tr("Unknown word: %1").arg(found.word));
  other_->Offer(found, *context_.platform.spelling);
  addToSite_->setVisible(!SiteWordList(context_, window_.PageNumber()).isEmpty());
  const bool canCorrect = SpellingOf(context_, window_)->CanCorrect();
  for (QWidget *part : correcting_) part->setVisible(canCorrect);
  if (!canCorrect) return next_->setFocus();
  other_->setFocus();
  other_->lineEdit()->selectAll();
}

void SpellingBar::Change() {
  const QPointer<SpellingBar> alive(this);
  SpellingOf(context_, window_)->Correct(other_->currentText());
  if (!alive.isNull()) GoOn();
}

void SpellingBar::ChangeAll() {
  if (!shown_) return;
  const QPointer<SpellingBar> alive(this);
  const int count = SpellingOf(context_, window_)->CorrectAll(shown_->word, other_->currentText());
  if (alive.isNull()) return;
  context_.mainWindow.status.Report(WordsChanged(count));
  GoOn();
}

void SpellingBar::Ignore() {
  if (!shown_) return;
  IgnoreWord(context_, shown_->word);
  GoOn();
}

void SpellingBar::AddTo(WordHome home) {
  if (!shown_) return;
  AddWord(context_, shown_->word, home, SiteWordList(context_, window_.PageNumber()));
  GoOn();
}

void SpellingBar::CloseBar() {
  shown_.reset();
  // First: see FindBar::CloseBar.
  if (PageSpelling *spelling = SpellingOf(context_, window_)) spelling->SetFocus();
  hide();
}

void SpellingBar::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      return CloseBar();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return other_->isVisible() ? Change() : GoOn();
    default:
      NoticeBar::keyPressEvent(event);
  }
}

}  // namespace velor
