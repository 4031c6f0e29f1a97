// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/WidthRuler.h"

#include "chrome/Palette.h"
#include "editor/PageFrame.h"
#include "platform/Words.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cstdlib>

namespace velor {

namespace {

constexpr int Padding = 4;
/// Pixels beside a tick that still count as on it.
constexpr int Nearby = 6;

QString Number(int width) {
  return QString::number(width);
}

}  // namespace

WidthRuler::WidthRuler(PageFrame &frame, QWidget *parent) : QWidget(parent), frame_(frame) {
  setObjectName(QStringLiteral("picRuler"));
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  connect(&frame, &PageFrame::Placed, this, qOverload<>(&QWidget::update));
  hide();
}

void WidthRuler::SetBreakpoints(const QList<int> &widths) {
  breakpoints_ = widths;
  QStringList numbers;
  for (const int width : widths) numbers << Number(width);
  setAccessibleName(
      Words::tr("Widths at which the page changes: %1").arg(numbers.join(QStringLiteral(", "))));
  setVisible(!widths.isEmpty());
  update();
}

QSize WidthRuler::sizeHint() const {
  return {0, fontMetrics().height() + Padding};
}

int WidthRuler::Reach(int width) const {
  return qRound(width * frame_.Zoom() / 2);
}

int WidthRuler::At(int x) const {
  const int place = x - frame_.Middle();
  int found = 0;
  for (const int width : breakpoints_) {
    const int beyond = std::abs(place) - Reach(width);
    const int number = place > 0 ? Padding + fontMetrics().horizontalAdvance(Number(width)) : 0;
    if (beyond >= -Nearby && beyond <= std::max(Nearby, number)) found = width;
  }
  return found;
}

bool WidthRuler::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto &help = *static_cast<QHelpEvent *>(event);
  const int width = At(help.pos().x());
  QToolTip::showText(help.globalPos(),
                     width == 0 ? QString() : Words::tr("Show at %n pixels", nullptr, width), this);
  return true;
}

void WidthRuler::keyPressEvent(QKeyEvent *event) {
  const int shown = frame_.ShownWidth();
  if (event->key() == Qt::Key_Right) {
    const auto next = std::upper_bound(breakpoints_.begin(), breakpoints_.end(), shown);
    if (next != breakpoints_.end()) Q_EMIT Chosen(*next);
  } else if (event->key() == Qt::Key_Left) {
    const auto here = std::lower_bound(breakpoints_.begin(), breakpoints_.end(), shown);
    if (here != breakpoints_.begin()) Q_EMIT Chosen(*std::prev(here));
  } else {
    QWidget::keyPressEvent(event);
  }
}

void WidthRuler::mouseMoveEvent(QMouseEvent *event) {
  setCursor(At(event->pos().x()) == 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

void WidthRuler::mousePressEvent(QMouseEvent *event) {
  const int width = At(event->pos().x());
  if (event->button() == Qt::LeftButton && width != 0) Q_EMIT Chosen(width);
}

void WidthRuler::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  const int middle = frame_.Middle();
  const int page = Reach(frame_.ShownWidth());
  painter.fillRect(QRect(middle - page, 0, 2 * page, height()), palette().base());
  const QColor tick = palette().color(QPalette::Highlight);
  // From the right, so that no number runs into the next tick.
  int room = width();
  for (auto width = breakpoints_.rbegin(); width != breakpoints_.rend(); ++width) {
    const int reach = Reach(*width);
    for (const int x : {middle - reach, middle + reach})
      painter.fillRect(x - 1, 0, 2, height(), tick);
    const int left = middle + reach + Padding;
    const bool fits = left + fontMetrics().horizontalAdvance(Number(*width)) < room;
    if (middle + reach < room) room = middle + reach;
    if (!fits) continue;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QPoint(left, Padding / 2 + fontMetrics().ascent()), Number(*width));
  }
  if (!hasFocus()) return;
  painter.setPen(tick);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace velor
