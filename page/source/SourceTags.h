// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace velor {

/// Markup in HTML source: a tag, a comment, a doctype or a declaration. Offsets in bytes.
struct SourceTag {
  enum class Kind { Start, End, Other };  ///< Other: comments, doctypes, declarations

  Kind kind = Kind::Other;
  QByteArray name;  ///< lower case; empty for Other
  qsizetype begin = 0;
  qsizetype end = 0;  ///< behind the last byte

  bool operator==(const SourceTag &) const = default;
};

/// Calls `visit` with each tag of UTF-8 source, in order, until it answers false. The content of
/// scripts, styles, text areas and the like has no tags. Bytes that are no valid UTF-8 are
/// accepted.
///
/// It is not TokenizeHtml (HtmlTokens.h), since it runs after every keystroke in the source editor:
/// it reads the control's bytes without a copy and skips text, which the tokenizer cuts into
/// tokens. It knows neither foreign content nor the escapes of scripts; only saving needs those.
void VisitTags(QByteArrayView source, const std::function<bool(const SourceTag &)> &visit);

/// A tag and the other tag of its element, which elements without content and unclosed ones lack.
struct TagPair {
  SourceTag own;
  std::optional<SourceTag> other;
};
/// The pair of the tag that holds the byte at `position`; nothing outside of tags.
std::optional<TagPair> MatchingTags(QByteArrayView source, qsizetype position);

/// Bytes of source that can be folded away: an element with its tags, or a comment.
struct SourceStretch {
  qsizetype begin = 0;
  qsizetype end = 0;  ///< behind the last byte
};

/// All elements that have an end tag, and all comments, ordered by their ends. An end tag closes
/// the nearest open element of its name, and those left open inside.
std::vector<SourceStretch> FoldableStretches(QByteArrayView source);

/// Whether elements of that name (lower case) have neither content nor end tag.
bool IsVoidElement(QByteArrayView name);

}  // namespace velor
