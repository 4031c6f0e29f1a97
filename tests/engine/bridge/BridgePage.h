// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QString>
#include <QVariant>
#include <QWebEngineView>

namespace velor {

/// A script of these tests, by its file's name.
QString TestScript(const char *name);

/// A bare view of the engine with the bridge scripts in the isolated world: page scripts off, no
/// channel, no component. Calls return when the page has done what was asked.
class BridgePage {
 public:
  BridgePage();

  /// From the next document on the bridge finds the channel's script.
  void AddChannelScript();
  /// Loads a document, puts the selection where the markup writes it and starts the bridge.
  void Load(const QString &html);
  /// The value of an expression in the bridge's world.
  QVariant Evaluate(const QString &expression);
  /// Real keys, as from a person.
  void Type(const QString &text);
  void Press(const QKeySequence &key);
  /// A key that is held down: so many repetitions of it before it is let go.
  void Hold(const QKeySequence &key, int repetitions);
  /// What an input method has so far; nothing abandons it.
  void Compose(const QString &preedit);
  /// What an input method gives in the end.
  void Commit(const QString &text);
  /// A click of the left button at a place in CSS pixels.
  void Click(QPoint place);
  /// A press or release of the left button.
  void Button(QEvent::Type type, QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Move(QPoint place, Qt::MouseButtons held = Qt::NoButton,
            Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// What the view shows.
  QImage Picture() { return view_.grab().toImage(); }
  QWebEnginePage &Engine() { return *view_.page(); }

 private:
  void AwaitKeys(int count);
  void Send(QInputMethodEvent &event);

  QWebEngineView view_;
};

}  // namespace velor
