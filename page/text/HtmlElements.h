// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <type_traits>

// Elements that a parser treats in special ways, as keys of their names (NameKeyOf).
namespace velor::elements {

template <std::size_t Count>
bool IsOneOf(std::uint32_t name, const std::uint32_t (&names)[Count]) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// A hash of a name in lower case, never 0; HtmlToken::name and the lists below hold such keys.
template <typename Unit>
constexpr std::uint32_t NameKeyOf(std::basic_string_view<Unit> name) {
  std::uint32_t key = 2166136261U;
  for (const Unit unit : name) key = (key ^ std::make_unsigned_t<Unit>(unit)) * 16777619U;
  return key | 1U;
}
inline constexpr std::uint32_t NameKeyOf(std::u16string_view name) {
  return NameKeyOf<char16_t>(name);
}

inline constexpr std::uint32_t Script = NameKeyOf(u"script");
inline constexpr std::uint32_t Plaintext = NameKeyOf(u"plaintext");
inline constexpr std::uint32_t Svg = NameKeyOf(u"svg");
inline constexpr std::uint32_t Math = NameKeyOf(u"math");
inline constexpr std::uint32_t Font = NameKeyOf(u"font");
/// Elements whose text has neither references nor tags.
inline constexpr std::uint32_t RawElements[] = {Script,
                                                NameKeyOf(u"style"),
                                                NameKeyOf(u"xmp"),
                                                NameKeyOf(u"iframe"),
                                                NameKeyOf(u"noembed"),
                                                NameKeyOf(u"noframes")};
/// Elements whose text has references but no tags.
inline constexpr std::uint32_t TitleElements[] = {NameKeyOf(u"title"), NameKeyOf(u"textarea")};
/// Elements behind whose start tag a parser drops one line break.
inline constexpr std::uint32_t BreakDroppers[] = {NameKeyOf(u"pre"), NameKeyOf(u"listing"),
                                                  NameKeyOf(u"textarea")};
/// Elements of foreign content whose inside is HTML again.
inline constexpr std::uint32_t IntegrationPoints[] = {NameKeyOf(u"foreignobject"),
                                                      NameKeyOf(u"desc"),
                                                      NameKeyOf(u"title"),
                                                      NameKeyOf(u"mi"),
                                                      NameKeyOf(u"mo"),
                                                      NameKeyOf(u"mn"),
                                                      NameKeyOf(u"ms"),
                                                      NameKeyOf(u"mtext"),
                                                      NameKeyOf(u"annotation-xml")};
/// HTML elements that end foreign content.
inline constexpr std::uint32_t Breakouts[] = {
    NameKeyOf(u"b"),      NameKeyOf(u"big"),     NameKeyOf(u"blockquote"), NameKeyOf(u"body"),
    NameKeyOf(u"br"),     NameKeyOf(u"center"),  NameKeyOf(u"code"),       NameKeyOf(u"dd"),
    NameKeyOf(u"div"),    NameKeyOf(u"dl"),      NameKeyOf(u"dt"),         NameKeyOf(u"em"),
    NameKeyOf(u"embed"),  NameKeyOf(u"h1"),      NameKeyOf(u"h2"),         NameKeyOf(u"h3"),
    NameKeyOf(u"h4"),     NameKeyOf(u"h5"),      NameKeyOf(u"h6"),         NameKeyOf(u"head"),
    NameKeyOf(u"hr"),     NameKeyOf(u"i"),       NameKeyOf(u"img"),        NameKeyOf(u"li"),
    NameKeyOf(u"menu"),   NameKeyOf(u"listing"), NameKeyOf(u"meta"),       NameKeyOf(u"nobr"),
    NameKeyOf(u"ol"),     NameKeyOf(u"p"),       NameKeyOf(u"pre"),        NameKeyOf(u"ruby"),
    NameKeyOf(u"s"),      NameKeyOf(u"small"),   NameKeyOf(u"span"),       NameKeyOf(u"strong"),
    NameKeyOf(u"strike"), NameKeyOf(u"sub"),     NameKeyOf(u"sup"),        NameKeyOf(u"table"),
    NameKeyOf(u"tt"),     NameKeyOf(u"u"),       NameKeyOf(u"ul"),         NameKeyOf(u"var")};
// The blocks, each in one of three lists; together they are those of engine/bridge/page/dom.js.
/// Common blocks before which the end tag of a paragraph may be left out. A table is none of them:
/// in quirks mode it does not end a paragraph.
inline constexpr std::uint32_t ParagraphEnders[] = {
    NameKeyOf(u"address"), NameKeyOf(u"blockquote"), NameKeyOf(u"div"), NameKeyOf(u"dl"),
    NameKeyOf(u"form"),    NameKeyOf(u"h1"),         NameKeyOf(u"h2"),  NameKeyOf(u"h3"),
    NameKeyOf(u"h4"),      NameKeyOf(u"h5"),         NameKeyOf(u"h6"),  NameKeyOf(u"hr"),
    NameKeyOf(u"ol"),      NameKeyOf(u"pre"),        NameKeyOf(u"ul")};
inline constexpr std::uint32_t OtherCommonBlocks[] = {
    NameKeyOf(u"body"),    NameKeyOf(u"caption"), NameKeyOf(u"center"), NameKeyOf(u"dd"),
    NameKeyOf(u"dt"),      NameKeyOf(u"html"),    NameKeyOf(u"li"),     NameKeyOf(u"p"),
    NameKeyOf(u"section"), NameKeyOf(u"table"),   NameKeyOf(u"tbody"),  NameKeyOf(u"td"),
    NameKeyOf(u"tfoot"),   NameKeyOf(u"th"),      NameKeyOf(u"thead"),  NameKeyOf(u"tr")};
inline constexpr std::uint32_t OtherBlocks[] = {
    NameKeyOf(u"article"),    NameKeyOf(u"aside"),  NameKeyOf(u"col"),       NameKeyOf(u"colgroup"),
    NameKeyOf(u"details"),    NameKeyOf(u"dialog"), NameKeyOf(u"dir"),       NameKeyOf(u"fieldset"),
    NameKeyOf(u"figcaption"), NameKeyOf(u"figure"), NameKeyOf(u"footer"),    NameKeyOf(u"frameset"),
    NameKeyOf(u"header"),     NameKeyOf(u"legend"), NameKeyOf(u"listing"),   NameKeyOf(u"main"),
    NameKeyOf(u"menu"),       NameKeyOf(u"nav"),    NameKeyOf(u"plaintext"), NameKeyOf(u"summary"),
    NameKeyOf(u"xmp")};
/// Whether the element's tags show in which letter case an author writes.
inline bool IsCommonBlock(std::uint32_t name) {
  return IsOneOf(name, ParagraphEnders) || IsOneOf(name, OtherCommonBlocks);
}
inline bool IsBlock(std::uint32_t name) {
  return IsCommonBlock(name) || IsOneOf(name, OtherBlocks);
}
inline constexpr std::uint32_t Html = NameKeyOf(u"html");
inline constexpr std::uint32_t Head = NameKeyOf(u"head");
inline constexpr std::uint32_t Body = NameKeyOf(u"body");
inline constexpr std::uint32_t Title = NameKeyOf(u"title");
/// Elements without content and end tag.
inline constexpr std::uint32_t VoidElements[] = {
    NameKeyOf(u"area"),  NameKeyOf(u"base"), NameKeyOf(u"basefont"), NameKeyOf(u"bgsound"),
    NameKeyOf(u"br"),    NameKeyOf(u"col"),  NameKeyOf(u"embed"),    NameKeyOf(u"frame"),
    NameKeyOf(u"hr"),    NameKeyOf(u"img"),  NameKeyOf(u"input"),    NameKeyOf(u"keygen"),
    NameKeyOf(u"link"),  NameKeyOf(u"meta"), NameKeyOf(u"param"),    NameKeyOf(u"source"),
    NameKeyOf(u"track"), NameKeyOf(u"wbr")};

}  // namespace velor::elements
