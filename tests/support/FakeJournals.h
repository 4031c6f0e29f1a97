// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"
#include "platform/ReplacedVersions.h"
#include "platform/RuntimeError.h"

#include <QStringList>

#include <map>
#include <optional>

namespace velor {

/// Journals in memory.
class FakeJournals : public Journals {
 public:
  QString ReasonUnavailable() override { return hindrance; }
  std::unique_ptr<Journal> Begin() override;
  std::vector<AbandonedPage> Abandoned() override;
  JournalReading Read(const QString &id) override;
  void Discard(const QString &id) override;

  // What tests do and read.
  /// As if the process had ended here and another had begun.
  void EndRun();
  void AddAbandoned(const JournalledPage &page);
  /// What the journals of this run hold, in the order in which they were begun.
  std::vector<JournalledPage> Written() const;
  QString hindrance;
  /// What Abandoned says of journals that nothing can be read of.
  QStringList defects;
  /// The last changes of every abandoned page are missing.
  bool endsAreMissing = false;
  /// Every Write raises this while it is set.
  std::optional<ErrorNumber> writeFailure;
  int syncs = 0;
  int compactings = 0;

 private:
  friend class FakeJournal;

  int begun_ = 0;
  std::map<int, JournalledPage> written_;
  std::map<int, JournalledPage> abandoned_;
};

/// Replaced versions in memory: "path: content".
class FakeReplacedVersions : public ReplacedVersions {
 public:
  QString Store(const QString &path, const QByteArray &content) override {
    if (failure) throw RuntimeError::Of(*failure, QStringLiteral("Store"), path);
    kept << path + QStringLiteral(": ") + QString::fromUtf8(content);
    return QStringLiteral("/kept/%1").arg(kept.size());
  }

  QStringList kept;
  std::optional<ErrorNumber> failure;
};

}  // namespace velor
