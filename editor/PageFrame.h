// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

#include <functional>
#include <optional>

namespace velor {

/// How a page gets a width in CSS pixels.
struct PageFit {
  int pixels = 0;  ///< width of its view, device-independent
  double zoom = 1;
};

/// The width of a view that shows a page `width` CSS pixels wide, neither more nor less. A view has
/// whole pixels, so the zoom gives way a little where `zoom` would lead to parts of one.
PageFit FitPage(int width, double zoom, double devicePixelRatio);

/// The room of a page's view in its window. The view fills it; or it has a chosen width, stands in
/// the middle, and can be scrolled sideways where the window is narrower. A grip at its right edge
/// changes the width. The frame knows how large the page is shown, since the width depends on it.
class PageFrame final : public QScrollArea {
  Q_OBJECT

 public:
  /// CSS pixels that can be chosen.
  static constexpr int LeastWidth = 160;
  static constexpr int MostWidth = 4000;
  /// As wide as the window.
  static constexpr int Full = 0;

  /// Takes `view` for a part of itself. `applyZoom` shows the page in it larger or smaller.
  PageFrame(QWidget &view, std::function<void(double)> applyZoom, QWidget *parent);

  /// Gives the page that many CSS pixels, or Full. nullopt for a window that offers no widths: Full
  /// without a grip.
  void ShowAt(std::optional<int> width);
  std::optional<int> ChosenWidth() const { return width_; }
  /// CSS pixels that the page has now.
  int ShownWidth() const;
  /// Pixels from the frame's left edge to the middle of the page.
  int Middle() const;

  /// How large the page is shown, 1 for its own size.
  double Zoom() const { return zoom_; }
  void SetZoom(double factor);

  /// Scrolls sideways to the caret of the view, where that has the keyboard.
  void ShowCaret();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// A person is dragging the page to that width.
  void Dragged(int width);
  /// The drag has ended, and the page has another width than before it.
  void Dropped();
  /// The page's width or place in the frame may be another one.
  void Placed();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void Place();
  void DragGrip(QEvent &event);

  QWidget &view_;
  QWidget *strip_;  ///< view and grip, with as much room at the left
  QWidget *grip_;
  std::function<void(double)> applyZoom_;
  std::optional<int> width_;
  double zoom_ = 1;
  double appliedZoom_ = 1;
  int dragStart_ = 0;    ///< on the screen
  int widthBefore_ = 0;  ///< of the page when the drag began
};

}  // namespace velor
