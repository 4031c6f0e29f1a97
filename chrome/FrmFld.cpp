// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FrmFld.h"

#include "platform/Paths.h"
#include "platform/PlainTip.h"
#include "platform/Words.h"

#include <QApplication>
#include <QCheckBox>
#include <QCollator>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace velor {

namespace {

constexpr int PathRole = Qt::UserRole;

struct Drive {
  QString label;
  QString path;
};

/// Whether people keep files on the volume: false for mounts of the system and of temporary files.
bool HoldsPersonalFiles(const QStorageInfo &volume) {
  static const QList<QByteArray> systemTypes = {"tmpfs",    "ramfs", "overlay", "squashfs",
                                                "devtmpfs", "nsfs",  "efivarfs"};
  const QString path = volume.rootPath();
  return volume.isValid() && volume.isReady() && QFileInfo(path).isDir() &&
         !path.startsWith(QStringLiteral("/boot")) &&
         !systemTypes.contains(volume.fileSystemType());
}

/// The root, the home folder and the mounted volumes, each once.
std::vector<Drive> Drives() {
  const QString home = QDir::homePath();
  std::vector<Drive> drives = {{QDir::rootPath(), QDir::rootPath()}};
  if (home != QDir::rootPath()) drives.push_back({Words::tr("%1 (home)").arg(home), home});
  for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
    const QString path = volume.rootPath();
    const bool known = std::any_of(drives.begin(), drives.end(),
                                   [&path](const Drive &drive) { return drive.path == path; });
    if (!known && HoldsPersonalFiles(volume)) drives.push_back({path, path});
  }
  return drives;
}

/// A label for a path, as wide as the window leaves room for; a longer path is elided in the
/// middle.
class PathLine final : public QLabel {
 public:
  PathLine() { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); }

  void ShowPath(const QString &path) {
    whole_ = path;
    setToolTip(PlainTip(path));
    Elide();
  }

 protected:
  void resizeEvent(QResizeEvent *event) override {
    QLabel::resizeEvent(event);
    Elide();
  }

 private:
  void Elide() { setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, width())); }

  QString whole_;
};

/// Sorts by name with numbers by value (f2 before f10), letter case ignored.
void SortNaturally(QFileInfoList &folders) {
  // The C locale does not compare numbers in names by value.
  const QLocale locale;
  QCollator order(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  std::sort(folders.begin(), folders.end(), [&](const QFileInfo &one, const QFileInfo &other) {
    return order.compare(one.fileName(), other.fileName()) < 0;
  });
}

QTreeWidgetItem *NewFolderItem(const QString &name, const QString &path) {
  auto *item = new QTreeWidgetItem({name});
  item->setData(0, PathRole, path);
  item->setToolTip(0, PlainTip(path));
  item->setIcon(0, QApplication::style()->standardIcon(QStyle::SP_DirIcon));
  // Whether the folder has subfolders is found out when it is expanded: to know it before would
  // mean reading all subfolders.
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

}  // namespace

FrmFld::FrmFld(PickedFolders results, QWidget *parent)
    : QDialog(parent),
      results_(results),
      drives_(new QComboBox),
      folders_(new QTreeWidget),
      path_(new QLineEdit),
      hidden_(new QCheckBox(Words::tr("Show hidden folders"))),
      selected_(new PathLine) {
  setObjectName(QStringLiteral("FrmFld"));
  setWindowTitle(Words::tr("Select Folder"));

  drives_->setObjectName(QStringLiteral("Drive1"));
  drives_->setAccessibleName(Words::tr("Drive"));
  folders_->setObjectName(QStringLiteral("Dir1"));
  folders_->setAccessibleName(Words::tr("Folder"));
  folders_->setHeaderHidden(true);
  folders_->setUniformRowHeights(true);
  // As wide as the widest row, so that deep folders can be scrolled to.
  folders_->header()->setStretchLastSection(false);
  folders_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  folders_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  path_->setObjectName(QStringLiteral("txtPath"));
  path_->setAccessibleName(Words::tr("Path"));
  path_->setPlaceholderText(Words::tr("Type or paste a path"));
  hidden_->setObjectName(QStringLiteral("chkHidden"));
  selected_->setObjectName(QStringLiteral("lblSelected"));
  selected_->setAccessibleName(Words::tr("Selected folder"));
  selected_->setTextFormat(Qt::PlainText);

  auto *buttons = new QDialogButtonBox;
  ok_ = buttons->addButton(Words::tr("Ok"), QDialogButtonBox::AcceptRole);
  ok_->setObjectName(QStringLiteral("SSCommand1"));
  ok_->setAccessibleName(ok_->text());
  ok_->setDefault(true);
  auto *cancel = buttons->addButton(Words::tr("Cancel"), QDialogButtonBox::RejectRole);
  cancel->setObjectName(QStringLiteral("SSCommand2"));
  cancel->setAccessibleName(cancel->text());

  auto *driveLabel = new QLabel(Words::tr("Drive"));
  driveLabel->setBuddy(drives_);
  auto *folderLabel = new QLabel(Words::tr("Folder"));
  folderLabel->setBuddy(folders_);
  auto *pathLabel = new QLabel(Words::tr("Path"));
  pathLabel->setBuddy(path_);

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->setSpacing(6);
  layout->addWidget(driveLabel);
  layout->addWidget(drives_);
  layout->addSpacing(8);
  layout->addWidget(folderLabel);
  layout->addWidget(folders_, 1);
  layout->addWidget(hidden_);
  layout->addSpacing(8);
  layout->addWidget(pathLabel);
  layout->addWidget(path_);
  layout->addWidget(selected_);
  layout->addSpacing(8);
  layout->addWidget(buttons);
  resize(460, 560);

  connect(buttons, &QDialogButtonBox::accepted, this, &FrmFld::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &FrmFld::reject);
  connect(drives_, &QComboBox::currentIndexChanged, this, &FrmFld::ShowDrive);
  connect(folders_, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem *item) { FillFolders(*item); });
  connect(folders_, &QTreeWidget::currentItemChanged, this, &FrmFld::ShowSelected);
  connect(path_, &QLineEdit::textEdited, this, &FrmFld::SelectTypedPath);
  connect(hidden_, &QCheckBox::toggled, this, &FrmFld::ReloadFolders);

  FillDrives();
  SelectFolder(QDir::homePath());
  folders_->setFocus();
}

