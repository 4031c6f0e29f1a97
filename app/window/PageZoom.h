// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Command.h"

#include <QObject>

#include <functional>

namespace velor {

class PageArea;

/// The next larger (`steps` 1) or smaller (-1) of the usual factors; 1 for 0 steps.
double NextZoom(double factor, int steps);

/// Turns the wheel with Ctrl held, over the page or preview in front, into commands of the menu.
class PageZoom final : public QObject {
  Q_OBJECT

 public:
  /// `run` carries out CommandId::ZoomIn and ZoomOut; `area` outlives it.
  PageZoom(PageArea &area, std::function<void(const Command &)> run, QObject *parent);

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool IsOverPage(QObject *watched) const;

  PageArea &area_;
  std::function<void(const Command &)> run_;
  int turned_ = 0;  ///< since the last step, in eighths of a degree
};

}  // namespace velor
