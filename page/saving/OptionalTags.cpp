// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/OptionalTags.h"

#include "page/text/HtmlElements.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velor {

namespace {

using Number = std::int32_t;
using elements::NameKeyOf;

/// Maximum number of tokens that are looked at on each side of a place.
constexpr Number Sight = 4000;

/// Elements whose end tags authors leave out alike: each ends where one of them begins.
struct Kind {
  std::uint32_t names[2];
};
constexpr Kind Kinds[] = {{{NameKeyOf(u"li"), 0}},
                          {{NameKeyOf(u"dd"), NameKeyOf(u"dt")}},
                          {{NameKeyOf(u"td"), NameKeyOf(u"th")}},
                          {{NameKeyOf(u"tr"), 0}},
                          {{NameKeyOf(u"p"), 0}}};

const Kind *KindOf(const HtmlToken &token) {
  if (token.kind != HtmlTokenKind::EndTag || !token.isFree) return nullptr;
  const auto *found = std::find_if(std::begin(Kinds), std::end(Kinds), [&](const Kind &kind) {
    return elements::IsOneOf(token.name, kind.names);
  });
  return found == std::end(Kinds) ? nullptr : found;
}

bool EndsBefore(const Kind &kind, const HtmlToken &next) {
  if (next.kind == HtmlTokenKind::EndTag) return true;
  if (next.kind != HtmlTokenKind::StartTag) return false;
  return elements::IsOneOf(next.name, kind.names) ||
         (kind.names[0] == NameKeyOf(u"p") &&
          elements::IsOneOf(next.name, elements::ParagraphEnders));
}

/// What is read of the nearest token that something is read of.
std::optional<bool> Nearest(const TokenText &serialisation, Number number, const TagReader &read) {
  for (Number at = number - 1; at >= std::max<Number>(0, number - Sight); --at) {
    if (const auto found = read(at)) return found;
  }
  for (Number at = number + 1; at < std::min(serialisation.Count(), number + Sight); ++at) {
    if (const auto found = read(at)) return found;
  }
  return std::nullopt;
}

bool IsTbody(const HtmlToken &token) {
  constexpr Number LengthOfBareTag = 7;  // <tbody>
  const bool isBare = token.kind == HtmlTokenKind::EndTag || token.length == LengthOfBareTag;
  return token.name == NameKeyOf(u"tbody") && token.isFree && isBare;
}

/// Whether a parser implies a tag of TBODY: at a table's start, and before its end.
bool IsTbodyImplied(const TokenText &serialisation, Number number) {
  const auto is = [&](Number at, HtmlTokenKind kind, std::u16string_view name) {
    return at >= 0 && at < serialisation.Count() && serialisation.At(at).kind == kind &&
           serialisation.At(at).name == NameKeyOf(name);
  };
  if (serialisation.At(number).kind == HtmlTokenKind::EndTag)
    return is(number + 1, HtmlTokenKind::EndTag, u"table");
  Number before = number - 1;
  while (before >= 0 && (serialisation.At(before).kind == HtmlTokenKind::Blank ||
                         serialisation.At(before).kind == HtmlTokenKind::LineBreak))
    --before;
  return is(before, HtmlTokenKind::StartTag, u"table") &&
         is(number + 1, HtmlTokenKind::StartTag, u"tr");
}

}  // namespace

bool IsTagLeftOut(const TokenText &serialisation, Number number, const TagReader &isWritten) {
  const HtmlToken &token = serialisation.At(number);
  if (IsTbody(token)) {
    const auto read = [&](Number at) {
      const HtmlToken &other = serialisation.At(at);
      return IsTbody(other) && other.kind == token.kind ? isWritten(at) : std::nullopt;
    };
    return IsTbodyImplied(serialisation, number) &&
           !Nearest(serialisation, number, read).value_or(false);
  }
  const Kind *kind = KindOf(token);
  if (kind == nullptr || number + 1 == serialisation.Count() ||
      !EndsBefore(*kind, serialisation.At(number + 1)))
    return false;
  const auto readLike = [&](Number at) {
    return KindOf(serialisation.At(at)) == kind ? isWritten(at) : std::nullopt;
  };
  const auto readAny = [&](Number at) {
    return KindOf(serialisation.At(at)) != nullptr ? isWritten(at) : std::nullopt;
  };
  const auto like = Nearest(serialisation, number, readLike);
  return !(like ? like : Nearest(serialisation, number, readAny)).value_or(true);
}

}  // namespace velor
