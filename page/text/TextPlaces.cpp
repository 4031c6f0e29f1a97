// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/TextPlaces.h"

#include "page/text/HtmlElements.h"

#include <algorithm>

namespace velor {

namespace {

using elements::IsOneOf;
using elements::NameKeyOf;

constexpr std::uint32_t TableElement = NameKeyOf(u"table");
/// Parts of a table in which text may stand.
constexpr std::uint32_t Cells[] = {NameKeyOf(u"td"), NameKeyOf(u"th"), NameKeyOf(u"caption")};
constexpr std::uint32_t Rows[] = {NameKeyOf(u"tr"),    NameKeyOf(u"tbody"), NameKeyOf(u"thead"),
                                  NameKeyOf(u"tfoot"), NameKeyOf(u"col"),   NameKeyOf(u"colgroup")};
/// Elements that a parser leaves between the parts of a table, and whose text it does not move.
constexpr std::uint32_t Closed[] = {elements::Script, NameKeyOf(u"style"), NameKeyOf(u"form")};

bool HoldsText(std::uint32_t name) {
  return !IsOneOf(name, elements::VoidElements) && !IsOneOf(name, Closed);
}

}  // namespace

void TextPlaces::StartTag(std::uint32_t name) {
  if (name == TableElement) {
    // A table between the parts of another one ends it.
    if (IsBetweenTableParts()) tables_.pop_back();
    tables_.emplace_back();
    return;
  }
  if (tables_.empty()) return;
  Table &table = tables_.back();
  if (IsOneOf(name, Cells) || IsOneOf(name, Rows))
    table = {IsOneOf(name, Cells), 0};
  else if (!table.isInCell && HoldsText(name))
    ++table.misplaced;
}

void TextPlaces::EndTag(std::uint32_t name) {
  if (tables_.empty()) return;
  Table &table = tables_.back();
  if (name == TableElement)
    tables_.pop_back();
  else if (IsOneOf(name, Cells) || IsOneOf(name, Rows))
    table = {};
  else if (!table.isInCell && HoldsText(name))
    table.misplaced = std::max(0, table.misplaced - 1);
}

bool TextPlaces::IsBetweenTableParts() const {
  return !tables_.empty() && !tables_.back().isInCell && tables_.back().misplaced == 0;
}

}  // namespace velor
