// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetBytes.h"

#include <QStringList>

#include <map>
#include <set>
#include <vector>

namespace velor::fixture {

enum class RowState { Live, Pointer, MovedHere, Deleted };

struct CheckedRow {
  int start = 0;
  int end = 0;
  RowState state = RowState::Live;
};

/// The pages of a file under examination, decoded; collects what is wrong.
class JetCheckedPages {
 public:
  explicit JetCheckedPages(const QByteArray &file);

  quint32 Count() const { return static_cast<quint32>(pages_.size()); }
  const QByteArray &At(quint32 page) const { return pages_[page]; }
  int TypeOf(quint32 page) const { return pages_[page][0]; }
  bool IsFree(quint32 page) const { return free_.count(page) != 0; }

  /// The rows of a page of rows; none of another page or a broken one (complained about once).
  const std::vector<CheckedRow> &RowsOf(quint32 page) const;
  /// The bytes of a row; empty with a complaint when there is no such row.
  QByteArray RowBytes(quint32 address, const QString &whose);
  /// The pages in the usage map at that address, none of which may lie beyond the file.
  std::set<quint32> MapMembers(quint32 address, const QString &whose);
  /// Notes that a page is in use, which it may be for one purpose only and not while free.
  void Use(quint32 page, const QString &purpose);

  void Complain(const QString &sentence) { complaints_ << sentence; }
  const QStringList &Complaints() const { return complaints_; }

 private:
  void CheckSlots(quint32 page);
  std::set<quint32> ReadMap(const QByteArray &map, const QString &whose);

  std::vector<QByteArray> pages_;
  std::map<quint32, std::vector<CheckedRow>> rows_;
  std::set<quint32> free_;
  std::map<quint32, QString> purposes_;
  QStringList complaints_;
};

}  // namespace velor::fixture
