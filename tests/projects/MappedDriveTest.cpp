// SPDX-License-Identifier: GPL-3.0-or-later
// Catalogues of another machine, whose drives are folders here.
#include "chrome/FrmFld.h"
#include "files/QtFiles.h"
#include "projects/frmProjectManager.h"
#include "tests/projects/CatalogueDesk.h"
#include "tests/projects/CatalogueOnDisk.h"
#include "tests/support/Forms.h"
#include "tests/support/MappedDrives.h"

#include <QDir>
#include <QFile>
#include <QPushButton>

namespace velor {
namespace {

QString U(const char *text) {
  return QString::fromUtf8(text);
}

/// A main window that picks folders with the real picker.
class PickingDesk final : public CatalogueDesk {
 public:
  /// Native form.
  QString folderToPick;

  QString PickProjectFolder(const QString &) override {
    QString imageFolder;
    QString projectFolder;
    FrmFld picker({imageFolder, projectFolder});
    picker.ForProject = true;
    picker.SelectFolder(folderToPick);
    picker.accept();
    return projectFolder;
  }
};

class MappedDrive : public CatalogueOnDisk<QtFiles, PickingDesk> {
 protected:
  MappedDrive() {
    fixture::FixtureFile content = SmallCatalogue();
    content.tables[0].rows[1].cells[2] = U("C:\\Sites\\Shop");
    for (int page : {0, 1}) content.tables[1].rows[page].cells[3] = U("C:\\Sites\\Shop");
    content.tables[2].rows[1].cells[1] = U("C:\\Sites\\Shop");
    Open(content);
  }

  QString Native(const char *name) const { return folder.filePath(U(name)); }

  void MakeSite(const char *name) {
    QDir().mkpath(Native(name));
    QFile index(Native(name) + U("/Index.htm"));
    EXPECT_TRUE(index.open(QIODevice::WriteOnly));
  }

  /// The oldest project, 2, is the list's first.
  void OpenProject() {
    frmProjectManager manager(files, dialogs, connection.get(), desk, nullptr);
    Control<QPushButton>(manager, U("cmdOpen"))->click();
  }
};

TEST_P(MappedDrive, OpensAProjectWithoutARepair) {
  MakeSite("windows/sites/shop");
  const MappedDrives drives(U("C: ") + Native("windows"));
  OpenProject();
  EXPECT_EQ(desk.opened, U("C:\\Sites\\Shop\\Files\\Home.htm"));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_P(MappedDrive, WritesAFolderOnTheDriveAsTheOtherMachineKnowsIt) {
  MakeSite("windows/Moved/Shop");
  const MappedDrives drives(U("C: ") + Native("windows"));
  desk.folderToPick = Native("windows/Moved/Shop");
  dialogs.ExpectMessage(U("Web path not found please provide the path"), MessageAnswer::Yes);
  OpenProject();
  const QString moved = U("C:\\Moved\\Shop");
  EXPECT_EQ(Column("Select Path from Project where IdProject = '2'", "Path"), QStringList{moved});
  EXPECT_EQ(Column("Select distinct TPath from Page where ProjectId = '2'", "TPath"),
            QStringList{moved});
  EXPECT_EQ(Column("Select PPath from CustomCD where ProjectId = '2'", "PPath"),
            QStringList{moved});
  EXPECT_EQ(desk.opened, moved + U("\\Files\\Home.htm"));
}

TEST_P(MappedDrive, AsksWhereTheDriveIsUnknown) {
  MakeSite("windows/sites/shop");
  dialogs.ExpectMessage(U("Web path not found please provide the path"), MessageAnswer::No);
  OpenProject();
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(desk.opened, QString());
}

INSTANTIATE_TEST_SUITE_P(Catalogues, MappedDrive,
                         testing::Values(CatalogueFormat::Sqlite, CatalogueFormat::Jet),
                         [](const auto &format) {
                           return format.param == CatalogueFormat::Jet ? "Jet" : "Sqlite";
                         });

}  // namespace
}  // namespace velor
