// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TemporaryCopies.h"
#include "tests/support/FakeFiles.h"

#include <map>

namespace velor {

/// Temporary copies among files in memory.
class FakeTemporaryCopies final : public TemporaryCopies {
 public:
  explicit FakeTemporaryCopies(FakeFiles &files) : files_(files) {}

  Outcome Write(const QString &path, const QByteArray &content, const QString &page) override;
  void Remove(const QString &path) override;
  void RemoveAbandoned() override {}

 private:
  /// Whether what is there is what was written last.
  bool IsOwn(const QString &path) const;

  FakeFiles &files_;
  std::map<QString, QByteArray> copies_;
};

}  // namespace velor
