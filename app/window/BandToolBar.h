// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ToolBarButtons.h"

#include <QString>

class QToolBar;
class QWidget;

namespace velor {

/// An empty toolbar for the band bar; `label` is its name for assistive technology.
QToolBar *NewBandToolBar(const char *name, const QString &label, QWidget *parent);

/// Adds a button that carries the toolbar's name and the key as object name ("tbrEdit_bold"), and a
/// separator behind it where a group of buttons ends.
ToolBarAction *AddBandButton(QToolBar &bar, const QString &key, const QString &tooltip,
                             ButtonKind kind);

}  // namespace velor
