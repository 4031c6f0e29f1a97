// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/StylingSweeps.h"
#include "platform/WindowSystem.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

namespace velor {

class cControlFlater;

/// Swaps a window's sunken edge for a thin one; nothing moves, no window comes to the front.
void ThinEdge(WindowSystem &windows, WindowHandle window);

/// The sweeps themselves, with the program's one array of painters.
///
/// Every sweep that makes painters first resizes the array to the window's controls, indices 0 to
/// their count, while the counter goes on counting over all windows: a window with fewer controls
/// than there are painters already raises SubscriptOutOfRange (9). Painters beyond the new size go.
class FlatSweeps final : public StylingSweeps {
 public:
  /// The window system outlives the sweeps.
  explicit FlatSweeps(WindowSystem &windows);
  ~FlatSweeps() override;

  void FlatSweep(QWidget &window) override;
  void FlatComboSweep(QWidget &window) override;
  void ThinEdgeSweep(QWidget &window) override;
  void ThinEdgeByType(QWidget &window, const QString &typeName) override;

  const std::vector<std::unique_ptr<cControlFlater>> &AllPainters() const { return painters_; }
  std::int16_t CountOfPainters() const { return painterCount_; }

 private:
  void AttachPainters(QWidget &window, std::initializer_list<QStringView> typeNames);

  WindowSystem &windows_;
  std::vector<std::unique_ptr<cControlFlater>> painters_;
  std::int16_t painterCount_ = 0;
};

}  // namespace velor
