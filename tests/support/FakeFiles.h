// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QStringList>

#include <map>
#include <optional>
#include <set>

namespace velor {

/// Files in memory, by logic path. There is the root folder "\"; AddFolder and AddFile make others,
/// with their parents. In a folder that was not made nothing can be written.
class FakeFiles : public Files {
 public:
  // What tests set up.
  void AddFolder(const QString &path);
  void AddFile(const QString &path, const QByteArray &content);
  void MakeReadOnly(const QString &path);
  void MakeFolderUnwritable(const QString &folder);
  /// The next ReplaceAll or CreateNew raises this and changes nothing.
  void FailNextWrite(ErrorNumber number) { nextWriteFailure_ = number; }

  /// The time of every file's last change.
  QDateTime changeTime = QDateTime::fromMSecsSinceEpoch(0);

  /// What a file holds; nothing when there is none of exactly that name.
  std::optional<QByteArray> Content(const QString &path) const;
  /// The paths of all files, sorted.
  QStringList Paths() const;
  /// "ReadAll \a.htm", "ReplaceAll \a.htm", "Delete \a.htm" in the order of the calls.
  const QStringList &Calls() const { return calls_; }

  bool FileExists(const QString &path, NameOrigin origin = NameOrigin::Chosen) const override;
  bool FolderExists(const QString &path, NameOrigin origin = NameOrigin::Chosen) const override;
  bool IsReadOnly(const QString &path) const override;
  bool IsSameFile(const QString &one, const QString &other) const override;
  bool FolderWritable(const QString &path) const override;
  QDateTime ChangeTime(const QString &path) const override;
  QByteArray ReadAll(const QString &path, NameOrigin origin = NameOrigin::Chosen) const override;
  void ReplaceAll(const QString &path, const QByteArray &content) override;
  bool CreateNew(const QString &path, const QByteArray &content) override;
  void Delete(const QString &path) override;

 private:
  QString FindFile(const QString &path, NameOrigin origin) const;
  void RaiseUnlessFile(const QString &path, const QString &operation) const;

  std::map<QString, QByteArray> files_;
  std::set<QString> folders_ = {QString()};
  std::set<QString> readOnly_;
  std::set<QString> unwritableFolders_;
  std::optional<ErrorNumber> nextWriteFailure_;
  mutable QStringList calls_;
};

}  // namespace velor
