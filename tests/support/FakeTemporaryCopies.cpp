// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeTemporaryCopies.h"

namespace velor {

bool FakeTemporaryCopies::IsOwn(const QString &path) const {
  const auto copy = copies_.find(path);
  return copy != copies_.end() && files_.Content(path) == copy->second;
}

TemporaryCopies::Outcome FakeTemporaryCopies::Write(const QString &path, const QByteArray &content,
                                                    const QString &) {
  if (path.isEmpty()) return Outcome::NoPlace;
  const bool isThere = files_.FileExists(path) || files_.FolderExists(path);
  const bool hasPlace =
      isThere ? IsOwn(path) && !files_.IsReadOnly(path) : files_.FolderWritable(path);
  if (!hasPlace) return Outcome::NoPlace;
  try {
    files_.ReplaceAll(path, content);
  } catch (const RuntimeError &) {
    Remove(path);
    throw;
  }
  copies_[path] = content;
  return Outcome::Written;
}

void FakeTemporaryCopies::Remove(const QString &path) {
  if (IsOwn(path)) files_.Delete(path);
  copies_.erase(path);
}

}  // namespace velor
