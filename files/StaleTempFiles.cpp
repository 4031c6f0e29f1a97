// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/StaleTempFiles.h"

#include "files/FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <ctime>
#include <dirent.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velor {

namespace {

constexpr std::string_view Prefix = ".velor-";
constexpr std::string_view Suffix = ".tmp";
constexpr std::size_t MostDigits = 16;
/// Seconds. Only its age protects a temporary file between its creation and its lock, and between
/// the end of the lock and the renaming.
constexpr time_t Young = 60;

bool IsTempName(std::string_view name) {
  if (!name.starts_with(Prefix) || !name.ends_with(Suffix)) return false;
  const std::size_t around = Prefix.size() + Suffix.size();
  if (name.size() <= around || name.size() > around + MostDigits) return false;
  const std::string_view digits = name.substr(Prefix.size(), name.size() - around);
  return digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

bool IsStale(int folder, const char *name) {
  const FileDescriptor file(openat(folder, name, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) return false;
  const bool isOwn = S_ISREG(status.st_mode) && status.st_nlink == 1 && status.st_uid == geteuid();
  return isOwn && status.st_mtime < time(nullptr) - Young &&
         flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

QString NewTempName(const QString &folder) {
  const QString digits = QString::number(QRandomGenerator::system()->generate64(), 16);
  return folder + u'/' + QLatin1String(Prefix.data()) + digits + QLatin1String(Suffix.data());
}

void MarkTempInUse(int file) {
  flock(file, LOCK_EX | LOCK_NB);
}

void RemoveStaleTempFiles(const QString &folder, FileCalls &calls) {
  // Reads names only, without a stat of each entry: a folder may hold a great many.
  const auto close = [](DIR *directory) { closedir(directory); };
  const std::unique_ptr<DIR, decltype(close)> directory(
      opendir(QFile::encodeName(folder).constData()), close);
  if (directory == nullptr) return;
  while (const dirent *entry = readdir(directory.get())) {
    if (!IsTempName(entry->d_name) || !IsStale(dirfd(directory.get()), entry->d_name)) continue;
    calls.Unlink(QFile::encodeName(folder + u'/' + QFile::decodeName(entry->d_name)).constData());
  }
}

}  // namespace velor
