// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/EditingEngine.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace velor {

/// Opens pages in the editing component, edits and saves them, and tells what became of their
/// bytes.
class PageCheck {
 public:
  explicit PageCheck(EditingEngine &engine);
  ~PageCheck();

  /// The kinds of edit, in the words of the command line: those that a script makes in the
  /// document, and those that the page gets as a person's keys and commands. "type=WORD" types that
  /// word.
  static const QStringList &ScriptKinds();
  static const QStringList &KeyKinds();
  /// Whether the words name a kind.
  static bool IsKind(const QString &words);

  /// Checks one page; `kind` empty for no edit, `place` counts from 0. Native path. The answer has
  /// `file`, `edited` (false where the page has no such place), `identical`, `bytes_lost` and
  /// `bytes_added` (see ByteDifference), `bytes_outside`, `bytes_implied` (see BytesBeyondEdit),
  /// `rung`, `document_equal` and `ms` (the time that saving took); ErrorField() as well when the
  /// file cannot be opened, edited or saved. That of delete-word has `word`, `with_word` and
  /// `beyond_word` too (see WordDeletion).
  QJsonObject Run(const QString &file, const QString &kind, int place);
  /// What the last check saved.
  QByteArray Saved() const;
  static QString ErrorField() { return QStringLiteral("error"); }

 private:
  class Desk;

  void Measure(const QString &file, const QString &kind, int place, QJsonObject &result);

  QString Target() const;
  /// The document of a text, loaded on its own.
  QString Parsed(const QByteArray &bytes);
  /// What a parse makes of a document's HTML.
  QString ParsedAgain(const QString &document);

  QTemporaryDir scratch_;
  std::unique_ptr<Desk> desk_;
};

}  // namespace velor
