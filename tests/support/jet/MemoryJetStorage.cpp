// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/MemoryJetStorage.h"

#include <algorithm>
#include <cstring>

namespace velor::fixture {

void MemoryJetStorage::ReadPage(jet::PageNumber number, jet::Page &page) {
  page.fill(0);
  const qint64 start = qint64{number} * jet::PageBytes;
  const qint64 length = std::min<qint64>(memory_.file.size() - start, jet::PageBytes);
  if (length > 0) std::memcpy(page.data(), memory_.file.constData() + start, length);
}

void MemoryJetStorage::WritePage(jet::PageNumber number, const jet::Page &page) {
  const qint64 start = qint64{number} * jet::PageBytes;
  if (memory_.file.size() < start + jet::PageBytes)
    memory_.file.append(start + jet::PageBytes - memory_.file.size(), QChar(0).toLatin1());
  std::memcpy(memory_.file.data() + start, page.data(), jet::PageBytes);
  ++memory_.modified;
  ++memory_.writes;
}

void MemoryJetStorage::Truncate(qint64 bytes) {
  memory_.file.truncate(bytes);
  ++memory_.modified;
  ++memory_.writes;
}

QString MemoryJetStorage::SetJournalAside() {
  memory_.journal.reset();
  return QStringLiteral("memory.mdb-journal.aside");
}

}  // namespace velor::fixture
