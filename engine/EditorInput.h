// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>

#include <functional>

class QWebEngineView;

namespace velor {

/// Stands before the view's input: gives the program's shortcuts back to the program and keeps the
/// browser's own keys from doing anything. Everything else goes to the page, formatting and undo
/// keys too: the bridge carries them out in the order in which they come with typed text.
class EditorInput : public QObject {
  Q_OBJECT

 public:
  /// Follows the view's input widget, which the engine may replace. Keys and buttons are first
  /// offered to `keep`, which may take them to send them again later.
  EditorInput(QWebEngineView *view, std::function<bool(const QEvent &)> keep);

  /// Takes up the view's present input widget.
  void Attach();

 Q_SIGNALS:
  /// A key or button is about to reach the page.
  void InputComing();
  /// Files of this machine were dropped, native paths; the page never sees them.
  void FilesDropped(const QStringList &nativePaths, QPoint position);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  /// Takes what drags files for itself; false for everything else.
  bool TakeFiles(QEvent *event);

  QWebEngineView *view_;
  std::function<bool(const QEvent &)> keep_;
};

}  // namespace velor
