// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetFile.h"
#include "tests/support/jet/JetFixture.h"

#include <map>
#include <optional>

namespace velor::fixture {

/// A template for QTemporaryDir, in memory where the system has a folder for that: updates sync
/// several times each, and what these tests ask need not wait for a disk.
QString FolderInMemory();

/// One cell of a fixture, by indexes.
struct CellPlace {
  int table = 0;
  int row = 0;
  int column = 0;
};

/// A fixture's rows and what a file opened from its bytes should hold, changed side by side. The
/// first column of every table tells its rows apart.
class JetTrial {
 public:
  explicit JetTrial(FixtureFile meant) : meant_(std::move(meant)) {}

  const FixtureFile &Meant() const { return meant_; }
  /// Sets the expected content, after an update that was rolled back.
  void SetMeant(FixtureFile meant) { meant_ = std::move(meant); }

  /// Changes the cell in the file and in what is meant; nothing: null. Raises as UpdateRow does,
  /// and then leaves what is meant alone.
  void Update(JetFile &file, const CellPlace &place, const std::optional<QString> &text);
  /// Every row of the table whose cell in `keyColumn` is that number gets the text, like the
  /// statement "Update ... where ...".
  void UpdateWhere(JetFile &file, int table, int keyColumn, int key, int column,
                   const QString &text);

 private:
  JetRowId RowIdOf(JetFile &file, int table, int row);

  FixtureFile meant_;
  /// By table: the first column's value to the row's id, which must stay for as long as the file.
  std::map<int, std::map<qint64, JetRowId>> rowIds_;
};

}  // namespace velor::fixture
