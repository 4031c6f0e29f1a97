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
    memory_.file = memory_.file.leftJustified(start + jet::PageBytes, '\0');
  std::memcpy(memory_.file.data() + start, page.data(), jet::PageBytes);
  Touch();
}

void MemoryJetStorage::Truncate(qint64 bytes) {
  memory_.file.truncate(bytes);
  Touch();
}

void MemoryJetStorage::PinModificationTime(std::optional<qint64> nanoseconds) {
  kept_ = nanoseconds;
  if (!kept_) ++memory_.modified;
}

void MemoryJetStorage::Touch() {
  ++memory_.writes;
  memory_.modified = kept_.value_or(memory_.modified + 1);
}

QString MemoryJetStorage::SetJournalAside() {
  memory_.journal.reset();
  return QStringLiteral("memory.mdb-journal.aside");
}

}  // namespace velor::fixture
