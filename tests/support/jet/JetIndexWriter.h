// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetPageSet.h"

namespace velor::fixture {

struct IndexEntry {
  QByteArray key;
  quint32 address = 0;  ///< the row's home slot
};

/// A cell's key bytes. Numbers sort as the format has it. Texts do not: the format's collation keys
/// are not needed where only what entries point at is looked at, so folded UTF-16 stands in.
QByteArray IndexKey(const Cell &cell);

/// The pages of one index, leaves first; `first` is the root.
struct WrittenIndex {
  quint32 first = 0;
  std::set<quint32> owned;
};
WrittenIndex WriteIndex(JetPageSet &pages, quint32 definition,
                        const std::vector<IndexEntry> &entries);

}  // namespace velor::fixture
