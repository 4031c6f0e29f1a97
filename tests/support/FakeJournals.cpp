// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeJournals.h"

#include <utility>

namespace velor {

class FakeJournal final : public Journal {
 public:
  FakeJournal(FakeJournals &journals, int number) : journals_(journals), number_(number) {}

  void Write(const JournalledPage &page) override {
    if (journals_.writeFailure) {
      throw RuntimeError::Of(*journals_.writeFailure, QStringLiteral("Journal"));
    }
    journals_.written_[number_] = page;
  }
  void Sync() override { ++journals_.syncs; }
  void Compact() override { ++journals_.compactings; }
  void Remove() override { journals_.written_.erase(number_); }

 private:
  FakeJournals &journals_;
  const int number_;
};

std::unique_ptr<Journal> FakeJournals::Begin() {
  return std::make_unique<FakeJournal>(*this, ++begun_);
}

std::vector<AbandonedPage> FakeJournals::Abandoned() {
  std::vector<AbandonedPage> pages;
  for (const QString &defect : defects)
    pages.push_back({defect, {}, {}, {}, false, defect, RunEnd::Unforeseen});
  for (auto next = abandoned_.rbegin(); next != abandoned_.rend(); ++next) {
    const auto &[number, page] = *next;
    pages.push_back({QString::number(number),
                     page.path,
                     page.caption,
                     page.time,
                     page.source.has_value(),
                     {},
                     page.end});
  }
  return pages;
}

JournalReading FakeJournals::Read(const QString &id) {
  const auto found = abandoned_.find(id.toInt());
  if (found == abandoned_.end()) {
    throw RuntimeError::Of(ErrorNumber::PathFileAccess, QStringLiteral("Journal"));
  }
  return {found->second, endsAreMissing};
}

void FakeJournals::Discard(const QString &id) {
  if (defects.removeOne(id)) return;
  abandoned_.erase(id.toInt());
}

void FakeJournals::EndRun() {
  for (const auto &[number, page] : std::exchange(written_, {})) AddAbandoned(page);
}

void FakeJournals::AddAbandoned(const JournalledPage &page) {
  abandoned_[++begun_] = page;
}

std::vector<JournalledPage> FakeJournals::Written() const {
  std::vector<JournalledPage> pages;
  for (const auto &[number, page] : written_) pages.push_back(page);
  return pages;
}

}  // namespace velor
