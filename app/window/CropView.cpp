// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CropView.h"

#include "chrome/Palette.h"
#include "pictures/CropRules.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace velor {

namespace {

constexpr QSize UsualSize{480, 340};
constexpr int Margin = 8;  ///< around the picture, so that handles at its edges are whole
constexpr int HandleSize = 9;
constexpr int Reach = 8;      ///< of the mouse to an edge
constexpr int WideStep = 10;  ///< of the arrow keys with Ctrl
const QColor OutsideShade(0, 0, 0, 140);

Qt::CursorShape CursorOf(int edges) {
  switch (edges) {
    case 0:
      return Qt::ArrowCursor;
    case LeftEdge:
    case RightEdge:
      return Qt::SizeHorCursor;
    case TopEdge:
    case BottomEdge:
      return Qt::SizeVerCursor;
    case LeftEdge | TopEdge:
    case RightEdge | BottomEdge:
      return Qt::SizeFDiagCursor;
    case AllEdges:
      return Qt::SizeAllCursor;
    default:
      return Qt::SizeBDiagCursor;
  }
}

/// The way that an arrow key goes; null for another key.
QPoint WayOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

}  // namespace

CropView::CropView(QWidget *parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize CropView::sizeHint() const {
  return UsualSize;
}

void CropView::ShowPicture(const QImage &picture, const QRect &part) {
  picture_ = picture;
  drawn_ = {};
  ShowPart(part);
}

void CropView::ShowPart(const QRect &part) {
  part_ = part;
  update();
}

QRect CropView::Field() const {
  const QSize room = size() - 2 * QSize(Margin, Margin);
  // Small pictures are not blown up more than is of use.
  constexpr int Largest = 8;
  const QSize fitting = picture_.size().scaled(room, Qt::KeepAspectRatio);
  QRect field({}, fitting.boundedTo(picture_.size() * Largest).expandedTo({1, 1}));
  field.moveCenter(rect().center());
  return field;
}

QRect CropView::PartInField() const {
  const QRect field = Field();
  const double scale = double(field.width()) / picture_.width();
  const auto placed = [&](int pixels) { return static_cast<int>(pixels * scale); };
  return {field.topLeft() + QPoint(placed(part_.x()), placed(part_.y())),
          QSize(placed(part_.width()), placed(part_.height())).expandedTo({1, 1})};
}

QPoint CropView::InPicture(QPoint point) const {
  const QRect field = Field();
  return (point - field.topLeft()) * (double(picture_.width()) / field.width());
}

int CropView::EdgesUnder(QPoint point) const {
  return EdgesAt(PartInField(), point, Reach);
}

void CropView::paintEvent(QPaintEvent *) {
  if (picture_.isNull()) return;
  const QRect field = Field();
  const QSize pixels = field.size() * devicePixelRatioF();
  if (drawn_.size() != pixels) {
    drawn_ = QPixmap::fromImage(
        picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    drawn_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter painter(this);
  painter.fillRect(rect(), Backdrop(palette()));
  painter.drawPixmap(field, drawn_);
  const QRect part = PartInField();
  for (const QRect &outside : QRegion(field).subtracted(part))
    painter.fillRect(outside, OutsideShade);
  const QColor strong = palette().color(QPalette::Highlight);
  painter.setPen(QPen(strong, hasFocus() ? 2 : 1));
  painter.drawRect(part);
  painter.setPen(QPen(palette().color(QPalette::HighlightedText), 1));
  painter.setBrush(strong);
  const QPoint middle = part.center();
  for (const int x : {part.left(), middle.x(), part.right()}) {
    for (const int y : {part.top(), middle.y(), part.bottom()}) {
      if (QPoint(x, y) == middle) continue;
      QRect handle({}, QSize(HandleSize, HandleSize));
      handle.moveCenter({x, y});
      painter.drawRect(handle);
    }
  }
}

void CropView::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  drawn_ = {};
}

void CropView::mousePressEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return;
  edges_ = EdgesUnder(event->position().toPoint());
  grip_ = InPicture(event->position().toPoint());
  partAtGrip_ = part_;
}

void CropView::mouseMoveEvent(QMouseEvent *event) {
  const QPoint at = event->position().toPoint();
  if ((event->buttons() & Qt::LeftButton) == 0) return setCursor(CursorOf(EdgesUnder(at)));
  Drag(partAtGrip_, edges_, InPicture(at) - grip_);
}

void CropView::mouseReleaseEvent(QMouseEvent *) {
  edges_ = 0;
}

void CropView::keyPressEvent(QKeyEvent *event) {
  const QPoint way = WayOf(event->key());
  if (way.isNull()) return QWidget::keyPressEvent(event);
  const QPoint by = way * ((event->modifiers() & Qt::ControlModifier) != 0 ? WideStep : 1);
  if ((event->modifiers() & Qt::ShiftModifier) == 0) return Drag(part_, AllEdges, by);
  Drag(part_, by.x() != 0 ? RightEdge : BottomEdge, by);
}

void CropView::Drag(const QRect &from, int edges, QPoint by) {
  const QRect part = DraggedPart(picture_.size(), from, edges, by, ratio_);
  if (part == part_) return;
  ShowPart(part);
  Q_EMIT PartChosen(part);
}

}  // namespace velor
