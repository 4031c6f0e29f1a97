// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageZoom.h"

#include "app/window/PageArea.h"
#include "editor/FrontWindow.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace velor {

namespace {

constexpr std::array Factors{0.25, 0.33, 0.5,  0.67, 0.75, 0.8, 0.9, 1.0, 1.1,
                             1.25, 1.5,  1.75, 2.0,  2.5,  3.0, 4.0, 5.0};
/// A factor that the engine gives back differs a little from the one it got.
constexpr double Tolerance = 0.005;
/// One notch of a usual wheel.
constexpr int Notch = 120;

}  // namespace

double NextZoom(double factor, int steps) {
  if (steps == 0) return 1;
  if (steps > 0) {
    const auto *next = std::find_if(Factors.begin(), Factors.end(),
                                    [&](double one) { return one > factor + Tolerance; });
    return next == Factors.end() ? Factors.back() : *next;
  }
  const auto next = std::find_if(Factors.rbegin(), Factors.rend(),
                                 [&](double one) { return one < factor - Tolerance; });
  return next == Factors.rend() ? Factors.front() : *next;
}

PageZoom::PageZoom(PageArea &area, std::function<void(const Command &)> run, QObject *parent)
    : QObject(parent), area_(area), run_(std::move(run)) {
  QApplication::instance()->installEventFilter(this);
}

bool PageZoom::IsOverPage(QObject *watched) const {
  const FrontWindow *front = area_.Front();
  if (front == nullptr || !watched->isWidgetType()) return false;
  if (front->View() != FrontView::Design && front->View() != FrontView::Preview) return false;
  return area_.Current()->isAncestorOf(static_cast<QWidget *>(watched));
}

bool PageZoom::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Wheel) return false;
  const auto *wheel = static_cast<QWheelEvent *>(event);
  if (!wheel->modifiers().testFlag(Qt::ControlModifier) || !IsOverPage(watched)) return false;
  turned_ += wheel->angleDelta().y();
  while (std::abs(turned_) >= Notch) {
    run_({turned_ > 0 ? CommandId::ZoomIn : CommandId::ZoomOut});
    turned_ += turned_ > 0 ? -Notch : Notch;
  }
  return true;
}

}  // namespace velor
