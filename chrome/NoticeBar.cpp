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
