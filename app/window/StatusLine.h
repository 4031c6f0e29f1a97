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
  /// To be called with the slot of the page that has come to the front, 0 for none: removes a
  /// notice about another page.
  void PageCame(int page);

 private:
  QLabel *tag_;
  QLabel *textForm_;
  int front_ = 0;     ///< slot of the page in front
  int noticeOn_ = 0;  ///< slot of the page that the notice is about; 0: the program
};

}  // namespace velor
