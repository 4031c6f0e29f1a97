// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTable.h"

#include <QByteArray>
#include <QList>
#include <QVariant>

#include <map>
#include <vector>

namespace velor {

struct JetAssignment {
  /// Index into JetTable::columns.
  int column = 0;
  /// Text, or invalid for null.
  QVariant value;
};

/// Changes rows in the pager's pages. A row that no longer fits where it is moves to another page
/// of its table, and its home slot keeps the way there.
class JetUpdater {
 public:
  explicit JetUpdater(JetPager &pager) : pager_(pager) {}

  /// See JetFile::UpdateRow. What is refused for its value or column is refused before any page is
  /// changed; a damaged map or long value can show later.
  void Update(const JetTable &table, JetRowId row, const QList<JetAssignment> &assignments);

  /// Forgets where there is room; to be called when changes have been undone.
  void Forget() { rooms_.clear(); }

 private:
  /// Pages with room at the last look; those before `next` had too little.
  struct Room {
    std::vector<jet::PageNumber> pages;
    std::size_t next = 0;
  };

  JetPlace Add(const JetTable &table, const QByteArray &row);
  jet::PageNumber FindRoom(const JetTable &table, int bytes);
  jet::PageNumber AppendPage(const JetTable &table);

  JetPager &pager_;
  std::map<jet::PageNumber, Room> rooms_;
};

}  // namespace velor
