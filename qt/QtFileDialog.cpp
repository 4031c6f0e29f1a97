// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtFileDialog.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

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
  QFileDialog dialog(QApplication::activeWindow(),
                     isSave ? QStringLiteral("Save As") : QStringLiteral("Open"));
  dialog.setObjectName(QStringLiteral("CommonDialog1"));
  dialog.setAcceptMode(isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  const bool mustExist = !isSave && (Flags & FileMustExist) != 0;
  dialog.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (Flags & OverwritePrompt) == 0);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(Filter));
  if (isSave) dialog.setDefaultSuffix(DefaultSuffix(Filter));
  const QFileInfo held(ToNative(FileName));
  if (!FileName.isEmpty() && held.dir().exists()) {
    dialog.setDirectory(held.dir());
    dialog.selectFile(held.fileName());
  } else {
    dialog.setDirectory(QDir::homePath());
  }

  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    if (CancelError) {
      throw RuntimeError::Of(ErrorNumber::DialogCancelled, QStringLiteral("FileDialog"));
    }
    return {};
  }
  FileName = ToLogic(QDir::cleanPath(dialog.selectedFiles().constFirst()));
  return FileName;
}

}  // namespace velor
