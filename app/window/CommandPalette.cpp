// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CommandPalette.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace velor {
namespace {

constexpr QSize FirstSize(420, 380);

}  // namespace

bool HoldsAll(const QString &text, const QStringList &words) {
  return std::all_of(words.begin(), words.end(), [&text](const QString &word) {
    return text.contains(word, Qt::CaseInsensitive);
  });
}

QString NameWithKey(const NamedCommand &command) {
  const QString key = command.item->shortcut().toString(QKeySequence::NativeText);
  return key.isEmpty() ? command.name : QStringLiteral("%1 (%2)").arg(command.name, key);
}

CommandPalette::CommandPalette(const PaletteWords &words, const QList<NamedCommand> &commands,
                               QWidget *parent)
    : QDialog(parent), words_(new QLineEdit(this)), list_(new QListWidget(this)) {
  setObjectName(QStringLiteral("CommandPalette"));
  setWindowTitle(words.title);
  std::copy_if(commands.begin(), commands.end(), std::back_inserter(commands_),
               [](const NamedCommand &command) { return command.item->isEnabled(); });
  words_->setObjectName(QStringLiteral("txtWords"));
  words_->setAccessibleName(words.prompt);
  words_->setPlaceholderText(words.prompt);
  words_->installEventFilter(this);
  list_->setObjectName(QStringLiteral("lstCommands"));
  list_->setAccessibleName(words.list);
  auto *column = new QVBoxLayout(this);
  column->addWidget(words_);
  column->addWidget(list_, 1);
  resize(FirstSize);
  connect(words_, &QLineEdit::textChanged, this, &CommandPalette::Filter);
  connect(words_, &QLineEdit::returnPressed, this, [this] { Choose(list_->currentItem()); });
  connect(list_, &QListWidget::itemActivated, this, &CommandPalette::Choose);
  Filter();
  words_->setFocus();
}

void CommandPalette::Filter() {
  const QStringList words = words_->text().split(u' ', Qt::SkipEmptyParts);
  list_->clear();
  int named = 0;
  for (qsizetype index = 0; index < commands_.size(); ++index) {
    const NamedCommand &command = commands_.at(index);
    const bool isNamed = HoldsAll(command.name, words);
    if (!isNamed && !HoldsAll(command.name + u' ' + command.words, words)) continue;
    auto *entry = new QListWidgetItem(NameWithKey(command));
    entry->setData(Qt::UserRole, index);
    list_->insertItem(isNamed ? named++ : list_->count(), entry);
  }
  list_->setCurrentRow(0);
}

void CommandPalette::Choose(const QListWidgetItem *entry) {
  if (entry == nullptr) return;
  chosen_ = commands_.at(entry->data(Qt::UserRole).toLongLong()).item;
  accept();
}

bool CommandPalette::eventFilter(QObject *watched, QEvent *event) {
  if (watched == words_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    const int step = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
    if (step != 0) {
      list_->setCurrentRow(
          std::clamp(list_->currentRow() + step, 0, std::max(list_->count() - 1, 0)));
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace velor
