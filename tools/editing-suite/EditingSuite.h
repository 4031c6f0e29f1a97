// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QWebEngineView>

#include <vector>

namespace velor {

/// A row whose markup the bridge left otherwise than the suite expects.
struct SuiteDifference {
  QString input;
  QString commands;
  QString expected;
  QString ours;
  /// What the engine alone left, or "as expected".
  QString plain;
};

/// How many rows of a file hold.
struct SuiteResult {
  int held = 0;
  int total = 0;
  int heldByEngine = 0;
  int foreign = 0;  ///< rows with commands or values that this program does not have
  std::vector<SuiteDifference> differences;
};

/// Runs data files of the browsers' common suite of editing tests: scripts that set
/// `browserTests`, a list of rows [markup, commands, expected markup, ...], with the selection
/// written in the markup. Rows that ask for styles are tried on an HTML5 page, the others on one
/// of the old dialect.
class EditingSuite {
 public:
  EditingSuite();

  /// Raises RuntimeError when the file cannot be read or is no such script.
  SuiteResult Run(const QString &path);

 private:
  void Load(const QString &doctype);
  QVariant Evaluate(const QString &script);

  QWebEngineView view_;
};

}  // namespace velor
