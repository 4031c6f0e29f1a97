// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace velor {

/// What is no text in HTML source.
struct SourceTag {
  enum class Kind { Start, End, Other };  ///< Other: comments, doctypes, declarations

  Kind kind = Kind::Other;
  QByteArray name;  ///< lower case; empty for Other
  qsizetype begin = 0;
  qsizetype end = 0;  ///< behind the last byte

  bool operator==(const SourceTag &) const = default;
};

/// Tells the tags of UTF-8 source in their order, until `visit` answers false. What stands in
/// scripts, styles, text areas and the like is their text. Any bytes will do.
///
/// Beside TokenizeHtml (HtmlTokens.h) because it follows every keystroke of the source editor: it
/// reads the control's own bytes without a copy and passes over text, of which the tokenizer makes
/// tokens and keys. It knows no foreign content and no escapes of scripts; only saving needs them.
void VisitTags(QByteArrayView source, const std::function<bool(const SourceTag &)> &visit);

/// The tag that holds that byte and the one that closes or opens its element; the second is absent
/// for elements without content and for what is not closed. Nothing outside of tags.
struct TagPair {
  SourceTag own;
  std::optional<SourceTag> other;
};
std::optional<TagPair> MatchingTags(QByteArrayView source, qsizetype position);

/// From a tag to what closes it, or a comment: what can be folded away.
struct SourceStretch {
  qsizetype begin = 0;
  qsizetype end = 0;  ///< behind the last byte
};

/// Elements whose end tag is there, and comments, in the order of their ends. An end tag closes the
/// nearest element of its name and what was left open inside.
std::vector<SourceStretch> FoldableStretches(QByteArrayView source);

/// Whether elements of that name (lower case) have neither content nor end tag.
bool IsVoidElement(QByteArrayView name);

}  // namespace velor
