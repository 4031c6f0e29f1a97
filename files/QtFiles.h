// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "platform/Files.h"

namespace velor {

/// The files of the system that the program runs on.
class QtFiles : public Files {
 public:
  /// `calls` outlives it.
  explicit QtFiles(FileCalls &calls = FileCalls::OfTheSystem()) : calls_(calls) {}

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
  FileCalls &calls_;
};

}  // namespace velor
