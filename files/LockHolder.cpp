// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/LockHolder.h"

#include "platform/Words.h"

#include <QFile>
#include <QStringList>

#include <sys/stat.h>
#include <unistd.h>

namespace velor {

namespace {

QString ReadSystemFile(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
}

}  // namespace

QString LockHolder(const QString &nativePath) {
  struct stat status {};
  if (stat(QFile::encodeName(nativePath).constData(), &status) != 0) return {};
  // Not asked of the file itself: closing it once more would drop the locks of this process.
  const QString locks = ReadSystemFile(QStringLiteral("/proc/locks"));
  const QString inode = u':' + QString::number(status.st_ino);
  for (const QString &line : locks.split(u'\n')) {
    // "1: POSIX ADVISORY WRITE 1234 fd:01:5678 0 EOF"; a waiting process has "->" after the number.
    const QStringList fields = line.simplified().split(u' ');
    constexpr int Process = 4;
    constexpr int Place = 5;
    if (fields.size() <= Place || !fields[Place].endsWith(inode)) continue;
    if (fields[Process].toLongLong() <= 0 || fields[Process].toLongLong() == getpid()) continue;
    const QString name =
        ReadSystemFile(QStringLiteral("/proc/%1/comm").arg(fields[Process])).trimmed();
    if (!name.isEmpty()) return Words::tr("%1 (process %2)").arg(name, fields[Process]);
  }
  return {};
}

}  // namespace velor
