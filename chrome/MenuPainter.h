// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QString>

#include <cstdint>
#include <memory>

class QMenu;
class QWidget;

namespace velor {

/// The pictures beside menu items, each under a key in lower case.
using ImageList = QHash<QString, QIcon>;

/// Paints the menus of a window (`PM`). Colours are 32-bit values, red in the low byte.
class MenuPainter {
 public:
  virtual ~MenuPainter() = default;

  /// The picture is drawn behind the items.
  virtual void SetBackground(const QPixmap &picture) = 0;
  virtual void SetTextColor(std::int32_t color) = 0;
  virtual void SetBorderColor(std::int32_t color) = 0;
  virtual void SetHighlightColor(std::int32_t color) = 0;
  virtual void SetHighlightTextColor(std::int32_t color) = 0;

  virtual void SetImageList(const ImageList &images) = 0;
  /// Takes over drawing every menu of the window, those too that are made later.
  virtual void PaintMenusOf(QWidget &window) = 0;
  /// Shows the picture with that key beside the item of that name.
  virtual void SetItemPicture(const QString &itemName, const QString &imageKey) = 0;
};

/// Sets the pictures of all menu items of the window for which `images` has one: its key is the
/// item's object name in lower case.
void MenuPictureSweep(QWidget &window, const ImageList &images, MenuPainter &painter);

/// Picture and colours that a menu is drawn with.
struct MenuLook {
  QPixmap background;
  QColor text = Qt::black;
  QColor border = Qt::black;
  QColor highlight = Qt::black;
  QColor highlightText = Qt::white;
};

/// The look adapted to a palette. On a dark palette the picture only tints the palette's
/// background, on a high-contrast one it is left out. A colour with too little contrast to what
/// lies behind it is replaced by the palette's.
MenuLook LegibleLook(const MenuLook &look, const QPalette &palette);

/// The menu painter for Qt's menus: sets a style of its own on each of them.
class StyleMenuPainter final : public QObject, public MenuPainter {
  Q_OBJECT

 public:
  explicit StyleMenuPainter(QObject *parent = nullptr);
  ~StyleMenuPainter() override;

  void SetBackground(const QPixmap &picture) override;
  void SetTextColor(std::int32_t color) override;
  void SetBorderColor(std::int32_t color) override;
  void SetHighlightColor(std::int32_t color) override;
  void SetHighlightTextColor(std::int32_t color) override;
  void SetImageList(const ImageList &images) override;
  void PaintMenusOf(QWidget &window) override;
  void SetItemPicture(const QString &itemName, const QString &imageKey) override;

  /// The look as it was set, before LegibleLook.
  const MenuLook &Look() const;

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  class Style;

  std::unique_ptr<Style> style_;
  ImageList images_;
  QWidget *window_ = nullptr;
};

}  // namespace velor