void FrmFld::FillDrives() {
  const QSignalBlocker blocker(drives_);
  for (const Drive &drive : Drives()) drives_->addItem(drive.label, drive.path);
}

void FrmFld::ShowDrive() {
  const QString path = drives_->currentData().toString();
  folders_->clear();
  QTreeWidgetItem *root = NewFolderItem(path, path);
  folders_->addTopLevelItem(root);
  root->setExpanded(true);
  folders_->setCurrentItem(root);
}

void FrmFld::FillFolders(QTreeWidgetItem &item) {
  if (item.childCount() > 0) return;
  const QDir folder(item.data(0, PathRole).toString());
  const QDir::Filters hidden = hidden_->isChecked() ? QDir::Hidden : QDir::Filters();
  QFileInfoList children =
      folder.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | hidden, QDir::Unsorted);
  SortNaturally(children);
  for (const QFileInfo &child : children) {
    item.addChild(NewFolderItem(child.fileName(), child.absoluteFilePath()));
  }
  if (children.isEmpty()) {
    item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
  }
}

void FrmFld::SelectFolder(const QString &nativePath) {
  const QString wanted = QDir::cleanPath(nativePath);
  const auto isWithin = [&wanted](const QString &folder) {
    return wanted == folder || wanted.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
  };
  int best = 0;
  for (int index = 1; index < drives_->count(); ++index) {
    const QString path = drives_->itemData(index).toString();
    if (isWithin(path) && path.size() > drives_->itemData(best).toString().size()) best = index;
  }
  {
    const QSignalBlocker blocker(drives_);
    drives_->setCurrentIndex(best);
  }
  ShowDrive();
  QTreeWidgetItem *item = folders_->topLevelItem(0);
  for (QTreeWidgetItem *next = item; next != nullptr;) {
    item = std::exchange(next, nullptr);
    item->setExpanded(true);
    for (int index = 0; index < item->childCount() && next == nullptr; ++index) {
      if (isWithin(item->child(index)->data(0, PathRole).toString())) next = item->child(index);
    }
  }
  folders_->setCurrentItem(item);
  folders_->scrollToItem(item, QAbstractItemView::PositionAtCenter);
}

void FrmFld::SelectTypedPath(const QString &text) {
  const QString native = ToNative(FromPeople(text.trimmed()));
  const bool isFolder = native.startsWith(u'/') && QFileInfo(native).isDir();
  if (isFolder) {
    const QSignalBlocker blocker(path_);
    SelectFolder(native);
    // SelectFolder wrote the clean path: keep what is being typed.
    path_->setText(text);
  }
  ok_->setEnabled(isFolder && QDir::cleanPath(native) == SelectedFolder());
}

void FrmFld::ReloadFolders() {
  const QString selected = SelectedFolder();
  if (!selected.isEmpty()) SelectFolder(selected);
}

void FrmFld::ShowSelected() {
  const QString folder = SelectedFolder();
  static_cast<PathLine *>(selected_)->ShowPath(folder);
  path_->setText(folder);
  ok_->setEnabled(!folder.isEmpty());
}

QString FrmFld::SelectedFolder() const {
  const QTreeWidgetItem *item = folders_->currentItem();
  return item != nullptr ? item->data(0, PathRole).toString() : QString();
}

void FrmFld::accept() {
  StoreResult(ToLogic(SelectedFolder()));
  QDialog::accept();
}

void FrmFld::reject() {
  StoreResult({});
  QDialog::reject();
}

void FrmFld::StoreResult(const QString &folder) {
  (ForProject ? results_.ProjectFolderResult : results_.ImageFolderPath) = folder;
}

}  // namespace velor
