// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetFixture.h"

#include <QProcess>
#include <QStringList>

#include <map>
#include <vector>

namespace velor {
class JetFile;
}

// Three readers of the same file and what was meant, in one form. Where a reader cannot tell two
// things apart (below), the comparison takes them for one.

namespace velor::fixture {

/// Each table's rows as texts (CellText), sorted, since a file's rows have no order.
using Reading = std::map<QString, std::vector<QStringList>>;

Reading WhatWasMeant(const FixtureFile &file);

/// The rows as the program's own reader sees them, inside a transaction too.
Reading ReadByUs(JetFile &file, const FixtureFile &shape);

/// An empty string when all agree; else the first cell on which one does not, and who.
QString Disagreement(const Reading &meant, const Reading &seen, const QString &reader);

/// Reads files by all three: the program's own reader, mdbtools, and mdb-reader where install.sh
/// has put it.
class JetReaders {
 public:
  ~JetReaders();

  /// The first disagreement about the file at rest, or an empty string.
  QString DisagreementOn(const QString &path, const FixtureFile &meant);

  static bool HasMdbReader();

 private:
  Reading ReadByMdbReader(const QString &path, const FixtureFile &shape);

  /// Runs from the first question on.
  QProcess mdbReader_;
};

}  // namespace velor::fixture
