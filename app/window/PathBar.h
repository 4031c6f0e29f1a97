// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <vector>

class QMenu;
class QToolButton;

namespace velor {

/// The path of elements in one line, the body first, a button for each. Where there is too little
/// room the first ones stand in the list behind a button at the left. It asks for no room of its
/// own. The keyboard has one stop in it, at first the last element; arrows lead along.
class PathBar final : public QWidget {
  Q_OBJECT

 public:
  explicit PathBar(QWidget *parent);

  /// Shows these elements (HtmlDocument::Path).
  void ShowPath(const QStringList &path);
  const QStringList &Path() const { return path_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// The element with this index was clicked, or Enter pressed on it.
  void Chosen(int index);
  /// Its menu is asked for, to begin at a place of the screen.
  void MenuWanted(int index, QPoint screenPosition);
  /// Escape was pressed.
  void Done();

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QToolButton *AddButton();
  /// Places as many buttons as there is room for, the last ones.
  void Place();
  void LetChooseOuter();
  /// Makes the button the stop of the keyboard.
  void SetStop(QToolButton *stop);
  bool OnKey(QToolButton &button, int key);
  int IndexOf(const QToolButton &button) const;
  std::vector<QToolButton *> InSight() const;

  QStringList path_;
  QPointer<QMenu> outerMenu_;           ///< the one shown last
  QToolButton *outer_;                  ///< lists the elements without room
  std::vector<QToolButton *> buttons_;  ///< as many as the longest path had
  int first_ = 0;                       ///< the first element with a button in sight
};

}  // namespace velor
