// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"

#include <QStatusBar>
#include <QTimer>

#include <chrono>
#include <vector>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace velor {

class PathBar;

struct NoticeTimes {
  std::chrono::milliseconds shown{10'000};
  /// Whoever has had a notice before their eyes for so long has read it.
  std::chrono::milliseconds read{5'000};
};

/// The status bar `Sta`: the tag under the caret at the left, beside it the path of elements where
/// that was added, at the right the place of what is selected, and charset and line ends of the
/// page. The newest notice is shown at once; one whose place it took before anybody could read it
/// comes back afterwards.
class StatusLine final : public QStatusBar, public StatusDisplay {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget *parent, NoticeTimes times = {});

  void ShowTag(const QString &tag) override;
  void ShowPath(const QStringList &path) override;
  void ShowMeasures(const QString &words) override;
  void ShowTextForm(const QString &words) override;
  void Report(const QString &message) override;
  void ReportOn(int page, const QString &message) override;
  bool HasNotice() const override;
  /// Adds a button that asks for the status bar's menu, as the menu key and the right mouse button
  /// do from then on. To be called once.
  void AddMenuButton(const QString &caption, const QString &name);
  /// Adds the path of elements, which ShowPath fills from then on. To be called once.
  PathBar &AddPath();
  /// Shows the path of the file that the pointer is on, in place of the tag; empty: the tag again.
  void ShowPlace(const QString &path);
  /// To be called with the slot of the page that has come to the front, 0 for none: removes the
  /// notices about other pages.
  void PageActivated(int page);
  /// What is to be read of the notice: where it is longer than its place it is cut off at its end,
  /// and the tip of the bar has it whole.
  QString ShownNotice() const;

 Q_SIGNALS:
  /// The menu is asked for, to stand over a place of the screen.
  void MenuWanted(QPoint screenPosition);

 protected:
  void contextMenuEvent(QContextMenuEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  struct Notice {
    int page;  ///< the slot of the page that it is about; 0: the program
    QString text;
    std::chrono::milliseconds left;  ///< of its time
  };

  template <typename Condition>
  void Drop(Condition isDue);
  void Show();
  void ShowTip();
  /// Where a notice stands: up to the first of the fields at the right.
  QRect NoticePlace() const;
  void ShowTagOrPlace();

  QWidget *left_;  ///< tag and path, which a notice covers
  QHBoxLayout *line_;
  QLabel *tag_;
  PathBar *path_ = nullptr;
  QLabel *measures_;
  QLabel *textForm_;
  QToolButton *menuButton_ = nullptr;
  QString tagName_;
  QString place_;
  const NoticeTimes times_;
  std::vector<Notice> notices_;  ///< the last one is on show
  QTimer timer_;                 ///< for that one
  int front_ = 0;                ///< slot of the page in front
};

}  // namespace velor
