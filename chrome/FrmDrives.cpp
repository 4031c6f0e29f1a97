// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FrmDrives.h"

#include "chrome/FrmFld.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/PlainTip.h"
#include "platform/Words.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace velor {

FrmDrives::FrmDrives(Dialogs &dialogs, const QString &file, QWidget *parent)
    : QDialog(parent), dialogs_(dialogs), file_(file), map_(ReadDriveMapFile(file)) {
  setObjectName(QStringLiteral("FrmDrives"));
  setWindowTitle(Words::tr("Drives of Other Computers"));
  BuildLayout();
  Fill();
}

void FrmDrives::BuildLayout() {
  auto *text = new QLabel(
      Words::tr("Catalogues and pages from other computers name drives. Each drive listed "
                "here stands for a folder of this computer. A drive that is removed stays in "
                "use until the program ends."));
  text->setWordWrap(true);
  list_ = new QTreeWidget;
  list_->setObjectName(QStringLiteral("lstDrives"));
  list_->setAccessibleName(Words::tr("Drives"));
  list_->setHeaderLabels({Words::tr("Drive"), Words::tr("Folder")});
  list_->setRootIsDecorated(false);
  list_->header()->setStretchLastSection(true);
  letter_ = new QComboBox;
  letter_->setObjectName(QStringLiteral("cobLetter"));
  letter_->setAccessibleName(Words::tr("Drive to add"));
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
    letter_->addItem(QString(QChar(letter)) + u':');
  letter_->setCurrentText(QStringLiteral("C:"));
  auto *add = new QPushButton(Words::tr("Add..."));
  add->setObjectName(QStringLiteral("cmdAdd"));
  remove_ = new QPushButton(Words::tr("Remove"));
  remove_->setObjectName(QStringLiteral("cmdRemove"));
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

  auto *line = new QHBoxLayout;
  line->addWidget(letter_);
  line->addWidget(add);
  line->addWidget(remove_);
  line->addStretch(1);
  auto *column = new QVBoxLayout(this);
  column->addWidget(text);
  column->addWidget(list_, 1);
  column->addLayout(line);
  column->addWidget(buttons);
  resize(520, 360);

  connect(add, &QPushButton::clicked, this, &FrmDrives::Add);
  connect(remove_, &QPushButton::clicked, this, &FrmDrives::Remove);
  connect(list_, &QTreeWidget::currentItemChanged, this,
          [this] { remove_->setEnabled(list_->currentItem() != nullptr); });
  connect(buttons, &QDialogButtonBox::accepted, this, &FrmDrives::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &FrmDrives::reject);
}

void FrmDrives::Fill() {
  list_->clear();
  for (const DriveMap::Drive &drive : map_.Drives()) {
    const QString folder = drive.folder.isEmpty() ? QStringLiteral("/") : drive.folder;
    auto *row = new QTreeWidgetItem(list_, {QString(drive.letter) + u':', folder});
    row->setToolTip(1, PlainTip(folder));
  }
  remove_->setEnabled(list_->currentItem() != nullptr);
}

void FrmDrives::AddDrive(QChar letter) {
  letter_->setCurrentText(QString(letter.toUpper()) + u':');
}

void FrmDrives::Add() {
  QString imageFolder;
  QString folder;
  FrmFld picker({imageFolder, folder}, this);
  picker.ForProject = true;
  dialogs_.RunModal(picker);
  if (folder.isEmpty()) return;
  map_.Set(letter_->currentText().at(0), ToNative(folder));
  Fill();
}

void FrmDrives::Remove() {
  map_.Remove(list_->currentItem()->text(0).at(0));
  Fill();
}

void FrmDrives::accept() {
  WriteDriveMapFile(file_, map_);
  UseAddedDrives(map_);
  QDialog::accept();
}

}  // namespace velor
