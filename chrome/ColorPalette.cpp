// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ColorPalette.h"

#include "chrome/Palette.h"
#include "platform/Words.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace velor {
namespace {

constexpr int FieldSize = 24;

/// A square of one colour with its name as tooltip.
class ColorField final : public QToolButton {
 public:
  ColorField(const QString &name, const QColor &color, QWidget *parent)
      : QToolButton(parent), color_(color) {
    setFixedSize(FieldSize, FieldSize);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(name);
    setAccessibleName(name);
  }

  QColor Color() const { return color_; }

 protected:
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool marked = hasFocus() || underMouse();
    const QRectF square = QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5);
    painter.setPen(Contrast(color_, palette().color(QPalette::Base)) < 1.5 ? BoxEdge(palette())
                                                                           : color_.darker(115));
    painter.setBrush(color_);
    painter.drawRoundedRect(square, 3, 3);
    if (!marked) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Rounding, Rounding);
  }

 private:
  QColor color_;
};

}  // namespace

const std::vector<NamedColor> &PaletteColors() {
  static const std::vector<NamedColor> colors = {
      {Words::Mark("Black"), 0x000000},
      {Words::Mark("Brown"), 0x993300},
      {Words::Mark("Olive green"), 0x333300},
      {Words::Mark("Dark green"), 0x003300},
      {Words::Mark("Dark teal"), 0x003366},
      {Words::Mark("Dark blue"), 0x000080},
      {Words::Mark("Indigo"), 0x333399},
      {Words::Mark("Grey 80%"), 0x333333},
      {Words::Mark("Dark red"), 0x800000},
      {Words::Mark("Orange"), 0xFF6600},
      {Words::Mark("Dark yellow"), 0x808000},
      {Words::Mark("Green"), 0x008000},
      {Words::Mark("Teal"), 0x008080},
      {Words::Mark("Blue"), 0x0000FF},
      {Words::Mark("Blue grey"), 0x666699},
      {Words::Mark("Grey 50%"), 0x808080},
      {Words::Mark("Red"), 0xFF0000},
      {Words::Mark("Light orange"), 0xFF9900},
      {Words::Mark("Lime"), 0x99CC00},
      {Words::Mark("Sea green"), 0x339966},
      {Words::Mark("Aqua"), 0x33CCCC},
      {Words::Mark("Light blue"), 0x3366FF},
      {Words::Mark("Violet"), 0x800080},
      {Words::Mark("Grey 40%"), 0x969696},
      {Words::Mark("Pink"), 0xFF00FF},
      {Words::Mark("Gold"), 0xFFCC00},
      {Words::Mark("Yellow"), 0xFFFF00},
      {Words::Mark("Bright green"), 0x00FF00},
      {Words::Mark("Turquoise"), 0x00FFFF},
      {Words::Mark("Sky blue"), 0x00CCFF},
      {Words::Mark("Plum"), 0x993366},
      {Words::Mark("Grey 25%"), 0xC0C0C0},
      {Words::Mark("Rose"), 0xFF99CC},
      {Words::Mark("Tan"), 0xFFCC99},
      {Words::Mark("Light yellow"), 0xFFFF99},
      {Words::Mark("Light green"), 0xCCFFCC},
      {Words::Mark("Light turquoise"), 0xCCFFFF},
      {Words::Mark("Pale blue"), 0x99CCFF},
      {Words::Mark("Lavender"), 0xCC99FF},
      {Words::Mark("White"), 0xFFFFFF},
  };
  return colors;
}

