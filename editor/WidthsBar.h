// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "platform/Browser.h"

#include <QList>

#include <vector>

class QSpinBox;
class QToolButton;

namespace velor {

class PageFrame;
class WidthRuler;

/// What the bar shows of a page.
struct WidthFacts {
  QList<int> breakpoints;  ///< CSS pixels, the smallest first
  /// A phone would lay the page out as for a large screen, though it is made for small ones too.
  bool lacksViewport = false;

  bool operator==(const WidthFacts &) const = default;
};

/// The bar over a page that chooses its width: buttons of usual widths, a box for any other, and a
/// ruler of the widths at which the page changes. The page keeps the keyboard while the mouse
/// chooses, and gets it back after a choice by keyboard; Escape returns it too.
class WidthsBar final : public NoticeBar {
  Q_OBJECT

 public:
  /// Shows the width of `frame`, which outlives the bar. Hidden at first.
  WidthsBar(PageFrame &frame, QWidget *parent);

  void ShowFacts(const WidthFacts &facts);
  /// Shows a button for phones, and whether it is on.
  void ShowDevice(Browser::Device device);
  /// Moves the keyboard to the chosen width.
  void TakeKeyboard();

 Q_SIGNALS:
  /// CSS pixels, or PageFrame::Full.
  void WidthChosen(int width);
  void DeviceChosen(velor::Browser::Device device);
  void ViewportWanted();
  void CloseWanted();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void AddWidths();
  void AddPhone();
  void ShowFrame();
  void ReturnKeyboard();

  PageFrame &frame_;
  bool lacksViewport_ = false;
  std::vector<QToolButton *> widths_;
  QSpinBox *other_ = nullptr;
  QToolButton *phone_ = nullptr;
  QWidget *addViewport_ = nullptr;
  WidthRuler *ruler_ = nullptr;
};

}  // namespace velor
