// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

class QMenu;

namespace velor {

class Dialogs;

class PageArea;
class PathBar;
class frmMain;
struct PathChoices;

/// What a person does with the path of elements to the page in front: a click selects an element,
/// its menu has what can be done to it.
class PathCommands final : public QObject {
  Q_OBJECT

 public:
  /// All outlive it.
  PathCommands(PathBar &bar, PageArea &area, Dialogs &dialogs, QObject *parent);

 private:
  /// The page in front, where it is seen as it looks; else null.
  frmMain *Page() const;
  /// An element of the path was clicked.
  void Choose(int index);
  // `element` is HtmlDocument::PathElement.
  void Select(int element);
  void ShowMenu(int index, QPoint place);
  void AddClasses(QMenu &menu, frmMain &page, const PathChoices &choices, int element);
  void LetChooseClass(frmMain &page, const PathChoices &choices, int element);
  void ShowProperties(int element, const QString &name);

  PathBar &bar_;
  PageArea &area_;
  Dialogs &dialogs_;
  QPointer<QMenu> menu_;  ///< the one shown last
};

}  // namespace velor
