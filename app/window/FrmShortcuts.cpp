// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FrmShortcuts.h"

#include "insert/FormParts.h"
#include "platform/Words.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace velor {

using namespace FormParts;

namespace {

enum Column { NameColumn, KeyColumn, ConflictColumn };

constexpr QSize FirstSize(620, 520);

QString Shown(const QKeySequence &key) {
  return key.toString(QKeySequence::NativeText);
}

bool IsModifier(int key) {
  return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt ||
         key == Qt::Key_Meta || key == Qt::Key_AltGr || key == Qt::Key_unknown || key == 0;
}

}  // namespace

KeyBox::KeyBox(QWidget *parent) : QLineEdit(parent) {
  setAttribute(Qt::WA_InputMethodEnabled, false);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);
}

bool KeyBox::event(QEvent *event) {
  // What is pressed here is no shortcut of the window's.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

void KeyBox::keyPressEvent(QKeyEvent *event) {
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const int key = event->key();
  if (isPlain && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter))
    return event->ignore();
  if (IsModifier(key)) return;
  if (isPlain && (key == Qt::Key_Delete || key == Qt::Key_Backspace)) {
    Q_EMIT Pressed({});
    return;
  }
  Q_EMIT Pressed(
      QKeyCombination(event->modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(key)));
}

FrmShortcuts::FrmShortcuts(const Shortcuts &shortcuts, QWidget *parent)
    : QDialog(parent), shortcuts_(shortcuts) {
  setObjectName(QStringLiteral("FrmShortcuts"));
  setWindowTitle(Words::tr("Shortcuts"));
  setModal(true);
  for (const KeyedCommand &each : shortcuts_.Commands()) keys_.push_back(each.key);
  Build();
  Fill();
  Judge();
  list_->setCurrentItem(list_->topLevelItem(0));
  resize(FirstSize);
  words_->setFocus();
}

