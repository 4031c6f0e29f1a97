// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetStorage.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace velor {

/// The file's pages as the running transaction sees them: its own changes over a bounded cache of
/// what the file holds. Pages are decoded here.
///
/// Invariant: a page that somebody holds does not change; changing it makes a new one.
class JetPager {
 public:
  using Changes = std::map<jet::PageNumber, std::shared_ptr<jet::Page>>;
  /// The transaction at one moment.
  struct Moment {
    Changes changes;
    jet::PageNumber pageCount = 0;
  };

  explicit JetPager(JetStorage &storage);

  /// Forgets everything: changes, cache and damage. `stamp` is the file as it is now.
  void Reset(const JetStamp &stamp);
  /// The file's state that the cache belongs to.
  const JetStamp &Stamp() const { return stamp_; }
  /// 0: pages are not encoded.
  void SetKey(quint32 key) { key_ = key; }

  /// A partial last page counts.
  jet::PageNumber PageCount() const { return now_.pageCount; }
  /// nullptr beyond the end.
  std::shared_ptr<const jet::Page> Read(jet::PageNumber number);

  /// The page to change, which must exist.
  jet::Page &Modify(jet::PageNumber number);
  /// A new page of zeros at the end. Raises DiskFull where the format ends.
  jet::PageNumber Append();

  const Moment &Now() const { return now_; }
  void Return(Moment moment);

  /// Undo goes back to here. Cheap: only the pages changed since are kept.
  void Mark();
  void Undo();

  /// The changes are in the file, which is now in the state of `stamp`.
  void Settle(const JetStamp &stamp);

  /// Encodes a page for the file, or decodes it.
  void ApplyKey(jet::PageNumber number, jet::Page &page) const;

  /// What is wrong with the file, for people; the first note stays.
  void NoteDamage(const QString &what);
  const QString &Damage() const { return damage_; }

 private:
  struct Cached {
    jet::PageNumber number = 0;
    std::shared_ptr<const jet::Page> page;
  };

  JetStorage &storage_;
  JetStamp stamp_;
  quint32 key_ = 0;
  Moment now_;
  /// Since the mark: pages as they were (nullptr: not changed before).
  std::vector<std::pair<jet::PageNumber, std::shared_ptr<jet::Page>>> undo_;
  jet::PageNumber markedPageCount_ = 0;
  /// A page has one place, its number modulo the size.
  std::vector<Cached> cache_;
  QString damage_;
};

}  // namespace velor
