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

/// What paints a window's menus, `PM`. Colours are 32-bit values, red in the low byte.
class MenuPainter {
 public:
  virtual ~MenuPainter() = default;

  virtual void SetBackground(const QPixmap &picture) = 0;
  virtual void SetTextColor(std::int32_t color) = 0;
  virtual void SetBorderColor(std::int32_t color) = 0;
  virtual void SetHighlightColor(std::int32_t color) = 0;
  virtual void SetHighlightTextColor(std::int32_t color) = 0;

  virtual void SetImageList(const ImageList &images) = 0;
  /// Takes over drawing every menu of the window.
  virtual void TakeOver(QWidget &window) = 0;
  /// Shows the picture with that key beside the item of that name.
  virtual void SetItemPicture(const QString &itemName, const QString &imageKey) = 0;
};

/// Gives the window's menu items the pictures whose key is the item's name in lower case; items
/// without such a picture keep their plain look.
void MenuPictureSweep(QWidget &window, const ImageList &images, MenuPainter &painter);

/// What a menu is drawn with.
struct MenuLook {
  QPixmap background;
  QColor text = Qt::black;
  QColor border = Qt::black;
  QColor highlight = Qt::black;
  QColor highlightText = Qt::white;
};

/// The look as it is shown on a palette: on a dark one the picture only tints the palette's field,
/// on a high-contrast one there is none; colours that could not be read on what lies behind them
/// give way to the palette's.
MenuLook LegibleLook(const MenuLook &look, const QPalette &palette);

/// The menu painter for Qt's menus: a style of its own for each of them.
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
  void TakeOver(QWidget &window) override;
  void SetItemPicture(const QString &itemName, const QString &imageKey) override;

  const MenuLook &Look() const;

 private:
  class Style;

  std::unique_ptr<Style> style_;
  ImageList images_;
  QWidget *window_ = nullptr;
};

}  // namespace velor
