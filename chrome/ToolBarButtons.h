// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QString>

class QToolBar;

namespace velor {

enum class ButtonKind { Click, Toggle };

/// A toolbar button's action. It emits Chosen when the person uses the button, by mouse, key or
/// assistive technology (which toggles without a click). Choosing a toggle does not change how it
/// looks: only ShowChecked does.
class ToolBarAction final : public QAction {
  Q_OBJECT

 public:
  ToolBarAction(ButtonKind kind, const QString &key, const QString &caption, QObject *parent);

  /// Shows a toggle as checked or not, without emitting Chosen.
  void ShowChecked(bool checked);

 Q_SIGNALS:
  void Chosen();

 private:
  bool showing_ = false;
};

/// Appends a button with the icon of `key` (IconFor), reachable by Tab, with `caption` as its name
/// for assistive technology. The action's data is the key.
ToolBarAction *AddToolBarButton(QToolBar &bar, const QString &key, const QString &caption,
                                const QString &tooltip, ButtonKind kind);

}  // namespace velor
