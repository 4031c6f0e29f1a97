// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PictureTextBox.h"

#include "chrome/Palette.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace velor {

namespace {

constexpr int TextBoxWidth = 200;
constexpr int Gap = 4;  ///< between the picture and the box

}  // namespace

QRect PlaceBeside(const QRect &picture, QSize box, const QRect &view) {
  if (!picture.intersects(view)) return {};
  const std::array places = {QPoint(picture.left(), picture.bottom() + 1 + Gap),
                             QPoint(picture.left(), picture.top() - Gap - box.height()),
                             QPoint(picture.right() + 1 + Gap, picture.top())};
  const auto within = [&](QPoint place) {
    return QPoint(
        std::clamp(place.x(), view.left(), std::max(view.left(), view.right() + 1 - box.width())),
        std::clamp(place.y(), view.top(), std::max(view.top(), view.bottom() + 1 - box.height())));
  };
  for (const QPoint place : places) {
    const QRect tried(within(place), box);
    if (!tried.intersects(picture)) return tried;
  }
  return {within(places.front()), box};
}

PictureTextBox::PictureTextBox(QWidget &view)
    : NoticeBar("picPictureText", "lblPictureText", Words::tr("Alternative Text"), &view) {
  text_ = new QLineEdit;
  text_->setObjectName(QStringLiteral("txtPictureAlt"));
  text_->setAccessibleName(Words::tr("Alternative Text"));
  text_->setPlaceholderText(Words::tr("What does it show?"));
  text_->setToolTip(Words::tr("Alternative text: what is read where the picture is not seen"));
  text_->setMinimumWidth(TextBoxWidth);
  connect(text_, &QLineEdit::editingFinished, this, &PictureTextBox::GiveText);
  Add(*text_);
  decorative_ = new QCheckBox(Words::tr("Decorative"));
  decorative_->setObjectName(QStringLiteral("chkPictureDecorative"));
  decorative_->setToolTip(Words::tr("It says nothing: its alternative text is empty"));
  decorative_->setFocusPolicy(Qt::TabFocus);
  connect(decorative_, &QCheckBox::toggled, text_, &QWidget::setDisabled);
  connect(decorative_, &QCheckBox::toggled, this, &PictureTextBox::GiveText);
  Add(*decorative_);
}

void PictureTextBox::Begin() {
  const QSignalBlocker quietText(text_);
  const QSignalBlocker quietBox(decorative_);
  text_->clear();
  text_->setEnabled(true);
  decorative_->setChecked(false);
  given_ = QString();
  isAsking_ = true;
}

void PictureTextBox::End() {
  isAsking_ = false;
  hide();
}

void PictureTextBox::PlaceAt(const QRect &picture) {
  const QRect place =
      isAsking_ ? PlaceBeside(picture, sizeHint(), parentWidget()->rect()) : QRect();
  if (!place.isEmpty()) setGeometry(place);
  if (place.isEmpty() == isHidden()) return;
  setVisible(!place.isEmpty());
  raise();
}

void PictureTextBox::GiveText() {
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

void PictureTextBox::keyPressEvent(QKeyEvent *event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter && event->key() != Qt::Key_Escape) return;
  End();
  Q_EMIT Left();
}

void PictureTextBox::paintEvent(QPaintEvent *event) {
  NoticeBar::paintEvent(event);
  QPainter painter(this);
  painter.setPen(BoxEdge(palette()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace velor
