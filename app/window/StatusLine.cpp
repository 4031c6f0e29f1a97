// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/StatusLine.h"

#include "app/window/PathBar.h"
#include "chrome/Palette.h"
#include "platform/PlainTip.h"
#include "platform/Words.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>

#include <algorithm>

namespace velor {
StatusLine::StatusLine(QWidget *parent, NoticeTimes times)
    : QStatusBar(parent),
      left_(new QWidget(this)),
      line_(new QHBoxLayout(left_)),
      tag_(new QLabel(left_)),
      measures_(new QLabel(this)),
      textForm_(new QLabel(this)),
      times_(times) {
  setObjectName(QStringLiteral("Sta"));
  setSizeGripEnabled(false);
  tag_->setObjectName(QStringLiteral("Sta_1"));
  tag_->setTextFormat(Qt::PlainText);
  tag_->setIndent(BarMargin);
  // A long path is cut off; it does not widen the window.
  tag_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  line_->setContentsMargins(0, 0, 0, 0);
  line_->setSpacing(BarSpacing);
  line_->addWidget(tag_, 1);
  addWidget(left_, 1);
  measures_->setObjectName(QStringLiteral("measures"));
  measures_->setAccessibleName(Words::tr("Place of what is selected"));
  measures_->setTextFormat(Qt::PlainText);
  measures_->setContentsMargins(0, 0, BarMargin, 0);
  measures_->hide();
  addPermanentWidget(measures_);
  textForm_->setObjectName(QStringLiteral("Sta_2"));
  textForm_->setAccessibleName(Words::tr("Charset and line ends"));
  textForm_->setTextFormat(Qt::PlainText);
  textForm_->setContentsMargins(0, 0, BarMargin, 0);
  addPermanentWidget(textForm_);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this] {
    notices_.pop_back();
    Show();
  });
}

void StatusLine::ShowTag(const QString &tag) {
  tagName_ = tag;
  ShowTagOrPlace();
}

void StatusLine::ShowPlace(const QString &path) {
  place_ = path;
  ShowTagOrPlace();
}

PathBar &StatusLine::AddPath() {
  path_ = new PathBar(left_);
  line_->addWidget(path_, 1);
  ShowTagOrPlace();
  return *path_;
}

void StatusLine::AddMenuButton(const QString &caption, const QString &name) {
  menuButton_ = new QToolButton(this);
  menuButton_->setObjectName(QStringLiteral("cmdStatusMenu"));
  menuButton_->setText(caption);
  menuButton_->setAccessibleName(name);
  menuButton_->setToolTip(name);
  menuButton_->setAutoRaise(true);
  menuButton_->setFocusPolicy(Qt::TabFocus);
  connect(menuButton_, &QToolButton::clicked, this,
          [this] { Q_EMIT MenuWanted(menuButton_->mapToGlobal(QPoint())); });
  addPermanentWidget(menuButton_);
}

void StatusLine::contextMenuEvent(QContextMenuEvent *event) {
  if (menuButton_ == nullptr) return QStatusBar::contextMenuEvent(event);
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
  Q_EMIT MenuWanted(isByKey ? menuButton_->mapToGlobal(QPoint()) : event->globalPos());
}

void StatusLine::ShowPath(const QStringList &path) {
  if (path_ == nullptr) return;
  path_->ShowPath(path);
  ShowTagOrPlace();
}

void StatusLine::ShowTagOrPlace() {
  if (path_ != nullptr) {
    const bool hasPath = place_.isEmpty() && !path_->Path().isEmpty();
    path_->setVisible(hasPath);
    tag_->setSizePolicy(hasPath ? QSizePolicy::Fixed : QSizePolicy::Ignored,
                        QSizePolicy::Preferred);
  }
  const int room = left_->width() - 2 * BarMargin;
  tag_->setText(place_.isEmpty() ? tagName_
                                 : tag_->fontMetrics().elidedText(place_, Qt::ElideMiddle, room));
}

void StatusLine::ShowMeasures(const QString &words) {
  // An empty label would keep its margin.
  measures_->setText(words);
  measures_->setVisible(!words.isEmpty());
}

void StatusLine::ShowTextForm(const QString &words) {
  textForm_->setText(words);
}

void StatusLine::Report(const QString &message) {
  ReportOn(front_, message);
}

void StatusLine::ReportOn(int page, const QString &message) {
  if (message.isEmpty()) return Drop([page](const Notice &notice) { return notice.page == page; });
  if (!notices_.empty()) {
    notices_.back().left = timer_.remainingTimeAsDuration();
    if (times_.shown - notices_.back().left >= times_.read) notices_.pop_back();
  }
  std::erase_if(notices_, [&](const Notice &notice) { return notice.text == message; });
  notices_.push_back({page, message, times_.shown});
  Show();
}

bool StatusLine::HasNotice() const {
  return std::any_of(notices_.begin(), notices_.end(),
                     [this](const Notice &notice) { return notice.page == front_; });
}

void StatusLine::PageActivated(int page) {
  front_ = page;
  Drop([page](const Notice &notice) { return notice.page != 0 && notice.page != page; });
}

template <typename Condition>
void StatusLine::Drop(Condition isDue) {
  if (notices_.empty()) return;
  notices_.back().left = timer_.remainingTimeAsDuration();
  if (std::erase_if(notices_, isDue) > 0) Show();
}

void StatusLine::Show() {
  if (notices_.empty()) {
    timer_.stop();
    clearMessage();
  } else {
    timer_.start(notices_.back().left);
    showMessage(notices_.back().text);
  }
  ShowTip();
}

QRect StatusLine::NoticePlace() const {
  int end = width() - BarMargin;
  for (const QWidget *field : findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
    if (field != left_ && field->isVisible()) end = std::min(end, field->x() - BarMargin);
  return {BarMargin, 0, std::max(0, end - BarMargin), height()};
}

QString StatusLine::ShownNotice() const {
  return fontMetrics().elidedText(currentMessage(), Qt::ElideRight, NoticePlace().width());
}

void StatusLine::ShowTip() {
  setToolTip(ShownNotice() == currentMessage() ? QString() : PlainTip(currentMessage()));
}

void StatusLine::resizeEvent(QResizeEvent *event) {
  QStatusBar::resizeEvent(event);
  ShowTip();
}

void StatusLine::paintEvent(QPaintEvent *event) {
  if (currentMessage().isEmpty()) return QStatusBar::paintEvent(event);
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_PanelStatusBar, &option, &painter, this);
  style()->drawItemText(&painter, NoticePlace(), Qt::AlignLeading | Qt::AlignVCenter, palette(),
                        isEnabled(), ShownNotice(), foregroundRole());
}

}  // namespace velor
