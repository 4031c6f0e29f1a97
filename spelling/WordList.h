// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QSet>
#include <QString>

namespace velor {

class Files;

/// A person's own words: a text file in UTF-8 with one word a line, which need not exist. Lines
/// that begin with "#" are notes. What another program changes there counts at once.
class WordList {
 public:
  /// `path` in logic form.
  WordList(Files &files, QString path);

  /// A word in small letters is in the list with a large first letter too.
  bool Has(const QString &word);
  /// Adds a line at the file's end; the others stay as they are. Raises RuntimeError.
  void Add(const QString &word);

 private:
  void Read();

  Files &files_;
  QString path_;
  QDateTime readAt_;  ///< the file's time when it was read; invalid for no file
  QSet<QString> words_;
};

}  // namespace velor
