// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/help/Manual.h"

#include <QObject>

#include <memory>
#include <optional>

class QWidget;

namespace velor {

class ManualWindow;

/// Shows the manual. F1 in any window does so, in dialogs too, whose keys no menu gets.
class Help final : public QObject {
  Q_OBJECT

 public:
  /// `nativeFolder` has the manual's pages (ManualFolder); empty for none.
  explicit Help(const QString &nativeFolder);
  ~Help() override;

  /// Shows the place for `from`, the widget with the keyboard, in the manual's window.
  void ShowFor(const QWidget *from);

 Q_SIGNALS:
  /// The manual was asked for, and there is none.
  void Missing();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  const QString folder_;
  std::optional<Manual> manual_;  ///< read when it is first shown
  std::unique_ptr<ManualWindow> window_;
};

}  // namespace velor
