// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QString>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace velor {

/// A bar under a page that says something in one line and has controls beside it. The line gives
/// way first where there is little room; its tip has it whole. Hidden until it tells.
class NoticeBar : public QFrame {
  Q_OBJECT

 public:
  /// `name` and `textName` are the object names of the bar and of its line.
  NoticeBar(const char *name, const char *textName, const QString &accessibleName, QWidget *parent);

  /// A bar that goes with the keyboard in it gives that back to the window that it stands in.
  void setVisible(bool visible) override;

 protected:
  /// Shows the bar with this text, which is plain.
  void Tell(const QString &text);
  /// Adds a control behind the last one.
  void Add(QWidget &control);
  /// Adds a part below the line, as wide as the bar.
  void AddBelow(QWidget &part);
  /// Puts a control of the line into a row of its own below it, where the line's text and all
  /// controls are wider than the bar.
  void FoldUnder(QWidget &control);
  /// Adds a button. A click on it leaves the keyboard in the page.
  QPushButton &AddButton(const char *name, const QString &caption, const QString &tip);

  bool event(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void Fold();

  QVBoxLayout *rows_;
  QHBoxLayout *line_;
  QLabel *text_;
  QWidget *folding_ = nullptr;  ///< what has a row of its own at times
  int place_ = 0;               ///< its place in the line
};

}  // namespace velor
