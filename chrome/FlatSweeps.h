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

/// Replaces the sunken edge in a window's extended style by a thin one. Size, place and stacking
/// order stay.
void ThinEdge(WindowSystem &windows, WindowHandle window);

/// The sweeps, with the program's one array of flat painters.
///
/// Every sweep that makes painters first resizes the array to indices 0 to the number of the
/// window's controls, and deletes painters beyond. The counter, which is the next painter's index,
/// goes on over all windows: a window with fewer controls than painters were made before raises
/// SubscriptOutOfRange (9).
class FlatSweeps final : public StylingSweeps {
 public:
  /// The window system outlives the sweeps.
  explicit FlatSweeps(WindowSystem &windows);
  ~FlatSweeps() override;

  void FlatSweep(QWidget &window) override;
  void FlatComboSweep(QWidget &window) override;
  void ThinEdgeSweep(QWidget &window) override;
  void ThinEdgeByType(QWidget &window, const QString &typeName) override;

  /// The array; null where no painter was made for an index.
  const std::vector<std::unique_ptr<cControlFlater>> &AllPainters() const { return painters_; }
  /// How many painters were made since the program began.
  std::int16_t CountOfPainters() const { return painterCount_; }

 private:
  void AttachPainters(QWidget &window, std::initializer_list<QStringView> typeNames);

  WindowSystem &windows_;
  std::vector<std::unique_ptr<cControlFlater>> painters_;
  std::int16_t painterCount_ = 0;
};

}  // namespace velor