void FrmShortcuts::Build() {
  QVBoxLayout *rows = MakePage(this);
  words_ = new QLineEdit;
  Name(*words_, QStringLiteral("txtWords"), Words::tr("Words of the command"));
  words_->setPlaceholderText(Words::tr("Words of the command"));
  rows->addWidget(words_);
  list_ = new QTreeWidget;
  Name(*list_, QStringLiteral("lstCommands"), Words::tr("Commands"));
  list_->setHeaderLabels({Words::tr("Command"), Words::tr("Key"), Words::tr("Note")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  rows->addWidget(list_, 1);

  auto *changing = new QHBoxLayout;
  auto *label = new QLabel(Words::tr("&Key:"));
  key_ = new KeyBox;
  Name(*key_, QStringLiteral("txtKey"), Words::tr("Key"));
  key_->setPlaceholderText(Words::tr("Press a key; Delete takes it away"));
  label->setBuddy(key_);
  reset_ = MakeButton(QStringLiteral("cmdReset"), Words::tr("&Reset"));
  QPushButton *resetAll = MakeButton(QStringLiteral("cmdResetAll"), Words::tr("Reset &All"));
  changing->addWidget(label);
  changing->addWidget(key_, 1);
  changing->addWidget(reset_);
  changing->addWidget(resetAll);
  rows->addLayout(changing);

  state_ = new QLabel;
  state_->setObjectName(QStringLiteral("lblState"));
  state_->setWordWrap(true);
  rows->addWidget(state_);
  ok_ = MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  QPushButton *cancel = MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  AddButtonRow(rows, {ok_, cancel});

  connect(words_, &QLineEdit::textChanged, this, &FrmShortcuts::Filter);
  connect(list_, &QTreeWidget::currentItemChanged, this, &FrmShortcuts::ShowChosen);
  connect(list_, &QTreeWidget::itemActivated, this, [this] { key_->setFocus(); });
  connect(key_, &KeyBox::Pressed, this, &FrmShortcuts::SetKey);
  connect(reset_, &QPushButton::clicked, this, [this] {
    if (const auto index = Chosen()) SetKey(shortcuts_.Commands()[*index].standard.value(0));
  });
  connect(resetAll, &QPushButton::clicked, this, &FrmShortcuts::ResetAll);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmShortcuts::Fill() {
  for (const KeyedCommand &each : shortcuts_.Commands()) {
    auto *row = new QTreeWidgetItem(list_);
    row->setText(NameColumn, each.command.name);
  }
  list_->resizeColumnToContents(NameColumn);
}

void FrmShortcuts::Filter(const QString &words) {
  const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
  QTreeWidgetItem *first = nullptr;
  for (int index = 0; index < list_->topLevelItemCount(); ++index) {
    QTreeWidgetItem *row = list_->topLevelItem(index);
    const QString text =
        QStringList{row->text(NameColumn), row->text(KeyColumn),
                    shortcuts_.Commands()[static_cast<std::size_t>(index)].command.words}
            .join(u' ');
    const bool hasAll = HoldsAll(text, wanted);
    row->setHidden(!hasAll);
    if (hasAll && first == nullptr) first = row;
  }
  list_->setCurrentItem(first);
}

std::optional<std::size_t> FrmShortcuts::Chosen() const {
  const int index = list_->indexOfTopLevelItem(list_->currentItem());
  if (index < 0) return {};
  return static_cast<std::size_t>(index);
}

void FrmShortcuts::ShowChosen() {
  const auto index = Chosen();
  key_->setEnabled(index.has_value());
  key_->setText(index ? Shown(keys_[*index]) : QString());
  reset_->setEnabled(index && keys_[*index] != shortcuts_.Commands()[*index].standard.value(0));
}

void FrmShortcuts::SetKey(const QKeySequence &key) {
  const auto index = Chosen();
  if (!index) return;
  const QString objection = key.isEmpty() ? QString() : shortcuts_.Objection(key);
  if (!objection.isEmpty()) {
    state_->setText(objection);
    return;
  }
  keys_[*index] = key;
  Judge();
  ShowChosen();
}

void FrmShortcuts::ResetAll() {
  for (std::size_t index = 0; index < keys_.size(); ++index)
    keys_[index] = shortcuts_.Commands()[index].standard.value(0);
  Judge();
  ShowChosen();
}

QString FrmShortcuts::ConflictOf(std::size_t index) const {
  if (keys_[index].isEmpty()) return {};
  for (std::size_t other = 0; other < keys_.size(); ++other) {
    if (other == index) continue;
    const KeyedCommand &command = shortcuts_.Commands()[other];
    const bool hasMore = keys_[other] == command.standard.value(0);
    if (keys_[other] == keys_[index] || (hasMore && command.standard.contains(keys_[index])))
      return Words::tr("%1 has this key too").arg(command.command.name);
  }
  return {};
}

void FrmShortcuts::Judge() {
  QString refusal;
  for (std::size_t index = 0; index < keys_.size(); ++index) {
    QTreeWidgetItem &row = *list_->topLevelItem(static_cast<int>(index));
    const KeyedCommand &command = shortcuts_.Commands()[index];
    const QString conflict = ConflictOf(index);
    const QString inPage = shortcuts_.CommandOfPage(keys_[index]);
    QString note = conflict;
    if (note.isEmpty() && !inPage.isEmpty() && inPage != command.command.name)
      note = Words::tr("goes before %1 in the page").arg(inPage);
    else if (note.isEmpty() && !command.pageKey.isEmpty())
      note = Words::tr("in the page %1").arg(command.pageKey);
    row.setText(KeyColumn, Shown(keys_[index]));
    row.setText(ConflictColumn, note);
    row.setToolTip(ConflictColumn, note);
    QFont font = row.font(KeyColumn);
    font.setBold(keys_[index] != command.standard.value(0));
    row.setFont(KeyColumn, font);
    if (refusal.isEmpty() && !conflict.isEmpty())
      refusal = QStringLiteral("%1: %2").arg(Shown(keys_[index]), command.command.name) +
                QStringLiteral("; ") + conflict;
  }
  state_->setText(refusal);
  ok_->setEnabled(refusal.isEmpty());
}

}  // namespace velor
