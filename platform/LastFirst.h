// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velor {

/// Puts a text at the head of a list of those used last, once; the oldest beyond `most` go.
inline void PutFirst(QStringList &used, const QString &text, qsizetype most) {
  used.removeAll(text);
  used.prepend(text);
  used.resize(qMin(used.size(), most));
}

}  // namespace velor
