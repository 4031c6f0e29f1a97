// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeFiles.h"

#include <utility>

namespace velor {

namespace {

/// The folder that a path lies in, without a trailing separator; the root is the empty text.
QString FolderOf(const QString &path) {
  return path.left(qMax(path.lastIndexOf(u'\\'), 0));
}

QString WithoutTrailingSeparator(const QString &folder) {
  return folder.endsWith(u'\\') ? folder.chopped(1) : folder;
}

bool IsSame(const QString &left, const QString &right) {
  return left.compare(right, Qt::CaseInsensitive) == 0;
}

}  // namespace

void FakeFiles::AddFolder(const QString &path) {
  const QString folder = WithoutTrailingSeparator(path);
  folders_.insert(folder);
  if (folder.contains(u'\\')) AddFolder(FolderOf(folder));
}

void FakeFiles::AddFile(const QString &path, const QByteArray &content) {
  AddFolder(FolderOf(path));
  files_[path] = content;
}

void FakeFiles::MakeReadOnly(const QString &path) {
  readOnly_.insert(path);
}

void FakeFiles::MakeFolderUnwritable(const QString &folder) {
  unwritableFolders_.insert(WithoutTrailingSeparator(folder));
}

std::optional<QByteArray> FakeFiles::Content(const QString &path) const {
  const auto file = files_.find(path);
  if (file == files_.end()) return std::nullopt;
  return file->second;
}

QStringList FakeFiles::Paths() const {
  QStringList paths;
  for (const auto &[path, content] : files_) paths += path;
  return paths;
}

QString FakeFiles::FindFile(const QString &path, NameOrigin origin) const {
  if (origin == NameOrigin::Chosen || files_.contains(path)) return path;
  for (const auto &[name, content] : files_) {
    if (IsSame(name, path)) return name;
  }
  return path;
}

bool FakeFiles::FileExists(const QString &path, NameOrigin origin) const {
  return files_.contains(FindFile(path, origin));
}

bool FakeFiles::FolderExists(const QString &path, NameOrigin origin) const {
  if (path.isEmpty()) return false;
  const QString wanted = WithoutTrailingSeparator(path);
  if (folders_.contains(wanted)) return true;
  if (origin == NameOrigin::Chosen) return false;
  for (const QString &folder : folders_) {
    if (IsSame(folder, wanted)) return true;
  }
  return false;
}

void FakeFiles::RaiseUnlessFile(const QString &path, const QString &operation) const {
  if (files_.contains(path)) return;
  ErrorNumber number = ErrorNumber::FileNotFound;
  if (folders_.contains(path)) number = ErrorNumber::PathFileAccess;
  if (!folders_.contains(FolderOf(path))) number = ErrorNumber::PathNotFound;
  throw RuntimeError::Of(number, operation, path);
}

bool FakeFiles::IsReadOnly(const QString &path) const {
  RaiseUnlessFile(path, QStringLiteral("IsReadOnly"));
  return readOnly_.contains(path);
}

bool FakeFiles::IsSameFile(const QString &one, const QString &other) const {
  return one == other && files_.contains(one);
}

bool FakeFiles::FolderWritable(const QString &path) const {
  const QString folder = FolderOf(path);
  return folders_.contains(folder) && !unwritableFolders_.contains(folder);
}

QDateTime FakeFiles::ChangeTime(const QString &path) const {
  return FileExists(path) ? changeTime : QDateTime();
}

QByteArray FakeFiles::ReadAll(const QString &path, NameOrigin origin) const {
  const QString operation = QStringLiteral("ReadAll");
  calls_ += operation + u' ' + path;
  const QString found = FindFile(path, origin);
  RaiseUnlessFile(found, operation);
  return files_.at(found);
}

void FakeFiles::ReplaceAll(const QString &path, const QByteArray &content) {
  const QString operation = QStringLiteral("ReplaceAll");
  calls_ += operation + u' ' + path;
  std::optional<ErrorNumber> failure = std::exchange(nextWriteFailure_, std::nullopt);
  const bool isNew = !files_.contains(path);
  if (!folders_.contains(FolderOf(path))) failure = ErrorNumber::PathNotFound;
  if (folders_.contains(path) || readOnly_.contains(path) || (isNew && !FolderWritable(path))) {
    failure = failure.value_or(ErrorNumber::PathFileAccess);
  }
  if (failure) throw RuntimeError::Of(*failure, operation, path);
  files_[path] = content;
}

bool FakeFiles::CreateNew(const QString &path, const QByteArray &content) {
  if (files_.contains(path) || folders_.contains(path)) return false;
  ReplaceAll(path, content);
  return true;
}

void FakeFiles::Delete(const QString &path) {
  const QString operation = QStringLiteral("Delete");
  calls_ += operation + u' ' + path;
  RaiseUnlessFile(path, operation);
  files_.erase(path);
  readOnly_.erase(path);
}

}  // namespace velor
