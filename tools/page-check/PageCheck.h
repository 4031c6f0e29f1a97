// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/editing/EditingEngine.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace velor {

/// Opens pages in the editing component, edits and saves them, and tells what became of their
/// bytes.
class PageCheck {
 public:
  explicit PageCheck(EditingEngine &engine) : engine_(engine) {}

  /// The kinds of edit, in the words of the command line.
  static const QStringList &Kinds();

  /// Checks one page; `kind` empty for no edit, `place` counts from 0. Native path. The answer has
  /// `file`, `edited` (false where the page has no such place), `identical`, `bytes_outside`,
  /// `rung`, `document_equal` and `ms` (the time that saving took).
  QJsonObject Run(const QString &file, const QString &kind, int place);

 private:
  EditingEngine &engine_;
  QTemporaryDir scratch_;
};

}  // namespace velor
