// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/ProgramFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

namespace velor {

namespace {

/// A folder without any write bit counts as read-only for the superuser too.
bool IsWritable(const QString &folder) {
  const QByteArray name = QFile::encodeName(folder);
  struct stat status = {};
  if (stat(name.constData(), &status) != 0 || !S_ISDIR(status.st_mode)) return false;
  constexpr mode_t AnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
  return (status.st_mode & AnyWriteBit) != 0 && access(name.constData(), W_OK | X_OK) == 0;
}

/// Whether the executable lies in the "bin" of a prefix that the program was installed to. Such a
/// folder is nobody's own, though the superuser may write there.
bool IsInstalled(const QString &executableFolder) {
  return QFileInfo(executableFolder + QStringLiteral("/../share/velor-web-creator")).isDir();
}

void FillWithSample(const QString &folder, const QString &executableFolder) {
  const QString sampleMaker = QDir(executableFolder).filePath(QStringLiteral("velor-sample-site"));
  if (QFileInfo(sampleMaker).isExecutable()) QProcess::execute(sampleMaker, {folder});
}

}  // namespace

QString InstalledProgramFolder() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return QDir::cleanPath(data + QStringLiteral("/velor-web-creator"));
}

QString PrepareProgramFolder(const QString &executableFolder) {
  const QString given = qEnvironmentVariable("VELOR_PROGRAM_FOLDER");
  if (!given.isEmpty()) return QDir::cleanPath(QDir(given).absolutePath());
  if (!IsInstalled(executableFolder) && IsWritable(executableFolder)) {
    return QDir::cleanPath(executableFolder);
  }
  QString folder = InstalledProgramFolder();
  if (!QFileInfo::exists(folder) && QDir().mkpath(folder)) {
    FillWithSample(folder, executableFolder);
  }
  return folder;
}

}  // namespace velor
