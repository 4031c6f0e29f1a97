// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonValue>
#include <QString>
#include <QWebEngineView>

#include <chrono>
#include <optional>
#include <vector>

namespace velor {

/// A row that the bridge left otherwise than the suite expects, or of which it shows something
/// else.
struct SuiteDifference {
  QString input;
  QString commands;
  QString expected;
  /// "as expected" where only what is shown differs.
  QString ours;
  /// What the engine alone left, or "as expected".
  QString plain;
  /// What buttons and boxes show otherwise than expected; empty for nothing.
  QString shown;
};

/// How many rows of a file hold.
struct SuiteResult {
  int held = 0;
  int total = 0;
  int heldByEngine = 0;
  int statesHeld = 0;  ///< rows whose buttons and boxes show what the suite expects
  int states = 0;      ///< rows that expect buttons and boxes to show something
  int foreign = 0;     ///< rows with commands or values that this program does not have
  int lost = 0;        ///< rows that ended the page's process, or never came to an end
  std::vector<SuiteDifference> differences;

  SuiteResult &operator+=(const SuiteResult &other);
};

/// Runs data files of the browsers' common suite of editing tests: scripts that set
/// `browserTests`, a list of rows [markup, commands, expected markup or several of them, answers,
/// states], with the selection written in the markup. Rows that ask for styles are tried on an
/// HTML5 page, the others on one of the old dialect. A row that ends the page's process or takes
/// longer than the limit does not hold; the others go on on a fresh page.
class EditingSuite {
 public:
  explicit EditingSuite(std::chrono::milliseconds limit = std::chrono::seconds(10));

  /// A file without rows has a total of 0. Raises RuntimeError when the file cannot be read or is
  /// no script.
  SuiteResult Run(const QString &path);

 private:
  enum class Dialect { Old, Html5 };
  struct Outcome {
    bool holds = false;
    QString found;
    /// What is shown otherwise than expected; none where the row expects nothing to be shown.
    std::optional<QString> shown;
  };

  SuiteResult RunIn(Dialect dialect);
  std::vector<Outcome> RunRows(const QString &way, int total, Dialect dialect);
  /// Puts up a page with the file's rows; tells how many there are.
  QJsonValue Open(Dialect dialect);
  /// The value of an expression; none when the page's process ended or the limit was reached.
  std::optional<QJsonValue> Evaluate(const QString &expression);
  void EndProcess() const;

  std::chrono::milliseconds limit_;
  QString path_;
  QString data_;
  QWebEngineView view_;
};

}  // namespace velor
