// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QMimeData;
class QWidget;

namespace velor {

/// Native paths of the files of this machine that are dragged or on the clipboard.
QStringList LocalFiles(const QMimeData *data);

/// A widget that takes drags itself leaves those of files to the window around it.
void LeaveFilesToTheWindow(QWidget &widget);

}  // namespace velor
