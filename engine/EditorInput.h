// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>

#include <functional>

class QWebEngineView;

namespace velor {

/// An event filter before the view's input. It gives the program's shortcuts to the program and
/// drops the browser's own keys (reload, back). Everything else goes to the page, formatting and
/// undo keys too: the bridge carries them out in their order among typed text.
class EditorInput : public QObject {
  Q_OBJECT

 public:
  /// Each key, button and input method event is first passed to `holdBack`; where that answers true
  /// the event goes no further, and the caller sends it again later. A child of `view`.
  EditorInput(QWebEngineView *view, std::function<bool(const QEvent &)> holdBack);

  /// Filters the view's present input widget; to be called when the engine may have replaced it.
  void FilterInputWidget();

 Q_SIGNALS:
  /// A key or button is about to reach the page.
  void InputComing();
  /// Files of this machine were dropped: native paths, and where, in CSS pixels. The page does not
  /// get the event.
  void FilesDropped(const QStringList &nativePaths, QPoint position);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  /// Accepts drags and drops of files; false for every other event.
  bool AcceptFiles(QEvent *event);

  QWebEngineView *view_;
  std::function<bool(const QEvent &)> holdBack_;
};

}  // namespace velor
