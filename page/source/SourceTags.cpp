// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceTags.h"

#include "page/source/SourceScan.h"
#include "page/text/HtmlElements.h"

#include <cstring>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velor {

namespace {

std::uint32_t KeyOf(QByteArrayView name) {
  return elements::NameKeyOf(std::string_view(name.data(), static_cast<std::size_t>(name.size())));
}

bool IsTextElement(QByteArrayView name) {
  const std::uint32_t key = KeyOf(name);
  return elements::IsOneOf(key, elements::RawElements) ||
         elements::IsOneOf(key, elements::TitleElements);
}

qsizetype Find(QByteArrayView source, char wanted, qsizetype from) {
  if (from >= source.size()) return -1;
  const void *found =
      std::memchr(source.data() + from, wanted, static_cast<std::size_t>(source.size() - from));
  return found == nullptr ? -1 : static_cast<const char *>(found) - source.data();
}

/// Behind `wanted`, or the end of the source.
qsizetype Behind(QByteArrayView source, QByteArrayView wanted, qsizetype from) {
  for (qsizetype at = Find(source, wanted.front(), from); at >= 0;
       at = Find(source, wanted.front(), at + 1)) {
    if (source.sliced(at).startsWith(wanted)) return at + wanted.size();
  }
  return source.size();
}

/// Behind the ">" of a tag; one in a quoted value does not count.
qsizetype BehindTag(QByteArrayView source, qsizetype from) {
  for (qsizetype at = from; at < source.size(); ++at) {
    const char letter = source[at];
    if (letter == '>') return at + 1;
    if (letter != '=') continue;
    while (at + 1 < source.size() && IsBlank(source[at + 1])) ++at;
    if (at + 1 < source.size() && (source[at + 1] == '"' || source[at + 1] == '\'')) {
      const qsizetype quote = Find(source, source[at + 1], at + 2);
      if (quote < 0) return source.size();
      at = quote;
    }
  }
  return source.size();
}

QByteArray NameAt(QByteArrayView source, qsizetype from) {
  qsizetype end = from;
  while (end < source.size() && !IsBlank(source[end]) && source[end] != '>' && source[end] != '/')
    ++end;
  return source.sliced(from, end - from).toByteArray().toLower();
}

/// Where the end tag of a text element begins, or the end of the source.
qsizetype EndOfText(QByteArrayView source, const QByteArray &name, qsizetype from) {
  for (qsizetype at = Find(source, '<', from); at >= 0; at = Find(source, '<', at + 1)) {
    if (at + 1 < source.size() && source[at + 1] == '/' && NameAt(source, at + 2) == name)
      return at;
  }
  return source.size();
}

/// The tag that begins at "<"; nothing where that is text.
std::optional<SourceTag> TagAt(QByteArrayView source, qsizetype begin) {
  const char next = begin + 1 < source.size() ? source[begin + 1] : '\0';
  if (IsLetter(next)) {
    return SourceTag{SourceTag::Kind::Start, NameAt(source, begin + 1), begin,
                     BehindTag(source, begin + 1)};
  }
  if (next == '/') {
    if (begin + 2 < source.size() && IsLetter(source[begin + 2]))
      return SourceTag{SourceTag::Kind::End, NameAt(source, begin + 2), begin,
                       BehindTag(source, begin + 2)};
    return SourceTag{SourceTag::Kind::Other, {}, begin, Behind(source, ">", begin)};
  }
  if (source.sliced(begin).startsWith("<!--"))
    return SourceTag{SourceTag::Kind::Other, {}, begin, Behind(source, "-->", begin + 2)};
  if (next == '!' || next == '?')
    return SourceTag{SourceTag::Kind::Other, {}, begin, Behind(source, ">", begin)};
  return std::nullopt;
}

/// The tag that closes the start tag last given to it, or opened the end tag.
std::optional<SourceTag> StartTagOf(QByteArrayView source, const SourceTag &end) {
  std::vector<SourceTag> open;
  VisitTags(source.first(end.begin), [&](const SourceTag &tag) {
    if (tag.name != end.name) return true;
    if (tag.kind == SourceTag::Kind::Start) open.push_back(tag);
    if (tag.kind == SourceTag::Kind::End && !open.empty()) open.pop_back();
    return true;
  });
  if (open.empty()) return std::nullopt;
  return open.back();
}

}  // namespace

std::vector<SourceStretch> FoldableStretches(QByteArrayView source) {
  struct Open {
    std::uint32_t name;
    qsizetype begin;
  };
  std::vector<Open> open;
  // How many of each are open, so that a stray end tag costs no search.
  std::unordered_map<std::uint32_t, int> counts;
  std::vector<SourceStretch> stretches;
  VisitTags(source, [&](const SourceTag &tag) {
    const std::uint32_t name = KeyOf(tag.name);
    if (tag.kind == SourceTag::Kind::Other) stretches.push_back({tag.begin, tag.end});
    if (tag.kind == SourceTag::Kind::Start && !IsVoidElement(tag.name)) {
      open.push_back({name, tag.begin});
      ++counts[name];
    }
    if (tag.kind != SourceTag::Kind::End || counts[name] == 0) return true;
    for (bool isFound = false; !isFound; open.pop_back()) {
      isFound = open.back().name == name;
      --counts[open.back().name];
      if (isFound) stretches.push_back({open.back().begin, tag.end});
    }
    return true;
  });
  return stretches;
}

bool IsVoidElement(QByteArrayView name) {
  return elements::IsOneOf(KeyOf(name), elements::VoidElements);
}

void VisitTags(QByteArrayView source, const std::function<bool(const SourceTag &)> &visit) {
  for (qsizetype at = Find(source, '<', 0); at >= 0;) {
    const std::optional<SourceTag> tag = TagAt(source, at);
    if (tag && !visit(*tag)) return;
    qsizetype next = tag ? tag->end : at + 1;
    const bool opensText = tag && tag->kind == SourceTag::Kind::Start && IsTextElement(tag->name);
    if (opensText) next = EndOfText(source, tag->name, next);
    if (tag && tag->kind == SourceTag::Kind::Start && tag->name == "plaintext") return;
    at = Find(source, '<', next);
  }
}

std::optional<TagPair> MatchingTags(QByteArrayView source, qsizetype position) {
  std::optional<TagPair> pair;
  int depth = 0;
  VisitTags(source, [&](const SourceTag &tag) {
    if (!pair) {
      if (tag.begin > position) return false;
      if (position < tag.end && tag.kind != SourceTag::Kind::Other) pair = TagPair{tag, {}};
      return !pair || (tag.kind == SourceTag::Kind::Start && !IsVoidElement(tag.name));
    }
    if (tag.name != pair->own.name) return true;
    if (tag.kind == SourceTag::Kind::Start) ++depth;
    if (tag.kind == SourceTag::Kind::End && depth-- == 0) pair->other = tag;
    return !pair->other.has_value();
  });
  if (pair && pair->own.kind == SourceTag::Kind::End) pair->other = StartTagOf(source, pair->own);
  return pair;
}

}  // namespace velor
