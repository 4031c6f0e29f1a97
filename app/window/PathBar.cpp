// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PathBar.h"

#include "chrome/Captions.h"
#include "chrome/Palette.h"
#include "platform/PlainTip.h"
#include "platform/Words.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace velor {
namespace {

constexpr QChar Separator(0x203A);
constexpr QChar Ellipsis(0x2026);
/// Pixels between two buttons, with the separator in the middle.
constexpr int Gap = 10;
/// Pixels of a name; a longer one is cut off.
constexpr int LongestName = 180;

/// A name as a button shows it: on one line, with no mnemonic.
QString Caption(const QToolButton &button, const QString &name) {
  return AsCaption(button.fontMetrics().elidedText(name.simplified(), Qt::ElideRight, LongestName));
}

}  // namespace

PathBar::PathBar(QWidget *parent) : QWidget(parent), outer_(AddButton()) {
  setObjectName(QStringLiteral("pathBar"));
  setAccessibleName(Words::tr("Path of elements"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  outer_->setObjectName(QStringLiteral("pathOuter"));
  outer_->setText(Ellipsis);
  outer_->setAccessibleName(Words::tr("Outer elements"));
  connect(outer_, &QToolButton::clicked, this, &PathBar::LetChooseOuter);
}

QToolButton *PathBar::AddButton() {
  auto *button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  button->setFocusPolicy(Qt::NoFocus);
  button->installEventFilter(this);
  button->hide();
  return button;
}

void PathBar::ShowPath(const QStringList &path) {
  if (path == path_) return;
  path_ = path;
  while (static_cast<qsizetype>(buttons_.size()) < path_.size()) {
    QToolButton *button = AddButton();
    connect(button, &QToolButton::clicked, this,
            [this, button] { Q_EMIT Chosen(IndexOf(*button)); });
    buttons_.push_back(button);
  }
  for (qsizetype index = 0; index < path_.size(); ++index) {
    QToolButton &button = *buttons_[index];
    button.setText(Caption(button, path_[index]));
    button.setObjectName(QStringLiteral("path_%1").arg(index));
    button.setAccessibleName(path_[index]);
    button.setToolTip(PlainTip(path_[index]));
  }
  Place();
  const std::vector<QToolButton *> shown = InSight();
  if (shown.empty()) return;
  const bool hasKeyboard = isAncestorOf(window()->focusWidget());
  SetStop(shown.back());
  if (hasKeyboard) shown.back()->setFocus();
}

QSize PathBar::sizeHint() const {
  return {0, outer_->sizeHint().height()};
}

QSize PathBar::minimumSizeHint() const {
  return sizeHint();
}

void PathBar::Place() {
  const auto count = static_cast<int>(path_.size());
  const auto widthOf = [this](int index) { return buttons_[index]->sizeHint().width() + Gap; };
  const int outerWidth = outer_->sizeHint().width() + Gap;
  int needed = 0;
  for (int index = 0; index < count; ++index) needed += widthOf(index);
  first_ = 0;
  // The caret's element stays, however narrow.
  while (first_ < count - 1 && needed + (first_ > 0 ? outerWidth : 0) > width())
    needed -= widthOf(first_++);

  int left = Gap;
  const auto put = [&](QToolButton &button) {
    const int room = std::max(0, std::min(button.sizeHint().width(), width() - left));
    const QRect place(left, 0, room, height());
    button.setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    left += room + Gap;
  };
  outer_->setVisible(first_ > 0);
  if (first_ > 0) put(*outer_);
  for (int index = 0; index < static_cast<int>(buttons_.size()); ++index) {
    const bool isShown = index >= first_ && index < count;
    if (isShown) put(*buttons_[index]);
    buttons_[index]->setVisible(isShown);
  }
  update();
}

void PathBar::LetChooseOuter() {
  delete outerMenu_;
  auto *menu = new QMenu(this);
  outerMenu_ = menu;
  menu->setObjectName(QStringLiteral("mnuOuterElements"));
  for (int index = 0; index < first_; ++index) {
    QAction *item = menu->addAction(AsCaption(path_[index].simplified()));
    connect(item, &QAction::triggered, this, [this, index] { Q_EMIT Chosen(index); });
  }
  menu->popup(outer_->mapToGlobal(QPoint()) - QPoint(0, menu->sizeHint().height()));
}

std::vector<QToolButton *> PathBar::InSight() const {
  std::vector<QToolButton *> shown;
  if (first_ > 0) shown.push_back(outer_);
  for (int index = first_; index < static_cast<int>(path_.size()); ++index)
    shown.push_back(buttons_[index]);
  return shown;
}

int PathBar::IndexOf(const QToolButton &button) const {
  return static_cast<int>(std::find(buttons_.begin(), buttons_.end(), &button) - buttons_.begin());
}

void PathBar::SetStop(QToolButton *stop) {
  outer_->setFocusPolicy(outer_ == stop ? Qt::TabFocus : Qt::NoFocus);
  for (QToolButton *button : buttons_)
    button->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
}

bool PathBar::OnKey(QToolButton &button, int key) {
  const std::vector<QToolButton *> shown = InSight();
  const auto at = std::find(shown.begin(), shown.end(), &button);
  if (at == shown.end()) return false;
  if (isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
    key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
  QToolButton *next = nullptr;
  switch (key) {
    case Qt::Key_Left:
      next = at == shown.begin() ? *at : *(at - 1);
      break;
    case Qt::Key_Right:
      next = at + 1 == shown.end() ? *at : *(at + 1);
      break;
    case Qt::Key_Home:
      next = shown.front();
      break;
    case Qt::Key_End:
      next = shown.back();
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      button.click();
      return true;
    case Qt::Key_Escape:
      Q_EMIT Done();
      return true;
    default:
      return false;
  }
  SetStop(next);
  next->setFocus(Qt::TabFocusReason);
  return true;
}

bool PathBar::eventFilter(QObject *watched, QEvent *event) {
  auto *button = qobject_cast<QToolButton *>(watched);
  if (button != nullptr && event->type() == QEvent::KeyPress)
    return OnKey(*button, static_cast<QKeyEvent *>(event)->key());
  if (button != nullptr && button != outer_ && event->type() == QEvent::ContextMenu) {
    const auto *request = static_cast<QContextMenuEvent *>(event);
    const bool isByKey = request->reason() == QContextMenuEvent::Keyboard;
    Q_EMIT MenuWanted(IndexOf(*button),
                      isByKey ? button->mapToGlobal(QPoint()) : request->globalPos());
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void PathBar::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  Place();
}

void PathBar::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Place();
}

void PathBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setPen(QuietText(palette()));
  const std::vector<QToolButton *> shown = InSight();
  for (std::size_t index = 1; index < shown.size(); ++index) {
    const QRect before = shown[index - 1]->geometry();
    const QRect behind = shown[index]->geometry();
    const QRect gap(QPoint(std::min(before.right(), behind.right()) + 1, 0),
                    QPoint(std::max(before.left(), behind.left()) - 1, height() - 1));
    painter.drawText(gap, Qt::AlignCenter, isRightToLeft() ? QChar(0x2039) : Separator);
  }
}

}  // namespace velor
