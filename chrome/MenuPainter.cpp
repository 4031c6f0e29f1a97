// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/MenuPainter.h"

#include "chrome/ColorValue.h"
#include "chrome/Palette.h"
#include "chrome/WidgetControl.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>
#include <optional>

namespace velor {
namespace {

// Measures of a menu, in device-independent pixels.
constexpr int EdgeSpace = 4;
constexpr int ItemSpace = 8;
constexpr int IconColumn = ItemSpace + MenuIconSize + ItemSpace;
constexpr int ArrowColumn = 20;
constexpr int ItemHeight = 28;
constexpr int SeparatorHeight = 9;
/// Opacity of the background picture on a dark palette.
constexpr qreal DarkTint = 0.10;

/// The picture's average colour on a white background.
QColor Average(const QPixmap &picture) {
  QImage paper(picture.size(), QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  painter.drawPixmap(0, 0, picture);
  painter.end();
  return paper.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

QPixmap Tinted(const QPixmap &picture, const QColor &field) {
  QPixmap result(picture.size());
  result.setDevicePixelRatio(picture.devicePixelRatio());
  result.fill(field);
  QPainter painter(&result);
  painter.setOpacity(DarkTint);
  painter.drawPixmap(0, 0, picture);
  return result;
}

/// A place in an item, given for a menu from left to right.
QRect PlaceIn(const QStyleOptionMenuItem *item, const QRect &place) {
  return QStyle::visualRect(item->direction, item->rect, place);
}

/// The square of an item's picture or tick.
QRect PlaceOfMark(const QStyleOptionMenuItem *item) {
  return PlaceIn(
      item, QRect(item->rect.left() + ItemSpace, item->rect.center().y() - MenuIconSize / 2 + 1,
                  MenuIconSize, MenuIconSize));
}

void DrawShortcutAndText(QPainter *painter, const QStyleOptionMenuItem *item, const QColor &color,
                         const QStyle *style) {
  painter->setPen(color);
  painter->setFont(item->font);
  const QRect line = PlaceIn(item, item->rect.adjusted(IconColumn, 0, -ArrowColumn, 0));
  const qsizetype tab = item->text.indexOf(u'\t');
  int flags = Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
  if (!style->styleHint(QStyle::SH_UnderlineShortcut, item)) flags |= Qt::TextHideMnemonic;
  // The painter takes left for the side where lines begin.
  painter->drawText(line, flags | Qt::AlignLeft, item->text.left(tab));
  if (tab >= 0) {
    painter->setOpacity(0.75);
    painter->drawText(line, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
                      item->text.mid(tab + 1));
    painter->setOpacity(1);
  }
}

/// The picture beside an item. It is drawn in the text's colour where its own, chosen for the
/// palette, has too little contrast to the menu's background or highlight.
void DrawIcon(QPainter *painter, const QIcon &icon, const QRect &place, QIcon::Mode mode,
              const QColor &text, const QPalette &palette) {
  QPixmap picture = icon.pixmap(place.size(), painter->device()->devicePixelRatio(), mode);
  constexpr double OtherSide = 3;
  if (Contrast(palette.color(QPalette::ButtonText), text) > OtherSide) {
    QPainter tint(&picture);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(picture.rect(), text);
  }
  painter->drawPixmap(place, picture);
}

/// The arrow of an item that opens another menu; it points to where that comes up.
void DrawArrow(QPainter *painter, const QStyleOptionMenuItem *item, const QColor &color) {
  const bool isMirrored = item->direction == Qt::RightToLeft;
  const QPointF middle(
      isMirrored ? item->rect.left() + ArrowColumn / 2.0 : item->rect.right() - ArrowColumn / 2.0,
      item->rect.center().y() + 0.5);
  const int tip = isMirrored ? -2 : 2;
  painter->setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(
      QPolygonF{{middle + QPointF(-tip, -4), middle + QPointF(tip, 0), middle + QPointF(-tip, 4)}});
}

void DrawCheck(QPainter *painter, const QStyleOptionMenuItem *item, const QColor &color) {
  const QPointF middle(PlaceOfMark(item).left() + MenuIconSize / 2.0,
                       item->rect.center().y() + 0.5);
  painter->setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(
      QPolygonF{{middle + QPointF(-4, 0), middle + QPointF(-1, 3), middle + QPointF(5, -4)}});
}

/// Whether a menu belongs to the window or to something in it, a menu being a window of its own.
bool IsWithin(const QMenu &menu, const QWidget &window) {
  for (const QWidget *at = menu.parentWidget(); at != nullptr; at = at->parentWidget())
    if (at == &window) return true;
  return false;
}

}  // namespace

MenuLook LegibleLook(const MenuLook &look, const QPalette &palette) {
  MenuLook shown = look;
  QColor field = palette.color(QPalette::Base);
  const bool high = IsHighContrast(palette);
  const double legible = high ? HighLegibleContrast : LegibleContrast;
  if (high) shown.background = QPixmap();
  if (!shown.background.isNull()) {
    if (ShadeOf(palette) == Shade::Dark) shown.background = Tinted(shown.background, field);
    field = Average(shown.background);
  }
  if (Contrast(shown.text, field) < legible) {
    const QColor own = palette.color(QPalette::Text);
    const QColor paper = palette.color(QPalette::Base);
    shown.text = Contrast(own, field) >= Contrast(paper, field) ? own : paper;
  }
  if (Contrast(shown.highlightText, shown.highlight) < legible) {
    shown.highlight = palette.color(QPalette::Highlight);
    shown.highlightText = palette.color(QPalette::HighlightedText);
  }
  if (high) {
    shown.border = palette.color(QPalette::WindowText);
  } else if (ShadeOf(palette) == Shade::Dark && Contrast(shown.border, field) < 1.5) {
    shown.border = palette.color(QPalette::Light);
  }
  return shown;
}

void MenuPictureSweep(QWidget &window, const ImageList &images, MenuPainter &painter) {
  painter.SetImageList(images);
  painter.PaintMenusOf(window);
  for (const QAction *item : MenuItemsOf(window)) {
    const QString key = item->objectName().toLower();
    if (images.contains(key)) painter.SetItemPicture(item->objectName(), key);
  }
}

/// Draws the menus that it is set on, in the look that it holds.
class StyleMenuPainter::Style final : public QProxyStyle {
 public:
  const MenuLook &Look() const { return look_; }

  /// The look, for changes.
  MenuLook &ChangeLook() {
    shownFor_.reset();
    return look_;
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override {
    if (element == PE_PanelMenu) {
      const MenuLook &shown = Shown(option->palette);
      painter->fillRect(option->rect, option->palette.base());
      if (!shown.background.isNull()) painter->drawPixmap(option->rect, shown.background);
      return;
    }
    if (element == PE_FrameMenu) {
      painter->setPen(Shown(option->palette).border);
      painter->setBrush(Qt::NoBrush);
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
      return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override {
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element == CE_MenuEmptyArea) return;
    if (element == CE_MenuItem && item) {
      painter->save();
      painter->setRenderHint(QPainter::Antialiasing);
      DrawItem(item, painter);
      painter->restore();
      return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption *option,
                  const QWidget *widget) const override {
    switch (metric) {
      case PM_MenuPanelWidth:
        return 1;
      case PM_MenuHMargin:
      case PM_MenuVMargin:
        return EdgeSpace - 1;
      case PM_SmallIconSize:
        return MenuIconSize;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                         const QWidget *widget) const override {
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (type != CT_MenuItem || !item) {
      return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    if (item->menuItemType == QStyleOptionMenuItem::Separator) return {ItemSpace, SeparatorHeight};
    const QFontMetrics metrics(item->font);
    const qsizetype tab = item->text.indexOf(u'\t');
    int width =
        IconColumn + ArrowColumn +
        metrics.size(Qt::TextShowMnemonic | Qt::TextSingleLine, item->text.left(tab)).width();
    // QMenu itself adds the width of the widest shortcut.
    if (tab >= 0) width += 3 * ItemSpace;
    return {width, std::max(ItemHeight, metrics.height() + ItemSpace)};
  }

 private:
  /// LegibleLook on that palette, computed once.
  const MenuLook &Shown(const QPalette &palette) const {
    if (shownFor_ != palette.cacheKey()) {
      shown_ = LegibleLook(look_, palette);
      shownFor_ = palette.cacheKey();
    }
    return shown_;
  }

  void DrawItem(const QStyleOptionMenuItem *item, QPainter *painter) const {
    const MenuLook &shown = Shown(item->palette);
    if (item->menuItemType == QStyleOptionMenuItem::Separator) {
      QColor line = shown.text;
      line.setAlphaF(0.18F);
      painter->fillRect(PlaceIn(item, QRect(item->rect.left() + IconColumn, item->rect.center().y(),
                                            item->rect.width() - IconColumn - ItemSpace, 1)),
                        line);
      return;
    }
    const bool enabled = item->state & State_Enabled;
    const bool selected = enabled && (item->state & State_Selected);
    if (selected) {
      painter->setPen(Qt::NoPen);
      painter->setBrush(shown.highlight);
      painter->drawRoundedRect(item->rect, Rounding, Rounding);
    }
    QColor text = selected ? shown.highlightText : shown.text;
    if (!enabled) text.setAlphaF(0.45F);
    if (!item->icon.isNull()) {
      const QRect place = PlaceOfMark(item);
      if (item->checked) DrawMark(painter, place, text);
      DrawIcon(painter, item->icon, place, enabled ? QIcon::Normal : QIcon::Disabled, text,
               item->palette);
    } else if (item->checked) {
      DrawCheck(painter, item, text);
    }
    DrawShortcutAndText(painter, item, text, proxy());
    if (item->menuItemType == QStyleOptionMenuItem::SubMenu) DrawArrow(painter, item, text);
  }

  /// An item with a picture is marked by a frame around that.
  static void DrawMark(QPainter *painter, const QRect &picture, const QColor &text) {
    constexpr int Room = 3;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(text);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(picture).adjusted(-Room, -Room, Room, Room), Rounding,
                             Rounding);
    painter->restore();
  }

  MenuLook look_;
  mutable MenuLook shown_;
  mutable std::optional<qint64> shownFor_;
};

StyleMenuPainter::StyleMenuPainter(QObject *parent)
    : QObject(parent), style_(std::make_unique<Style>()) {}

StyleMenuPainter::~StyleMenuPainter() = default;

void StyleMenuPainter::SetBackground(const QPixmap &picture) {
  style_->ChangeLook().background = picture;
}

void StyleMenuPainter::SetTextColor(std::int32_t color) {
  style_->ChangeLook().text = FromColorValue(color);
}

void StyleMenuPainter::SetBorderColor(std::int32_t color) {
  style_->ChangeLook().border = FromColorValue(color);
}

void StyleMenuPainter::SetHighlightColor(std::int32_t color) {
  style_->ChangeLook().highlight = FromColorValue(color);
}

void StyleMenuPainter::SetHighlightTextColor(std::int32_t color) {
  style_->ChangeLook().highlightText = FromColorValue(color);
}

void StyleMenuPainter::SetImageList(const ImageList &images) {
  images_ = images;
}

void StyleMenuPainter::PaintMenusOf(QWidget &window) {
  window_ = &window;
  for (QMenu *menu : window.findChildren<QMenu *>()) menu->setStyle(style_.get());
  // Source editors, the preview and text boxes make theirs when they are asked for.
  qApp->installEventFilter(this);
}

bool StyleMenuPainter::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Polish) return false;
  auto *menu = qobject_cast<QMenu *>(watched);
  if (menu != nullptr && menu->style() != style_.get() && IsWithin(*menu, *window_))
    menu->setStyle(style_.get());
  return false;
}

void StyleMenuPainter::SetItemPicture(const QString &itemName, const QString &imageKey) {
  if (auto *item = window_->findChild<QAction *>(itemName)) {
    item->setIcon(images_.value(imageKey));
    item->setIconVisibleInMenu(true);
  }
}

const MenuLook &StyleMenuPainter::Look() const {
  return style_->Look();
}

}  // namespace velor
