// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/SqliteConnection.h"
#include "platform/Paths.h"
#include "projects/RecordsetReader.h"
#include "tests/support/CatalogueFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeDialogs.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace velor {

/// The project manager's surroundings with a catalogue on disk, in the format of the parameter.
template <typename FilesPart, typename DeskPart>
class CatalogueOnDisk : public testing::TestWithParam<CatalogueFormat> {
 protected:
  void Open(const fixture::FixtureFile &content) {
    WriteCatalogue(File(), GetParam(), content);
    connection = std::make_unique<SqliteConnection>();
    connection->Open(QStringLiteral("Data Source=") + ToLogic(File()), {}, {}, -1);
  }

  QString File() const { return folder.filePath(QStringLiteral("eThumbs.mdb")); }

  /// The column of all rows, in the order of the statement.
  QStringList Column(const char *statement, const char *column) {
    const auto records = connection->CreateRecordset();
    OpenRecordset(*records, QString::fromUtf8(statement), *connection);
    QStringList texts;
    for (; !records->EndOfFile(); records->MoveNext())
      texts.append(records->Value(QString::fromUtf8(column)).toString());
    return texts;
  }

  QTemporaryDir folder;
  FilesPart files;
  FakeDialogs dialogs;
  std::unique_ptr<DatabaseConnection> connection;
  DeskPart desk;
};

}  // namespace velor
