// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ToolBarButtons.h"

#include <QString>

class QToolBar;
class QWidget;

namespace velor {

/// Creates an empty toolbar for the band bar. `name` is its object name, `label` its name for
/// assistive technology.
QToolBar *NewBandToolBar(const char *name, const QString &label, QWidget *parent);

/// Appends a button whose object name is the toolbar's with the key ("tbrEdit_bold"), and a
/// separator after the last button of a group.
ToolBarAction *AddBandButton(QToolBar &bar, const QString &key, const QString &tooltip,
                             ButtonKind kind);

}  // namespace velor
