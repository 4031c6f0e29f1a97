// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetPager.h"

#include "catalogue/jet/JetCipher.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace velor {

namespace {

constexpr std::size_t CachedPages = 2048;
/// Pages of a file of 2 GB, the format's limit.
constexpr jet::PageNumber MaximumPages = 0x80000000 / jet::PageBytes;

}  // namespace

JetPager::JetPager(JetStorage &storage) : storage_(storage), cache_(CachedPages) {}

void JetPager::Reset(const JetStamp &stamp) {
  stamp_ = stamp;
  const qint64 pages = (stamp.bytes + jet::PageBytes - 1) / jet::PageBytes;
  now_ = {{}, static_cast<jet::PageNumber>(std::min<qint64>(pages, MaximumPages))};
  for (Cached &cached : cache_) cached.page.reset();
  damage_.clear();
  Mark();
}

std::shared_ptr<const jet::Page> JetPager::Read(jet::PageNumber number) {
  if (number >= now_.pageCount) return nullptr;
  if (const auto changed = now_.changes.find(number); changed != now_.changes.end()) {
    return changed->second;
  }
  Cached &cached = cache_[number % cache_.size()];
  if (!cached.page || cached.number != number) {
    auto page = std::make_shared<jet::Page>();
    storage_.ReadPage(number, *page);
    ApplyKey(number, *page);
    cached = {number, std::move(page)};
  }
  return cached.page;
}

jet::Page &JetPager::Modify(jet::PageNumber number) {
  const auto changed = now_.changes.find(number);
  const bool isNew = changed == now_.changes.end();
  const bool kept = std::any_of(undo_.begin(), undo_.end(),
                                [number](const auto &entry) { return entry.first == number; });
  if (!kept) undo_.emplace_back(number, isNew ? nullptr : changed->second);
  if (!isNew && changed->second.use_count() == 1) return *changed->second;
  auto copy = std::make_shared<jet::Page>(isNew ? *Read(number) : *changed->second);
  return *(now_.changes[number] = std::move(copy));
}

void JetPager::GoBackTo(Moment moment) {
  now_ = std::move(moment);
  Mark();
}

void JetPager::Mark() {
  undo_.clear();
  markedPageCount_ = now_.pageCount;
}

void JetPager::Undo() {
  for (auto &[number, page] : undo_) {
    if (page) {
      now_.changes[number] = std::move(page);
    } else {
      now_.changes.erase(number);
    }
  }
  now_.changes.erase(now_.changes.lower_bound(markedPageCount_), now_.changes.end());
  now_.pageCount = markedPageCount_;
  undo_.clear();
}

jet::PageNumber JetPager::Append() {
  if (now_.pageCount >= MaximumPages) {
    throw RuntimeError::Of(ErrorNumber::DiskFull, QStringLiteral("Database.Execute"),
                           storage_.Path());
  }
  const jet::PageNumber number = now_.pageCount++;
  now_.changes[number] = std::make_shared<jet::Page>();
  return number;
}

void JetPager::NoteCommit(const JetStamp &stamp) {
  stamp_ = stamp;
  for (auto &[number, page] : now_.changes) cache_[number % cache_.size()] = {number, page};
  now_.changes.clear();
  Mark();
}

void JetPager::ApplyKey(jet::PageNumber number, jet::Page &page) const {
  if (key_ != 0 && number != 0) ApplyRc4(key_ ^ number, page);
}

void JetPager::NoteDamage(const QString &what) {
  if (damage_.isEmpty()) damage_ = what;
}

}  // namespace velor
