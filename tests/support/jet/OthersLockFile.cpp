// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/OthersLockFile.h"

#include <QFile>

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace velor::fixture {

namespace {

constexpr int NameBytes = 32;
constexpr off_t FirstLock = 0x10000001;

}  // namespace

void OthersLockFile::WriteSlots(const QList<QByteArray> &names) const {
  QFile file(path_);
  if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("the lock file");
  for (const QByteArray &name : names) file.write(name.leftJustified(NameBytes, '\0'));
}

void OthersLockFile::Hold(int slot) {
  if (holder_ < 0) holder_ = open(path_.toLocal8Bit().constData(), O_RDWR | O_CLOEXEC);
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  lock.l_start = FirstLock + slot;
  lock.l_len = 1;
  if (fcntl(holder_, F_OFD_SETLK, &lock) != 0) throw std::runtime_error("the lock");
}

void OthersLockFile::Release() {
  if (holder_ >= 0) close(holder_);
  holder_ = -1;
}

}  // namespace velor::fixture
