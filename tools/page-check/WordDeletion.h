// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace velor {

/// What a save took and added when a word was deleted.
struct WordDeletion {
  /// What goes or comes with a word because the page's visible line needs it: "element" (one that
  /// held that word alone and would be an empty link or format), "blank" (one of the two that would
  /// stand side by side), "line" (the BR that shows a line which is left empty), "sign" (the rest
  /// of the template sign that the word was a part of).
  QStringList with;
  /// UTF-16 units of anything else: nobody asked for that.
  qsizetype beyond = 0;
};

/// Compares a file with the saved one, both as bytes, after `word` was deleted somewhere.
WordDeletion JudgeWordDeletion(const QByteArray &file, const QByteArray &saved,
                               const QString &word);

}  // namespace velor
