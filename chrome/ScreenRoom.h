// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScreen>
#include <QSize>
#include <QWidget>

namespace velor {

/// The first size of a window: `wanted`, or less where its screen has no room for that and for the
/// frame that the desktop draws around it. The frame's real size is known only when the window is
/// shown.
inline QSize FirstSizeOf(const QWidget &window, QSize wanted) {
  constexpr QSize Frame(16, 48);  // pixels
  return wanted.boundedTo(window.screen()->availableSize() - Frame);
}

}  // namespace velor
