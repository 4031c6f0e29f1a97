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
  /// The transaction's state at one moment.
  struct Moment {
    Changes changes;
    jet::PageNumber pageCount = 0;
  };

  explicit JetPager(JetStorage &storage);

  /// Drops changes, cache and damage, and begins with the file in the state of `stamp`.
  void Reset(const JetStamp &stamp);
  /// The file's state that the cache belongs to.
  const JetStamp &Stamp() const { return stamp_; }
  /// The key of encoded pages; 0 where pages are not encoded.
  void SetKey(quint32 key) { key_ = key; }

  /// Pages of the file with the transaction's changes; a partial last page counts.
  jet::PageNumber PageCount() const { return now_.pageCount; }
  /// A page, decoded; nullptr beyond the end.
  std::shared_ptr<const jet::Page> Read(jet::PageNumber number);

  /// A page for changing, which must exist. The reference is valid until the next call.
  jet::Page &Modify(jet::PageNumber number);
  /// A new page of zeros at the end. Raises DiskFull where the format ends.
  jet::PageNumber Append();

  const Moment &Now() const { return now_; }
  /// Goes back to a moment that Now answered, and sets the mark there.
  void GoBackTo(Moment moment);

  /// Sets the mark that Undo goes back to. It costs no copy: only pages changed since are kept.
  void Mark();
  void Undo();

  /// To be called when the changes have been written and the file is in the state of `stamp`: they
  /// become part of the cache.
  void NoteCommit(const JetStamp &stamp);

  /// Encodes a page for the file, or decodes it.
  void ApplyKey(jet::PageNumber number, jet::Page &page) const;

  /// Notes what is wrong with the file, in words for people; only the first note is kept.
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
  /// The pages changed since the mark, as they were then; nullptr for one without changes then.
  std::vector<std::pair<jet::PageNumber, std::shared_ptr<jet::Page>>> undo_;
  jet::PageNumber markedPageCount_ = 0;
  /// A page's place is its number modulo the size.
  std::vector<Cached> cache_;
  QString damage_;
};

}  // namespace velor
