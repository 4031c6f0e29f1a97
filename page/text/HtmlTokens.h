// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <vector>

namespace velor {

enum class HtmlTokenKind : std::uint8_t {
  Doctype,
  Comment,   ///< bogus forms (`<?x>`, `<!x>`, `</ x>`) included, and what a parser drops (`</>`)
  StartTag,  ///< with the line break that a parser drops behind PRE, LISTING and TEXTAREA
  EndTag,
  Word,       ///< letters and digits; or one punctuation or East Asian character
  Blank,      ///< a run of blanks and tabs
  LineBreak,  ///< one; CR LF is one
  Raw,        ///< a line, or part of one, inside SCRIPT, STYLE and their like
};

/// A slice of a page's text and what it means. Two slices that a parser takes for the same have the
/// same key: `caf&eacute;` and `café`, `<P ALIGN=left>` and `<p align="left">`, CR LF and LF.
struct HtmlToken {
  std::uint64_t key = 0;
  /// HtmlNameKey of a tag's name; 0 for everything else.
  std::uint32_t name = 0;
  std::int32_t offset = 0;  ///< UTF-16 code units
  std::int32_t length = 0;
  HtmlTokenKind kind = HtmlTokenKind::Word;
  /// A tag, or a word of three or more characters: distinctive enough to align texts by.
  bool isStrong = false;
  /// A tag outside foreign content, from which tokenizing can start without what stands before.
  bool isFree = false;

  bool operator==(const HtmlToken &) const = default;

  std::int32_t End() const { return offset + length; }
  bool IsTag() const { return name != 0; }
  /// Text that a character reference may stand in.
  bool IsText() const {
    return kind == HtmlTokenKind::Word || kind == HtmlTokenKind::Blank ||
           kind == HtmlTokenKind::LineBreak;
  }
};

/// The key of a tag name in any letter case ("image" is "img").
std::uint32_t HtmlNameKey(QStringView name);

/// Where a text is from. In a serialisation a PLAINTEXT element has an end tag; in a page it never
/// ends.
enum class HtmlOrigin { Page, Serialisation };
/// Cuts a page's text into tokens, in order and without overlap; never raises, whatever the text.
/// Between two tokens are only characters that a parser drops (NULs). It follows the HTML
/// standard's tokenizer, with the states that its tree builder would choose: raw text elements,
/// script's escapes, foreign content. NOSCRIPT's content is markup, as where scripts are off.
std::vector<HtmlToken> TokenizeHtml(QStringView text, HtmlOrigin origin = HtmlOrigin::Page);

/// Incremental TokenizeHtml: reuses the tokens of `before` outside the one range that differs.
std::vector<HtmlToken> TokenizeHtmlLike(QStringView text, QStringView before,
                                        std::vector<HtmlToken> tokens,
                                        HtmlOrigin origin = HtmlOrigin::Page);

/// One attribute of a start tag: offsets into the page's text.
struct HtmlAttributeSlice {
  std::int32_t name = 0;
  std::int32_t nameLength = 0;
  /// The value as written, without its quotes; -1 for an attribute without a value.
  std::int32_t value = -1;
  std::int32_t valueLength = 0;
  /// After the value and its closing quote.
  std::int32_t end = 0;
  /// The quote sign, or 0.
  char16_t quote = 0;

  QStringView NameIn(QStringView html) const { return html.sliced(name, nameLength); }
  QStringView ValueIn(QStringView html) const {
    return value < 0 ? QStringView() : html.sliced(value, valueLength);
  }
};

/// A tag taken apart.
struct HtmlTagParts {
  std::int32_t name = 0;
  std::int32_t nameLength = 0;
  /// In source order, duplicates included (a parser takes the first).
  std::vector<HtmlAttributeSlice> attributes;
  /// Where the name or the last attribute ends.
  std::int32_t attributesEnd = 0;
  /// After the ">"; the text's end for a tag that never ends.
  std::int32_t end = 0;
  bool isSelfClosing = false;
  bool isClosed = false;
};

/// Takes the tag apart that begins at `offset` ("<" and a letter, or "</" and a letter).
HtmlTagParts ReadHtmlTag(QStringView html, qsizetype offset);

/// An attribute value as a parser understands it: references resolved, line breaks LF.
QString HtmlAttributeValue(QStringView slice);

}  // namespace velor
