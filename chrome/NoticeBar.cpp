// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/NoticeBar.h"

#include "chrome/Palette.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace velor {

NoticeBar::NoticeBar(const char *name, const char *textName, const QString &accessibleName,
                     QWidget *parent)
    : QFrame(parent), rows_(new QVBoxLayout(this)), line_(new QHBoxLayout), text_(new QLabel) {
  setObjectName(QString::fromLatin1(name));
  setAccessibleName(accessibleName);
  rows_->setContentsMargins(0, 0, 0, 0);
  rows_->setSpacing(0);
  rows_->addLayout(line_);
  line_->setContentsMargins(2 * BarMargin, BarMargin, 2 * BarMargin, BarMargin);
  line_->setSpacing(BarMargin);
  text_->setObjectName(QString::fromLatin1(textName));
  text_->setTextFormat(Qt::PlainText);
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  line_->addWidget(text_, 1);
  hide();
}

void NoticeBar::setVisible(bool visible) {
  // First: a control that is hidden with the keyboard in it would pass that on as Tab does, and a
  // page that the keyboard comes to by Tab moves its caret to the start.
  if (!visible && isAncestorOf(QApplication::focusWidget()))
    parentWidget()->setFocus(Qt::OtherFocusReason);
  QFrame::setVisible(visible);
}

void NoticeBar::Tell(const QString &text) {
  text_->setText(text);
  text_->setToolTip(text);
  show();
}

void NoticeBar::Add(QWidget &control) {
  line_->addWidget(&control);
}

void NoticeBar::AddBelow(QWidget &part) {
  rows_->addWidget(&part);
}

void NoticeBar::FoldUnder(QWidget &control) {
  folding_ = &control;
}

void NoticeBar::Fold() {
  const bool isBelow = rows_->indexOf(folding_) >= 0;
  int wanted = text_->sizeHint().width() + line_->minimumSize().width();
  if (isBelow) wanted += folding_->minimumSizeHint().width() + line_->spacing();
  const bool hasRoom = wanted <= width();
  if (hasRoom != isBelow) return;
  folding_->setContentsMargins(0, 0, 0, hasRoom ? 0 : BarMargin);
  // A layout takes its widgets out of the one before.
  if (hasRoom) return line_->insertWidget(place_, folding_);
  place_ = line_->indexOf(folding_);
  rows_->insertWidget(1, folding_, 0, Qt::AlignHCenter);
}

bool NoticeBar::event(QEvent *event) {
  const bool isNew = event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize;
  if (isNew && folding_ != nullptr) Fold();
  return QFrame::event(event);
}

QPushButton &NoticeBar::AddButton(const char *name, const QString &caption, const QString &tip) {
  auto *button = new QPushButton(caption);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(caption);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  button->setFocusPolicy(Qt::TabFocus);
  Add(*button);
  return *button;
}

void NoticeBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), HoverField(palette()));
  painter.setPen(Hairline(palette()));
  painter.drawLine(rect().topLeft(), rect().topRight());
}

}  // namespace velor
