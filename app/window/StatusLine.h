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
  void ReportOn(int page, const QString &message) override;
  bool HasNotice() const override { return !currentMessage().isEmpty(); }
  /// The slot of the page that is now in front, 0 for none: a notice on another page goes.
  void PageCame(int page);

 private:
  QLabel *tag_;
  QLabel *textForm_;
  int front_ = 0;     ///< slot of the page in front
  int noticeOn_ = 0;  ///< slot of the page that the notice is about; 0: the program
};

}  // namespace velor
