// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtFileDialog.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QTreeView>

#include <algorithm>
#include <memory>

namespace velor {

namespace {

QStringList Patterns(const QString &list) {
  QStringList patterns;
  for (const QString &part : list.split(u';', Qt::SkipEmptyParts)) {
    const QString pattern = part.trimmed();
    // The classic pattern for every file, names without a dot included.
    patterns << (pattern == QStringLiteral("*.*") ? QStringLiteral("*") : pattern);
  }
  return patterns;
}

/// Room for the name, size, type and date of a file.
constexpr QSize FirstSize(860, 540);
constexpr int NarrowestName = 200;

/// Widens the columns behind the name to what they show, and gives the name the rest.
void FitColumns(QTreeView &list) {
  QHeaderView &header = *list.header();
  const QAbstractItemView &items = list;
  int others = 0;
  for (int column = 1; column < header.count(); ++column) {
    const int needed = std::max(items.sizeHintForColumn(column), header.sectionSizeHint(column));
    if (header.sectionSize(column) < needed) header.resizeSection(column, needed);
    others += header.sectionSize(column);
  }
  header.resizeSection(0, std::max(NarrowestName, list.viewport()->width() - others));
}

/// Makes the dialog's first folder readable; later the widths are the person's.
void FitFirstFolder(QFileDialog &dialog) {
  dialog.resize(dialog.size().expandedTo(FirstSize).boundedTo(dialog.screen()->availableSize()));
  auto *list = dialog.findChild<QTreeView *>(QStringLiteral("treeView"));
  auto *files = dialog.findChild<QFileSystemModel *>();
  // The desktop's own dialog has neither.
  if (list == nullptr || files == nullptr) return;
  const QString first = dialog.directory().absolutePath();
  auto once = std::make_shared<QMetaObject::Connection>();
  *once = QObject::connect(files, &QFileSystemModel::directoryLoaded, list,
                           [list, first, once](const QString &path) {
                             if (path != first) return;
                             QObject::disconnect(*once);
                             FitColumns(*list);
                           });
}

/// The folder of a file, or the nearest one above it that is there: a name in a folder that is
/// missing leaves the person near by.
QDir NearestFolder(const QFileInfo &file) {
  QString folder = file.absolutePath();
  while (!QFileInfo::exists(folder)) folder = QFileInfo(folder).absolutePath();
  return QDir(folder);
}

/// QFileDialog takes quotation marks for those around several names. Here one within a name is part
/// of it; a name in quotation marks is still the name between them.
class OneFileDialog final : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  /// The file chosen; empty for none.
  QString Chosen() const { return named_.isEmpty() ? selectedFiles().value(0) : named_; }

 protected:
  void accept() override {
    const auto *box = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    const QString name = box == nullptr ? QString() : box->text();
    if (!name.contains(u'"')) return QFileDialog::accept();
    QFileInfo file(directory(), name);
    if (acceptMode() == AcceptOpen) {
      if (!file.isFile()) return QFileDialog::accept();
    } else {
      const bool isQuoted = name.startsWith(u'"') && name.endsWith(u'"');
      if (isQuoted || file.isDir()) return QFileDialog::accept();
      if (file.suffix().isEmpty() && !defaultSuffix().isEmpty())
        file.setFile(file.filePath() + u'.' + defaultSuffix());
      if (!testOption(DontConfirmOverwrite) && file.exists() && !MayReplace(file.fileName()))
        return;
    }
    named_ = file.filePath();
    done(Accepted);
  }

 private:
  bool MayReplace(const QString &name) {
    const QString question = Words::tr("%1 already exists.\nDo you want to replace it?");
    return QMessageBox::warning(this, windowTitle(), question.arg(name),
                                QMessageBox::Yes | QMessageBox::No,
                                QMessageBox::No) == QMessageBox::Yes;
  }

  QString named_;
};

}  // namespace

QStringList NameFilters(const QString &filter) {
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
    QStringList patterns;
    for (const QString &pattern : Patterns(parts[index + 1])) {
      patterns << pattern << pattern.toLower() << pattern.toUpper();
    }
    patterns.removeDuplicates();
    filters << QStringLiteral("%1 (%2)").arg(parts[index], patterns.join(u' '));
  }
  return filters;
}

QString DefaultSuffix(const QString &filter) {
  static const QRegularExpression suffix(QStringLiteral(R"(^\*\.(\w+)$)"));
  for (const QString &pattern : Patterns(filter.section(u'|', 1, 1))) {
    const QRegularExpressionMatch match = suffix.match(pattern);
    if (match.hasMatch()) return match.captured(1);
  }
  return {};
}

QString QtFileDialog::ShowOpen() {
  return Show(Purpose::Open);
}

QString QtFileDialog::ShowSave() {
  return Show(Purpose::Save);
}

QString QtFileDialog::Show(Purpose purpose) {
  const bool isSave = purpose == Purpose::Save;
  OneFileDialog dialog(QApplication::activeWindow(),
                       isSave ? Words::tr("Save As") : Words::tr("Open"));
  dialog.setObjectName(QStringLiteral("CommonDialog1"));
  dialog.setAcceptMode(isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  const bool mustExist = !isSave && (Flags & FileMustExist) != 0;
  dialog.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (Flags & OverwritePrompt) == 0);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(Filter));
  if (isSave) dialog.setDefaultSuffix(DefaultSuffix(Filter));
  const QFileInfo held(ToNative(FileName));
  if (!FileName.isEmpty() && held.isAbsolute()) {
    dialog.setDirectory(NearestFolder(held));
    dialog.selectFile(held.fileName());
  } else {
    dialog.setDirectory(QDir::homePath());
  }
  FitFirstFolder(dialog);

  if (dialog.exec() != QDialog::Accepted || dialog.Chosen().isEmpty()) {
    if (CancelError) {
      throw RuntimeError::Of(ErrorNumber::DialogCancelled, QStringLiteral("FileDialog"));
    }
    return {};
  }
  FileName = ToLogic(QDir::cleanPath(dialog.Chosen()));
  return FileName;
}

}  // namespace velor
