// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"

#include <QStatusBar>

class QLabel;

namespace velor {

/// The status bar `Sta`: the tag under the caret at the left, charset and line ends of the page at
/// the right.
class StatusLine final : public QStatusBar, public StatusDisplay {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget *parent);

  void ShowTag(const QString &tag) override;
  void ShowTextForm(const QString &words) override;
  void Report(const QString &message) override;

 private:
  QLabel *tag_;
  QLabel *textForm_;
};

}  // namespace velor
