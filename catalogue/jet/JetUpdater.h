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

/// Changes rows in the pager's pages. A row that has become too long for its page is moved to
/// another page of its table; its home slot then holds a pointer to it.
class JetUpdater {
 public:
  explicit JetUpdater(JetPager &pager) : pager_(pager) {}

  /// See JetFile::UpdateRow. What is refused for its value or column is refused before any page is
  /// changed; a damaged map or long value can show later.
  void Update(const JetTable &table, JetRowId row, const QList<JetAssignment> &assignments);

  /// Drops what is known of free room; to be called when changes have been undone.
  void ForgetRooms() { rooms_.clear(); }

 private:
  /// Pages that had room when they were last read; those before index `next` had too little.
  struct Room {
    std::vector<jet::PageNumber> pages;
    std::size_t next = 0;
  };

  /// Puts the bytes of a moved row on a page of its table.
  JetPlace Add(const JetTable &table, const QByteArray &row);
  /// A page of the table with that much room, a new one where there is none.
  jet::PageNumber FindRoom(const JetTable &table, int bytes);
  jet::PageNumber AppendPage(const JetTable &table);

  JetPager &pager_;
  std::map<jet::PageNumber, Room> rooms_;
};

}  // namespace velor
