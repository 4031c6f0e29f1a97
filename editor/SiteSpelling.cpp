// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SiteSpelling.h"

#include "editor/EditorContext.h"
#include "editor/MainWindow.h"
#include "editor/PageWords.h"
#include "editor/SuggestionBox.h"
#include "editor/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/Words.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <map>
#include <utility>

namespace velor {

namespace {

enum Column { WordColumn, CountColumn, PagesColumn };

}  // namespace

std::vector<SiteWord> UnknownWordsOfPages(EditorContext &context) {
  std::map<QString, SiteWord> found;
  ForEachSpelling(context, [&](frmMain &page, PageSpelling &spelling) {
    const QString name = page.ShownName();
    for (const UnknownWord &each : spelling.All()) {
      SiteWord &word = found[each.word];
      if (word.count == 0) word.word = each;
      ++word.count;
      if (!word.pages.contains(name)) word.pages << name;
    }
  });
  std::vector<SiteWord> words;
  words.reserve(found.size());
  for (auto &[key, word] : found) words.push_back(std::move(word));
  return words;
}

int CorrectInPages(EditorContext &context, const QString &word, const QString &other) {
  int count = 0;
  ForEachSpelling(context, [&](frmMain &, PageSpelling &spelling) {
    count += spelling.CorrectAll(word, other);
  });
  return count;
}

FrmSiteSpelling::FrmSiteSpelling(EditorContext &context, std::vector<SiteWord> words,
                                 QWidget *parent)
    : QDialog(parent), context_(context), words_(std::move(words)) {
  setObjectName(QStringLiteral("FrmSiteSpelling"));
  setWindowTitle(Words::tr("Unknown Words of All Open Pages"));
  setModal(true);
  Build();
  Fill();
}

void FrmSiteSpelling::Build() {
  auto *rows = new QVBoxLayout(this);
  list_ = new QTreeWidget;
  list_->setObjectName(QStringLiteral("lstWords"));
  list_->setAccessibleName(Words::tr("Unknown words"));
  list_->setHeaderLabels({Words::tr("Word"), Words::tr("Times"), Words::tr("Pages")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setMinimumSize(440, 240);
  rows->addWidget(list_, 1);
  connect(list_, &QTreeWidget::currentItemChanged, this, &FrmSiteSpelling::ShowSuggestions);

  auto *changing = new QHBoxLayout;
  auto *label = new QLabel(Words::tr("Change &to:"));
  other_ = new SuggestionBox("cobChangeTo");
  label->setBuddy(other_);
  changing->addWidget(label);
  changing->addWidget(other_, 1);
  rows->addLayout(changing);

  auto *buttons = new QHBoxLayout;
  result_ = new QLabel;
  result_->setObjectName(QStringLiteral("lblResult"));
  buttons->addWidget(result_, 1);
  const auto add = [&](const char *name, const QString &caption, const auto &act) {
    auto *button = new QPushButton(caption);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    buttons->addWidget(button);
    return button;
  };
  add("cmdChangeEverywhere", Words::tr("Change &Everywhere"), &FrmSiteSpelling::ChangeEverywhere)
      ->setDefault(true);
  add("cmdIgnore", Words::tr("&Ignore"),
      [this] { TakeForKnown([this](const QString &word) { IgnoreWord(context_, word); }); });
  add("cmdAddWord", Words::tr("&Add"), [this] {
    TakeForKnown([this](const QString &word) { AddWord(context_, word, WordHome::Person); });
  });
  add("cmdClose", Words::tr("&Close"), &QDialog::accept);
  rows->addLayout(buttons);
}

void FrmSiteSpelling::Fill() {
  for (const SiteWord &each : words_) {
    auto *row = new QTreeWidgetItem(list_);
    row->setText(WordColumn, each.word.word);
    row->setText(CountColumn, QString::number(each.count));
    row->setText(PagesColumn, each.pages.join(QStringLiteral(", ")));
    row->setToolTip(PagesColumn, row->text(PagesColumn));
  }
  list_->resizeColumnToContents(WordColumn);
  list_->resizeColumnToContents(CountColumn);
  list_->setCurrentItem(list_->topLevelItem(0));
}

const SiteWord *FrmSiteSpelling::Chosen() const {
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  return row < 0 ? nullptr : &words_[static_cast<std::size_t>(row)];
}

void FrmSiteSpelling::ShowSuggestions() {
  other_->clear();
  if (const SiteWord *chosen = Chosen()) other_->Offer(chosen->word, *context_.platform.spelling);
}

void FrmSiteSpelling::ChangeEverywhere() {
  const SiteWord *chosen = Chosen();
  if (chosen == nullptr) return;
  const QPointer<FrmSiteSpelling> alive(this);
  const int count = CorrectInPages(context_, chosen->word.word, other_->currentText());
  if (alive.isNull()) return;
  result_->setText(WordsChanged(count));
  Drop();
}

template <typename Deed>
void FrmSiteSpelling::TakeForKnown(Deed deed) {
  const SiteWord *chosen = Chosen();
  if (chosen == nullptr) return;
  deed(chosen->word.word);
  result_->clear();
  Drop();
}

void FrmSiteSpelling::Drop() {
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  // The list first: it chooses another row, whose word is found by the number that it had.
  delete list_->takeTopLevelItem(row);
  words_.erase(words_.begin() + row);
}

void ShowSiteSpelling(EditorContext &context) {
  std::vector<SiteWord> words = UnknownWordsOfPages(context);
  if (words.empty()) {
    context.mainWindow.status.Report(Words::tr("There is no unknown word in the open pages"));
    return;
  }
  FrmSiteSpelling window(context, std::move(words), QApplication::activeWindow());
  context.platform.dialogs.RunModal(window);
}

}  // namespace velor
