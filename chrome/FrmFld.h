// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace velor {

/// Where the folder picker leaves its answer: one of the two, see FrmFld::ForProject.
struct PickedFolders {
  QString &ImageFolderPath;
  QString &ProjectFolderResult;
};

/// The folder picker: the drive, the tree of its folders, and a box for a path that is typed or
/// pasted. Its size does not depend on the names shown. Its answer is the chosen folder in logic
/// form, or the empty text when it was cancelled by its button, Escape or the close box. Of its two
/// results only the one that ForProject selects is written.
class FrmFld : public QDialog {
  Q_OBJECT

 public:
  /// The texts that `results` refers to outlive the picker.
  explicit FrmFld(PickedFolders results, QWidget *parent = nullptr);

  /// Selects the result to write: ProjectFolderResult when true, else ImageFolderPath.
  bool ForProject = false;

  /// Opens the tree down to a native folder and selects it, or the nearest folder above it that is
  /// there.
  void SelectFolder(const QString &nativePath);
  /// The selected folder in native form.
  QString SelectedFolder() const;

 public Q_SLOTS:
  void accept() override;
  void reject() override;

 private:
  void FillDrives();
  /// Shows the root of the chosen drive, expanded and selected.
  void ShowDrive();
  /// Adds the subfolders of an item that was expanded for the first time.
  void FillFolders(QTreeWidgetItem &item);
  /// Selects the folder that was typed into the path box; disables Ok while there is no such
  /// folder.
  void SelectTypedPath(const QString &text);
  /// Reads the folders again after "Show hidden folders" was switched.
  void ReloadFolders();
  /// Writes the selected folder to the path box and the line below it.
  void ShowSelected();
  void StoreResult(const QString &folder);

  PickedFolders results_;
  QComboBox *drives_;
  QTreeWidget *folders_;
  QLineEdit *path_;
  QCheckBox *hidden_;
  QLabel *selected_;
  QPushButton *ok_;
};

}  // namespace velor
