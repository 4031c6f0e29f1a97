// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/JetLockFile.h"

#include "platform/Words.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <fcntl.h>

namespace velor {

namespace {

constexpr off_t LockBase = 0x10000001;
constexpr qsizetype NameBytes = 32;
constexpr qsizetype SlotBytes = 2 * NameBytes;
constexpr qsizetype MaximumSlots = 255;

/// The path of the lock file beside a database; empty where there is none.
QString LockFileOf(const QString &databasePath) {
  const QFileInfo database(databasePath);
  const QString wanted = database.completeBaseName() + QStringLiteral(".ldb");
  const QStringList names = database.dir().entryList(QDir::Files | QDir::Hidden);
  for (const QString &name : names) {
    if (name.compare(wanted, Qt::CaseInsensitive) == 0) return database.dir().filePath(name);
  }
  return {};
}

QString NameAt(const QByteArray &slots, qsizetype at) {
  const QByteArray name = slots.mid(at, NameBytes);
  const qsizetype end = name.indexOf('\0');
  return QString::fromLocal8Bit(end < 0 ? name : name.left(end)).trimmed();
}

QString HolderAt(const QByteArray &slots, qsizetype slot) {
  const QString machine = NameAt(slots, slot * SlotBytes);
  const QString user = NameAt(slots, slot * SlotBytes + NameBytes);
  if (machine.isEmpty()) return user;
  return user.isEmpty() ? machine : Words::tr("%1 on %2").arg(user, machine);
}

/// The first lock of somebody else at or after `start`; l_type is F_UNLCK when there is none.
struct flock LockFrom(int descriptor, off_t start) {
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  lock.l_start = start;
  if (fcntl(descriptor, F_OFD_GETLK, &lock) != 0) lock.l_type = F_UNLCK;
  return lock;
}

/// Adjacent locks of one holder are one.
bool Covers(const struct flock &lock, off_t byte) {
  return byte >= lock.l_start && (lock.l_len == 0 || byte < lock.l_start + lock.l_len);
}

}  // namespace

QString JetLockHolders(const QString &databasePath) {
  const QString path = LockFileOf(databasePath);
  if (path.isEmpty()) return {};
  QFile file(path);
  // A lock on the whole file would have to be a writer's, so that it is asked for by one.
  if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
      !file.open(QIODevice::ReadOnly)) {
    return Words::tr("another program (its lock file %1 cannot be read)").arg(path);
  }
  const QByteArray slots = file.read(MaximumSlots * SlotBytes);
  QStringList holders;
  bool locked = false;
  for (struct flock lock = LockFrom(file.handle(), slots.size()); lock.l_type != F_UNLCK;) {
    locked = true;
    for (qsizetype slot = 0; slot < slots.size() / SlotBytes; ++slot) {
      if (Covers(lock, LockBase + slot)) holders += HolderAt(slots, slot);
    }
    if (lock.l_len == 0) break;
    lock = LockFrom(file.handle(), lock.l_start + lock.l_len);
  }
  holders.removeAll(QString());
  holders.removeDuplicates();
  if (!locked) return {};
  return holders.isEmpty() ? Words::tr("another program") : holders.join(QStringLiteral(", "));
}

}  // namespace velor
