// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace velor::fixture {

/// The lock file that other programs keep beside a database they have open.
class OthersLockFile {
 public:
  explicit OthersLockFile(const QString &path) : path_(path) {}
  ~OthersLockFile() { Release(); }
  Q_DISABLE_COPY_MOVE(OthersLockFile)

  /// Writes pairs of machine and user name, for everyone who ever opened the database.
  void WriteSlots(const QList<QByteArray> &names) const;
  /// Locks the byte of that slot (from 0): its user has the database open.
  void Hold(int slot);
  void Release();

 private:
  QString path_;
  int holder_ = -1;
};

}  // namespace velor::fixture
