// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PictureBar.h"

#include "platform/Words.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace velor {

namespace {

constexpr int TextBoxWidth = 200;

}  // namespace

PictureBar::PictureBar(QWidget *parent)
    : NoticeBar("picPicture", "lblPicture", Words::tr("Picture put in"), parent) {
  text_ = new QLineEdit;
  text_->setObjectName(QStringLiteral("txtPictureAlt"));
  text_->setAccessibleName(Words::tr("Alternative Text"));
  text_->setPlaceholderText(Words::tr("What does it show?"));
  text_->setToolTip(Words::tr("Alternative text: what is read where the picture is not seen"));
  text_->setMinimumWidth(TextBoxWidth);
  connect(text_, &QLineEdit::editingFinished, this, &PictureBar::GiveText);
  Add(*text_);
  decorative_ = new QCheckBox(Words::tr("Decorative"));
  decorative_->setObjectName(QStringLiteral("chkPictureDecorative"));
  decorative_->setToolTip(Words::tr("It says nothing: its alternative text is empty"));
  decorative_->setFocusPolicy(Qt::TabFocus);
  connect(decorative_, &QCheckBox::toggled, text_, &QWidget::setDisabled);
  connect(decorative_, &QCheckBox::toggled, this, &PictureBar::GiveText);
  Add(*decorative_);
  const auto add = [&](const char *name, const QString &caption, const QString &tip, auto signal) {
    QPushButton &button = AddButton(name, caption, tip);
    connect(&button, &QPushButton::clicked, this, signal);
    return &button;
  };
  copy_ = add("cmdCopyPicture", Words::tr("Copy"),
              Words::tr("Copy it into the site, now and from now on"), &PictureBar::CopyChosen);
  link_ =
      add("cmdLinkPicture", Words::tr("Link Where It Lies"),
          Words::tr("Name the file where it lies, now and from now on"), &PictureBar::LinkChosen);
  add("cmdUndoPicture", Words::tr("Undo"), Words::tr("Take it out of the page again"),
      &PictureBar::UndoChosen);
  add("cmdClosePicture", Words::tr("Close"), Words::tr("Put this bar away"), &PictureBar::hide);
}

void PictureBar::ShowArrival(const QString &text, Offer offer, Asks asks) {
  copy_->setVisible(offer == Offer::Copy);
  link_->setVisible(offer == Offer::Link);
  for (QWidget *box : {static_cast<QWidget *>(text_), static_cast<QWidget *>(decorative_)})
    box->setVisible(asks == Asks::ForText);
  const QSignalBlocker quietText(text_);
  const QSignalBlocker quietBox(decorative_);
  text_->clear();
  text_->setEnabled(true);
  decorative_->setChecked(false);
  given_ = QString();
  Tell(text);
}

void PictureBar::GiveText() {
  QString text = text_->text().trimmed();
  if (decorative_->isChecked()) {
    text = QStringLiteral("");
  } else if (text.isEmpty()) {
    text = QString();
  }
  if (text == given_ && text.isNull() == given_.isNull()) return;
  given_ = text;
  Q_EMIT TextGiven(text);
}

void PictureBar::keyPressEvent(QKeyEvent *event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) hide();
  if (isEnter || event->key() == Qt::Key_Escape) Q_EMIT Left();
}

}  // namespace velor
