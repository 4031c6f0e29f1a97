// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourcePlaces.h"

#include "page/source/SourceTags.h"

#include <algorithm>
#include <map>

namespace velor {

namespace {

/// Elements of a path; more would not make it more exact.
constexpr std::size_t MostElements = 8;
/// The longest name of a character reference has this many letters.
constexpr qsizetype LongestReference = 32;

/// The source of one character of the document: its bytes, and its UTF-16 code units in the text.
struct Piece {
  qsizetype bytes;
  int codeUnits;
};

bool IsReferenceLetter(char letter) {
  return (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'z') ||
         (letter >= 'A' && letter <= 'Z') || letter == '#';
}

qsizetype ReferenceLength(QByteArrayView text) {
  qsizetype at = 1;
  while (at < std::min(text.size(), LongestReference) && IsReferenceLetter(text[at])) ++at;
  return at > 1 && at < text.size() && text[at] == ';' ? at + 1 : 0;
}

Piece PieceAt(QByteArrayView text) {
  const char first = text.front();
  if (first == '\r' && text.size() > 1 && text[1] == '\n') return {2, 1};
  if (first == '&') {
    if (const qsizetype length = ReferenceLength(text)) return {length, 1};
  }
  const auto lead = static_cast<unsigned char>(first);
  if (lead < 0xC0) return {1, 1};
  if (lead < 0xE0) return {2, 1};
  return lead < 0xF0 ? Piece{3, 1} : Piece{4, 2};
}

int CodeUnitsOf(QByteArrayView text) {
  int codeUnits = 0;
  while (!text.isEmpty()) {
    const Piece piece = PieceAt(text);
    codeUnits += piece.codeUnits;
    text = text.sliced(std::min(piece.bytes, text.size()));
  }
  return codeUnits;
}

/// The bytes that `codeUnits` UTF-16 code units take, at most the whole text; `codeUnits` is
/// reduced by the code units passed.
qsizetype Advance(QByteArrayView text, int &codeUnits) {
  qsizetype at = 0;
  while (codeUnits > 0 && at < text.size()) {
    const Piece piece = PieceAt(text.sliced(at));
    codeUnits -= piece.codeUnits;
    at = std::min(at + piece.bytes, text.size());
  }
  return at;
}

std::optional<qsizetype> FindInBytes(QByteArrayView source, const ElementPlace &place) {
  const QByteArray name = place.name.toUtf8();
  int ordinal = place.ordinal;
  int left = place.offset;
  int depth = 0;
  qsizetype text = -1;  // where text of the element goes on; -1 before the element
  std::optional<qsizetype> found;
  VisitTags(source, [&](const SourceTag &tag) {
    if (text >= 0) {
      const qsizetype passed = Advance(source.sliced(text, tag.begin - text), left);
      if (left <= 0) found = text + passed;
      if (tag.name == name && tag.kind == SourceTag::Kind::Start) ++depth;
      const bool closes = tag.name == name && tag.kind == SourceTag::Kind::End && depth-- == 0;
      if (closes && !found) found = tag.begin;
      text = tag.end;
      return !found;
    }
    if (tag.kind == SourceTag::Kind::Start && tag.name == name && ordinal-- == 0) text = tag.end;
    if (text >= 0 && left == 0) found = text;
    return !found;
  });
  if (!found && text >= 0) found = text + Advance(source.sliced(text), left);
  return found;
}

struct OpenElement {
  QByteArray name;
  int ordinal;
  int codeUnitsBefore;
};

}  // namespace

std::optional<qsizetype> FindPlace(const QString &source, const ElementPlaces &places) {
  const QByteArray bytes = source.toUtf8();
  for (const ElementPlace &place : places) {
    if (const auto found = FindInBytes(bytes, place))
      return QString::fromUtf8(QByteArrayView(bytes).first(*found)).size();
  }
  return std::nullopt;
}

ElementPlaces PlacesAt(const QString &source, qsizetype position) {
  const QByteArray bytes = source.toUtf8();
  const qsizetype place = QStringView(source).first(position).toUtf8().size();
  std::map<QByteArray, int> counts;
  std::vector<OpenElement> open;
  int codeUnits = 0;
  qsizetype text = 0;
  VisitTags(bytes, [&](const SourceTag &tag) {
    if (tag.begin >= place) return false;
    codeUnits += CodeUnitsOf(QByteArrayView(bytes).sliced(text, tag.begin - text));
    text = tag.end;
    if (tag.kind == SourceTag::Kind::Start) {
      const int ordinal = counts[tag.name]++;
      const bool standsInside = !IsVoidElement(tag.name) || place < tag.end;
      if (standsInside) open.push_back({tag.name, ordinal, codeUnits});
    } else if (tag.kind == SourceTag::Kind::End && place >= tag.end) {
      const auto start = std::find_if(open.rbegin(), open.rend(), [&](const OpenElement &element) {
        return element.name == tag.name;
      });
      if (start != open.rend()) open.erase(std::prev(start.base()), open.end());
    }
    return true;
  });
  if (place > text) codeUnits += CodeUnitsOf(QByteArrayView(bytes).sliced(text, place - text));
  ElementPlaces places;
  for (auto element = open.rbegin(); element != open.rend() && places.size() < MostElements;
       ++element) {
    places.push_back(
        {QString::fromUtf8(element->name), element->ordinal, codeUnits - element->codeUnitsBefore});
  }
  return places;
}

}  // namespace velor
