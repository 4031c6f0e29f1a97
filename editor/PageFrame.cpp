// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageFrame.h"

#include "chrome/Palette.h"
#include "platform/Words.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velor {

namespace {

constexpr int GripWidth = 10;
constexpr int GripMark = 28;
/// Between the caret and the frame's edge.
constexpr int CaretMargin = 40;
/// The engine's own limits.
constexpr double LeastZoom = 0.25;
constexpr double MostZoom = 5;

/// The least number of device-independent pixels that are whole pixels of the screen.
int WholePixels(double devicePixelRatio) {
  constexpr int Most = 20;
  for (int count = 1; count < Most; ++count) {
    const double pixels = count * devicePixelRatio;
    if (std::abs(pixels - std::round(pixels)) < 1e-6) return count;
  }
  return 1;
}

/// Two lines that ask to be dragged.
class Grip final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    painter.setPen(QuietText(palette()));
    const QPoint middle = rect().center();
    for (const int side : {-1, 2})
      painter.drawLine(middle.x() + side, middle.y() - GripMark / 2, middle.x() + side,
                       middle.y() + GripMark / 2);
  }
};

}  // namespace

PageFit FitPage(int width, double zoom, double devicePixelRatio) {
  const int step = WholePixels(devicePixelRatio);
  int pixels = qRound(width * zoom / step) * step;
  if (pixels < width * LeastZoom) pixels += step;
  if (pixels > width * MostZoom) pixels -= step;
  return {pixels, double(pixels) / width};
}

PageFrame::PageFrame(QWidget &view, std::function<void(double)> applyZoom, QWidget *parent)
    : QScrollArea(parent),
      view_(view),
      strip_(new QWidget),
      grip_(new Grip(strip_)),
      applyZoom_(std::move(applyZoom)) {
  setObjectName(QStringLiteral("picPage"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setAlignment(Qt::AlignHCenter);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view_.setParent(strip_);
  // As if the view stood here itself: a frame that is hidden would pass the keyboard on as Tab
  // does.
  setFocusProxy(&view_);
  grip_->setObjectName(QStringLiteral("picWidthGrip"));
  grip_->setAccessibleName(Words::tr("Drag to change the page's width"));
  grip_->setToolTip(grip_->accessibleName());
  grip_->setCursor(Qt::SizeHorCursor);
  grip_->installEventFilter(this);
  grip_->hide();
  setWidget(strip_);
  strip_->setAutoFillBackground(false);
}

void PageFrame::ShowAt(std::optional<int> width) {
  if (width && *width != Full) width = std::clamp(*width, LeastWidth, MostWidth);
  if (width == width_) return;
  width_ = width;
  Place();
}

int PageFrame::ShownWidth() const {
  return qRound(view_.width() / appliedZoom_);
}

int PageFrame::Middle() const {
  return view_.mapTo(this, QPoint(view_.width() / 2, 0)).x();
}

void PageFrame::SetZoom(double factor) {
  zoom_ = factor;
  Place();
}

void PageFrame::Place() {
  const QSize room = viewport()->size();
  const int edge = width_ ? GripWidth : 0;
  PageFit fit{room.width() - 2 * edge, zoom_};
  if (width_ && *width_ != Full) fit = FitPage(*width_, zoom_, devicePixelRatioF());
  if (appliedZoom_ != fit.zoom) {
    appliedZoom_ = fit.zoom;
    applyZoom_(fit.zoom);
  }
  strip_->resize(fit.pixels + 2 * edge, room.height());
  view_.setGeometry(edge, 0, fit.pixels, room.height());
  grip_->setGeometry(edge + fit.pixels, 0, edge, room.height());
  grip_->setVisible(width_.has_value());
  Q_EMIT Placed();
}

void PageFrame::ShowCaret() {
  const QWidget *input = QApplication::focusWidget();
  if (strip_->width() <= viewport()->width() || input == nullptr || !view_.isAncestorOf(input))
    return;
  const QRect caret = input->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const QPoint place = input->mapTo(strip_, caret.center());
  ensureVisible(place.x(), 0, CaretMargin, 0);
}

QSize PageFrame::sizeHint() const {
  return view_.sizeHint();
}

QSize PageFrame::minimumSizeHint() const {
  return view_.minimumSizeHint();
}

bool PageFrame::eventFilter(QObject *watched, QEvent *event) {
  if (watched == grip_) DragGrip(*event);
  return QScrollArea::eventFilter(watched, event);
}

void PageFrame::DragGrip(QEvent &event) {
  if (event.type() == QEvent::MouseButtonRelease) {
    if (ShownWidth() != widthBefore_) Q_EMIT Dropped();
    return;
  }
  if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseMove) return;
  const auto &mouse = static_cast<QMouseEvent &>(event);
  if (!mouse.buttons().testFlag(Qt::LeftButton)) return;
  const int place = qRound(mouse.globalPosition().x());
  if (event.type() == QEvent::MouseButtonPress) {
    dragStart_ = place;
    widthBefore_ = ShownWidth();
    return;
  }
  // The page stands in the middle, so that its edge moves by half of what it grows.
  const int width = widthBefore_ + qRound(2 * (place - dragStart_) / zoom_);
  Q_EMIT Dragged(std::clamp(width, LeastWidth, MostWidth));
}

void PageFrame::paintEvent(QPaintEvent *) {
  QPainter(viewport()).fillRect(viewport()->rect(), Backdrop(palette()));
}

void PageFrame::resizeEvent(QResizeEvent *event) {
  QScrollArea::resizeEvent(event);
  Place();
}

void PageFrame::scrollContentsBy(int dx, int dy) {
  QScrollArea::scrollContentsBy(dx, dy);
  Q_EMIT Placed();
}

}  // namespace velor