ColorPalette::ColorPalette(QWidget *parent) : QFrame(parent, Qt::Popup) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(10, 10, 10, 8);
  column->setSpacing(6);

  auto *grid = new QGridLayout;
  grid->setSpacing(2);
  for (const NamedColor &color : PaletteColors()) {
    const int index = static_cast<int>(fields_.size());
    fields_.push_back(AddField(grid, index, Words::tr(color.name), QColor(color.rgb)));
  }
  column->addLayout(grid);

  recentArea_ = new QWidget(this);
  auto *recentColumn = new QVBoxLayout(recentArea_);
  recentColumn->setContentsMargins(0, 0, 0, 0);
  recentColumn->setSpacing(2);
  recentColumn->addWidget(new QLabel(tr("Recent"), recentArea_));
  recentGrid_ = new QGridLayout;
  recentGrid_->setSpacing(2);
  recentGrid_->setColumnStretch(Columns, 1);
  recentColumn->addLayout(recentGrid_);
  recentArea_->hide();
  column->addWidget(recentArea_);

  custom_ = new QToolButton(this);
  custom_->setObjectName(QStringLiteral("custom"));
  custom_->setText(tr("Custom..."));
  custom_->setAutoRaise(true);
  custom_->setFocusPolicy(Qt::StrongFocus);
  custom_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  custom_->setMinimumHeight(BoxHeight);
  connect(custom_, &QToolButton::clicked, this, [this] {
    hide();
    Q_EMIT CustomWanted();
  });
  column->addWidget(custom_);
}

QToolButton *ColorPalette::AddField(QGridLayout *grid, int index, const QString &name,
                                    const QColor &color) {
  auto *field = new ColorField(name, color, this);
  grid->addWidget(field, index / Columns, index % Columns);
  connect(field, &QToolButton::clicked, this, [this, color] {
    hide();
    Q_EMIT Chosen(color);
  });
  return field;
}

void ColorPalette::SetRecent(const std::vector<QColor> &colors) {
  while (fields_.size() > PaletteColors().size()) {
    fields_.back()->deleteLater();
    fields_.pop_back();
  }
  for (std::size_t i = 0; i < colors.size(); ++i) {
    fields_.push_back(
        AddField(recentGrid_, static_cast<int>(i), colors[i].name().toUpper(), colors[i]));
  }
  recentArea_->setVisible(!colors.empty());
}

QPoint ColorPalette::PlaceBelow(const QWidget &anchor) const {
  const QRect screen = anchor.screen()->availableGeometry();
  QPoint place = anchor.mapToGlobal(QPoint(0, anchor.height() + 2));
  if (place.y() + height() > screen.bottom()) {
    place.setY(anchor.mapToGlobal(QPoint(0, -height() - 2)).y());
  }
  place.setX(
      std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - width())));
  return place;
}

void ColorPalette::DropDownFrom(const QWidget &anchor, const QColor &current) {
  adjustSize();
  move(PlaceBelow(anchor));
  show();
  // The first showing gives its parts their style, and with it their size.
  move(PlaceBelow(anchor));
  const auto field = std::find_if(fields_.begin(), fields_.end(), [&](const QToolButton *button) {
    return static_cast<const ColorField *>(button)->Color() == current;
  });
  (field == fields_.end() ? fields_.front() : *field)->setFocus(Qt::PopupFocusReason);
}

void ColorPalette::keyPressEvent(QKeyEvent *event) {
  const auto at = std::find(fields_.begin(), fields_.end(), focusWidget());
  const auto count = static_cast<int>(fields_.size());
  // "Custom..." comes after the last row.
  int place = at == fields_.end() ? count : static_cast<int>(at - fields_.begin());
  switch (event->key()) {
    case Qt::Key_Left:
      --place;
      break;
    case Qt::Key_Right:
      ++place;
      break;
    case Qt::Key_Up:
      place = place == count ? count - 1 : place - Columns;
      break;
    case Qt::Key_Down:
      place += Columns;
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto *button = qobject_cast<QToolButton *>(focusWidget())) button->click();
      return;
    default:
      QFrame::keyPressEvent(event);
      return;
  }
  place = std::clamp(place, 0, count);
  QWidget *next = place == count ? custom_ : fields_[static_cast<std::size_t>(place)];
  next->setFocus(Qt::OtherFocusReason);
}

}  // namespace velor
