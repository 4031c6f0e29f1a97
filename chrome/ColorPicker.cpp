// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ColorPicker.h"

#include "chrome/ColorPalette.h"
#include "chrome/ColorValue.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"

#include <QColorDialog>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace velor {
namespace {

constexpr int BarHeight = 4;
constexpr int ArrowWidth = 12;

}  // namespace

ColorPicker::ColorPicker(const QString &iconKey, QWidget *parent)
    : QToolButton(parent), iconKey_(iconKey), panel_(new ColorPalette(this)) {
  setIcon(IconFor(iconKey));
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QToolButton::clicked, this,
          [this] { panel_->DropDownFrom(*this, FromColorValue(color_)); });
  connect(panel_, &ColorPalette::Chosen, this, &ColorPicker::Choose);
  connect(panel_, &ColorPalette::CustomWanted, this, &ColorPicker::AskForCustom);
}

void ColorPicker::SetColor(std::int32_t color) {
  color_ = color;
  update();
}

void ColorPicker::Choose(const QColor &color) {
  std::erase(recent_, color);
  recent_.insert(recent_.begin(), color);
  if (recent_.size() > RecentColors) recent_.pop_back();
  panel_->SetRecent(recent_);
  SetColor(ToColorValue(color));
  Q_EMIT ColorChosen(color_);
}

void ColorPicker::AskForCustom() {
  auto *dialog = new QColorDialog(FromColorValue(color_), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(accessibleName());
  connect(dialog, &QColorDialog::colorSelected, this, &ColorPicker::Choose);
  dialog->open();
}

QSize ColorPicker::sizeHint() const {
  return {ToolIconSize + 2 * BarMargin + ArrowWidth, ToolIconSize + 2 * BarMargin};
}

void ColorPicker::paintEvent(QPaintEvent *) {
  QStylePainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  painter.drawPrimitive(QStyle::PE_PanelButtonTool, option);
  const QRect place(BarMargin, (height() - ToolIconSize) / 2, ToolIconSize, ToolIconSize);
  icon().paint(&painter, place.adjusted(1, 0, -1, -2), Qt::AlignCenter,
               isEnabled() ? QIcon::Normal : QIcon::Disabled);
  const QColor shown = FromColorValue(color_);
  const QRectF bar(place.left(), place.bottom() - BarHeight + 2, place.width(), BarHeight);
  painter.setPen(Contrast(shown, palette().color(QPalette::Window)) < 1.5 ? QPen(BoxEdge(palette()))
                                                                          : QPen(shown));
  painter.setBrush(shown);
  painter.drawRoundedRect(bar.adjusted(0.5, 0.5, -0.5, -0.5), 1.5, 1.5);
  const QPointF tip(width() - BarMargin - 3.5, height() / 2.0 + 1.5);
  painter.setPen(QPen(QuietText(palette()), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF{{tip + QPointF(-3, -3), tip, tip + QPointF(3, -3)}});
}

}  // namespace velor
