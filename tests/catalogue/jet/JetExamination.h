// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace velor::fixture {

/// What became of a file, perhaps a damaged one, that was opened, read from end to end and then
/// updated in every table.
struct JetExamination {
  bool opened = false;
  bool written = false;
  /// Promises that were broken: a file that calls itself read-only was written, an update changed
  /// another cell than its own or harmed the structure.
  QStringList broken;
};

JetExamination ExamineJetFile(const QByteArray &file);

}  // namespace velor::fixture
