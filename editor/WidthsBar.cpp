// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/WidthsBar.h"

#include "chrome/Palette.h"
#include "editor/PageFrame.h"
#include "editor/WidthRuler.h"
#include "platform/Words.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include <array>

namespace velor {

namespace {

/// Phones, a tablet upright and on its side, a small screen of a desk.
constexpr std::array UsualWidths{PageFrame::Full, 360, 412, 768, 1024, 1280};

}  // namespace

WidthsBar::WidthsBar(PageFrame &frame, QWidget *parent)
    : NoticeBar("picWidths", "lblWidth", Words::tr("Page Widths"), parent), frame_(frame) {
  QPushButton &add = AddButton(
      "cmdAddViewport", Words::tr("Add Viewport"),
      Words::tr("Tells phones to lay the page out at their own width. Undo takes it back"));
  connect(&add, &QPushButton::clicked, this, &WidthsBar::ViewportWanted);
  addViewport_ = &add;
  AddWidths();
  AddPhone();
  QPushButton &close = AddButton("cmdCloseWidths", Words::tr("Close"),
                                 Words::tr("Close, and show pages as wide as the window"));
  connect(&close, &QPushButton::clicked, this, &WidthsBar::CloseWanted);
  ruler_ = new WidthRuler(frame, this);
  connect(ruler_, &WidthRuler::Chosen, this, &WidthsBar::WidthChosen);
  AddBelow(*ruler_);
  connect(&frame, &PageFrame::Placed, this, &WidthsBar::ShowFrame);
}

void WidthsBar::AddWidths() {
  auto *choices = new QWidget;
  auto *row = new QHBoxLayout(choices);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(BarMargin);
  for (const int width : UsualWidths) {
    auto *button = new QToolButton;
    const bool isFull = width == PageFrame::Full;
    button->setObjectName(QStringLiteral("cmdWidth%1").arg(width));
    button->setText(isFull ? Words::tr("Full") : QString::number(width));
    button->setAccessibleName(isFull ? Words::tr("As wide as the window")
                                     : Words::tr("%n pixels wide", nullptr, width));
    button->setToolTip(button->accessibleName());
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [this, width] {
      ReturnKeyboard();
      Q_EMIT WidthChosen(width);
      // A second click on the width that is shown would switch the button off.
      ShowFrame();
    });
    widths_.push_back(button);
    row->addWidget(button);
  }
  other_ = new QSpinBox;
  other_->setObjectName(QStringLiteral("numWidth"));
  other_->setAccessibleName(Words::tr("Page width in pixels"));
  other_->setToolTip(other_->accessibleName());
  other_->setRange(PageFrame::LeastWidth, PageFrame::MostWidth);
  // "1024" is one choice, not four.
  other_->setKeyboardTracking(false);
  connect(other_, &QSpinBox::valueChanged, this, &WidthsBar::WidthChosen);
  row->addWidget(other_);
  Add(*choices);
  FoldUnder(*choices);
}

void WidthsBar::AddPhone() {
  phone_ = new QToolButton;
  phone_->setObjectName(QStringLiteral("cmdPhone"));
  phone_->setText(Words::tr("As a Phone"));
  phone_->setAccessibleName(phone_->text());
  phone_->setToolTip(
      Words::tr("Show the preview as a phone does: touch, sharpness, name of the browser"));
  phone_->setCheckable(true);
  phone_->setAutoRaise(true);
  phone_->setFocusPolicy(Qt::TabFocus);
  phone_->hide();
  connect(phone_, &QToolButton::clicked, this, [this](bool isOn) {
    ReturnKeyboard();
    Q_EMIT DeviceChosen(isOn ? Browser::Device::Phone : Browser::Device::Desktop);
  });
  Add(*phone_);
}

void WidthsBar::ShowDevice(Browser::Device device) {
  phone_->setChecked(device == Browser::Device::Phone);
  phone_->show();
}

void WidthsBar::ShowFacts(const WidthFacts &facts) {
  lacksViewport_ = facts.lacksViewport;
  ruler_->SetBreakpoints(facts.breakpoints);
  ShowFrame();
}

void WidthsBar::ShowFrame() {
  const auto chosen = frame_.ChosenWidth();
  if (!chosen || isHidden()) return;
  addViewport_->setVisible(lacksViewport_);
  Tell(lacksViewport_ ? Words::tr("Phones show this page small: it has no viewport declaration")
                      : Words::tr("%n pixels wide", nullptr, frame_.ShownWidth()));
  for (std::size_t at = 0; at < widths_.size(); ++at)
    widths_[at]->setChecked(UsualWidths.at(at) == *chosen);
  const QSignalBlocker silent(other_);
  other_->setValue(frame_.ShownWidth());
}

void WidthsBar::TakeKeyboard() {
  for (QToolButton *button : widths_)
    if (button->isChecked()) return button->setFocus(Qt::ShortcutFocusReason);
  other_->setFocus(Qt::ShortcutFocusReason);
}

void WidthsBar::ReturnKeyboard() {
  if (isAncestorOf(QApplication::focusWidget())) parentWidget()->setFocus(Qt::OtherFocusReason);
}

void WidthsBar::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget()))
        button->click();
      [[fallthrough]];
    case Qt::Key_Escape:
      return ReturnKeyboard();
    default:
      NoticeBar::keyPressEvent(event);
  }
}

}  // namespace velor
