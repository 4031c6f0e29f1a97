// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/StatusLine.h"

#include "chrome/Palette.h"

#include <QLabel>

namespace velor {
namespace {

constexpr int NoticeMilliseconds = 10'000;

}  // namespace

StatusLine::StatusLine(QWidget *parent)
    : QStatusBar(parent), tag_(new QLabel(this)), textForm_(new QLabel(this)) {
  setObjectName(QStringLiteral("Sta"));
  setSizeGripEnabled(false);
  tag_->setObjectName(QStringLiteral("Sta_1"));
  tag_->setTextFormat(Qt::PlainText);
  tag_->setIndent(BarMargin);
  addWidget(tag_, 1);
  textForm_->setObjectName(QStringLiteral("Sta_2"));
  textForm_->setAccessibleName(QStringLiteral("Charset and line ends"));
  textForm_->setTextFormat(Qt::PlainText);
  textForm_->setContentsMargins(0, 0, BarMargin, 0);
  addPermanentWidget(textForm_);
}

void StatusLine::ShowTag(const QString &tag) {
  tag_->setText(tag);
}

void StatusLine::ShowTextForm(const QString &words) {
  textForm_->setText(words);
}

void StatusLine::Report(const QString &message) {
  ReportOn(front_, message);
}

void StatusLine::ReportOn(int page, const QString &message) {
  noticeOn_ = page;
  showMessage(message, NoticeMilliseconds);
}

void StatusLine::PageCame(int page) {
  front_ = page;
  if (noticeOn_ != 0 && noticeOn_ != page) clearMessage();
}

}  // namespace velor
