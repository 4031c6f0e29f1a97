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
  void Rest() override { ++journals_.rests; }
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
  for (const auto &[number, page] : abandoned_) pages.push_back({QString::number(number), page});
  return pages;
}

void FakeJournals::Discard(const QString &id) {
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
