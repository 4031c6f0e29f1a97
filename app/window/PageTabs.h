// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTabBar>

namespace velor {

/// The page tabs, `FileTab`: one a page, under the key "key" and the page number. The order never
/// changes but by adding at the end and removing. Unknown keys raise ElementNotFound (35601),
/// positions and images out of range IndexOutOfBounds (35600).
class PageTabs final : public QTabBar {
  Q_OBJECT

 public:
  explicit PageTabs(QWidget *parent);

  /// `image` counts from 1 in the strip's image list.
  void Add(const QString &key, int image);
  void SetCaption(const QString &key, const QString &caption);
  /// `position` counts from 1.
  void SetCaptionAt(int position, const QString &caption);
  void Select(const QString &key);
  void Remove(const QString &key);
  void Clear();

 Q_SIGNALS:
  /// The person chose a page's tab, the one in front included; never by the calls above.
  void PageChosen(int number);

 protected:
  void paintEvent(QPaintEvent *event) override;
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;

 private:
  int IndexOf(const QString &key) const;
  void Choose(int index);
};

}  // namespace velor
