// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

class QMenu;

namespace velor {

class PageArea;
class StatusLine;
struct EditorContext;
struct TextCounts;

/// The status bar's menu: how many words and characters the page in front has, and what is selected
/// of it. They are counted when the menu is asked for.
class CountMenu final : public QObject {
  Q_OBJECT

 public:
  /// All outlive it.
  CountMenu(StatusLine &status, PageArea &area, EditorContext &context, QObject *parent);

 private:
  void Count(QPoint place);
  void Show(const TextCounts &counts, QPoint place);

  StatusLine &status_;
  PageArea &area_;
  EditorContext &context_;
  QPointer<QMenu> menu_;  ///< the one shown last
};

}  // namespace velor
