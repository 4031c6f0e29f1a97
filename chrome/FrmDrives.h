// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DriveMap.h"

#include <QDialog>

class QComboBox;
class QPushButton;
class QTreeWidget;

namespace velor {

class Dialogs;

/// The window that edits the drive map: which folder here stands for which drive of another
/// computer. Ok writes the map's file, in which comments stay. An added drive is in use at once; a
/// removed or changed one keeps its old folder until the program ends, since open pages have paths
/// on it.
class FrmDrives final : public QDialog {
  Q_OBJECT

 public:
  /// `dialogs` shows the folder picker. `file` in native form; a missing file is made. Raises
  /// RuntimeError for a file that cannot be read.
  FrmDrives(Dialogs &dialogs, const QString &file, QWidget *parent = nullptr);

  /// Selects `letter` in the box of the drive to add.
  void AddDrive(QChar letter);

  /// Writes the file and closes. Raises RuntimeError where writing fails; the window stays open
  /// then.
  void accept() override;

 private:
  void BuildLayout();
  void Fill();
  void Add();
  void Remove();

  Dialogs &dialogs_;
  const QString file_;
  DriveMap map_;
  QComboBox *letter_ = nullptr;
  QTreeWidget *list_ = nullptr;
  QPushButton *remove_ = nullptr;
};

}  // namespace velor
