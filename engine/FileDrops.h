// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QMimeData;
class QWidget;

namespace velor {

/// Native paths of the files of this machine in a drag or on the clipboard; empty for other data.
QStringList LocalFiles(const QMimeData *data);

/// Makes a widget that accepts drags itself ignore drags of files, so that the window around it
/// gets them.
void IgnoreFileDrags(QWidget &widget);

}  // namespace velor
