// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

namespace velor {

/// Runs statements on a catalogue, an SQLite or a Jet file, as the program itself runs them. Each
/// query prints its column names and then its rows, a line each, values separated by tabs. Null is
/// nothing between two tabs, truth values are -1 and 0; a tab or line end within a value becomes a
/// blank, so that lines and tabs can be counted.
///
/// The statements are one transaction: a RuntimeError leaves the file as it was. `file` in native
/// form.
void RunStatements(const QString &file, const QStringList &statements, QTextStream &out,
                   QTextStream &notices);

}  // namespace velor
