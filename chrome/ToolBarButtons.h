// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QString>

class QToolBar;

namespace velor {

enum class ButtonKind { Click, Toggle };

/// A toolbar button's action. What a person does with the button, by mouse, by key or through
/// assistive technology (which toggles without a click), comes as Chosen. A toggle shows what the
/// program says and nothing else: choosing it leaves it as it is until the program shows a state.
class ToolBarAction final : public QAction {
  Q_OBJECT

 public:
  ToolBarAction(ButtonKind kind, const QString &key, const QString &caption, QObject *parent);

  void ShowChecked(bool checked);

 Q_SIGNALS:
  void Chosen();

 private:
  bool showing_ = false;
};

/// Adds a button with the picture of `key`, reachable by Tab and named for assistive technology.
/// The action's data is the key.
ToolBarAction *AddToolBarButton(QToolBar &bar, const QString &key, const QString &caption,
                                const QString &tooltip, ButtonKind kind);

}  // namespace velor
