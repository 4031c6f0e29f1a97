// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/CharacterDialog.h"

#include "insert/CharacterNames.h"
#include "insert/FormParts.h"
#include "insert/TextBox.h"
#include "platform/Words.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace velor {

namespace {

constexpr QSize ComfortableSize(560, 440);
/// Pixels of a character's cell.
constexpr int Cell = 44;
constexpr std::size_t MostFound = 400;
constexpr std::size_t MostRecent = 24;
/// In the list of blocks, before the blocks themselves.
constexpr int RecentEntry = 0;
constexpr char32_t FirstShown = 0xA0;

constexpr int CharacterRole = Qt::UserRole;

QString TextOf(char32_t character) {
  return QString::fromUcs4(&character, 1);
}

}  // namespace

CharacterDialog::CharacterDialog(std::vector<char32_t> &recent, QWidget *parent)
    : QDialog(parent), recent_(recent), characters_(new QListWidget), name_(new QLabel) {
  setObjectName(QStringLiteral("CharacterDialog"));
  setWindowTitle(Words::tr("Insert Character"));
  setModal(true);
  QVBoxLayout *window = FormParts::MakePage(this);
  QFormLayout *form = FormParts::AddForm(window);
  words_ = FormParts::AddTextBox(form, QStringLiteral("txtWords"), Words::tr("&Name or code:"));
  words_->setPlaceholderText(Words::tr("em dash, 2014, or the character itself"));
  words_->installEventFilter(this);
  blocks_ = FormParts::AddComboBox(form, QStringLiteral("cobBlock"), Words::tr("&Block:"), {});
  blocks_->addItem(Words::tr("Chosen before"));
  for (const CharacterBlock &block : CharacterBlocks()) {
    blocks_->addItem(block.name);
    if (recent_.empty() && block.first <= FirstShown && FirstShown <= block.last)
      blocks_->setCurrentIndex(blocks_->count() - 1);
  }
  characters_->setObjectName(QStringLiteral("lstCharacters"));
  characters_->setAccessibleName(Words::tr("Characters"));
  characters_->setViewMode(QListView::IconMode);
  characters_->setMovement(QListView::Static);
  characters_->setResizeMode(QListView::Adjust);
  characters_->setUniformItemSizes(true);
  characters_->setGridSize(QSize(Cell, Cell));
  QFont large = characters_->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  characters_->setFont(large);
  window->addWidget(characters_, 1);
  name_->setObjectName(QStringLiteral("lblName"));
  name_->setTextFormat(Qt::PlainText);
  name_->setWordWrap(true);
  window->addWidget(name_);
  ok_ = FormParts::MakeButton(QStringLiteral("cmdOK"), Words::tr("Insert"));
  ok_->setDefault(true);
  QPushButton *cancel = FormParts::MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  FormParts::AddButtonRow(window, {ok_, cancel});

  connect(words_, &QLineEdit::textChanged, this, &CharacterDialog::Fill);
  connect(blocks_, &QComboBox::currentIndexChanged, this, [this] {
    words_->clear();
    Fill();
  });
  connect(characters_, &QListWidget::currentItemChanged, this,
          [this](const QListWidgetItem *item) { ShowName(item); });
  connect(characters_, &QListWidget::itemActivated, this, &CharacterDialog::accept);
  connect(ok_, &QPushButton::clicked, this, &CharacterDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  resize(ComfortableSize);
  Fill();
  words_->setFocus();
}

QString CharacterDialog::Character() const {
  const QListWidgetItem *item = characters_->currentItem();
  return item == nullptr ? QString() : TextOf(item->data(CharacterRole).toUInt());
}

void CharacterDialog::accept() {
  const QListWidgetItem *item = characters_->currentItem();
  if (item == nullptr) return;
  const char32_t chosen = item->data(CharacterRole).toUInt();
  recent_.erase(std::remove(recent_.begin(), recent_.end(), chosen), recent_.end());
  recent_.insert(recent_.begin(), chosen);
  if (recent_.size() > MostRecent) recent_.resize(MostRecent);
  QDialog::accept();
}

bool CharacterDialog::eventFilter(QObject *watched, QEvent *event) {
  if (watched == words_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
      characters_->setFocus(Qt::TabFocusReason);
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void CharacterDialog::Fill() {
  const QString words = words_->text();
  const int block = blocks_->currentIndex();
  if (!words.trimmed().isEmpty())
    ShowCharacters(FindCharacters(words, MostFound));
  else if (block == RecentEntry)
    ShowCharacters(recent_);
  else
    ShowCharacters(CharactersOf(CharacterBlocks()[static_cast<std::size_t>(block - 1)]));
}

void CharacterDialog::ShowCharacters(const std::vector<char32_t> &characters) {
  characters_->clear();
  for (const char32_t character : characters) {
    auto *item = new QListWidgetItem(TextOf(character), characters_);
    item->setTextAlignment(Qt::AlignCenter);
    item->setData(CharacterRole, static_cast<uint>(character));
    const QString name = CharacterName(character);
    item->setToolTip(name);
    item->setData(Qt::AccessibleTextRole, name);
  }
  characters_->setCurrentRow(0);
  ShowName(characters_->currentItem());
}

void CharacterDialog::ShowName(const QListWidgetItem *item) {
  ok_->setEnabled(item != nullptr);
  if (item == nullptr) {
    name_->setText(Words::tr("No character is called that."));
    return;
  }
  const uint character = item->data(CharacterRole).toUInt();
  const QString code = QString::number(character, 16).toUpper().rightJustified(4, u'0');
  name_->setText(QStringLiteral("U+%1  %2").arg(code, CharacterName(character)));
}

}  // namespace velor
