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

  /// Machine and user, one pair after another, of all who ever opened the database.
  void WriteSlots(const QList<QByteArray> &names) const;
  /// Says that the user of that slot, from 0, has the database open.
  void Hold(int slot);
  void Release();

 private:
  QString path_;
  int holder_ = -1;
};

}  // namespace velor::fixture
