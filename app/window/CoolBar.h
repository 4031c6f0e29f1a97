// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/GeneralToolbar.h"

#include <QWidget>

#include <array>
#include <functional>

class QToolBar;

namespace velor {

class FormattingBar;
class ToolBarAction;

/// The band bar: `tbrGeneral` above, the formatting bar below.
class CoolBar final : public QWidget {
  Q_OBJECT

 public:
  explicit CoolBar(QWidget *parent);

  FormattingBar &Formatting() { return *formatting_; }

  /// Enables each button of `tbrGeneral` that needs a page if `isUsable` is true for its command.
  void SetPageButtonsEnabled(const std::function<bool(const Command &)> &isUsable);

 Q_SIGNALS:
  /// The person used a button of `tbrGeneral`.
  void GeneralClicked(const velor::GeneralButton &button);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QToolBar *BuildGeneral();

  /// In the order of GeneralButtons.
  std::array<ToolBarAction *, GeneralButtons.size()> general_{};
  FormattingBar *formatting_;
};

}  // namespace velor
