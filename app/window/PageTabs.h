// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"

#include <QString>
#include <QTabBar>

#include <vector>

namespace velor {

/// The page tabs. New tabs are appended; tabs cannot be moved.
class PageTabs final : public QTabBar, public TabStrip {
  Q_OBJECT

 public:
  explicit PageTabs(QWidget *parent);

  int Count() const override { return count(); }
  void Add(const QString &key, int image) override;
  void SetCaption(const QString &key, const QString &caption) override;
  void SetState(const QString &key, const TabState &state) override;
  void Select(const QString &key) override;
  void Remove(const QString &key) override;
  void Clear() override;

 Q_SIGNALS:
  /// The person chose a page's tab, be it the one in front. Not emitted by the calls above.
  void PageChosen(int number);

  /// The pointer is on the tab of a page with that file; on none: an empty path.
  void Pointed(const QString &path);

 protected:
  void mouseMoveEvent(QMouseEvent *event) override;
  void leaveEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;

 private:
  int IndexOf(const QString &key) const;
  void Choose(int index);
  /// Sets the tool tip from caption and state.
  void Describe(int index);

  struct Tab {
    QString caption;
    TabState state;

    QString Shown() const;
  };
  /// In the order of the strip.
  std::vector<Tab> tabs_;
};

}  // namespace velor
