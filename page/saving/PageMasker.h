// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageMask.h"
#include "page/text/TemplateSigns.h"
#include "page/text/TextPlaces.h"

#include <QStringView>

#include <vector>

namespace velor {

/// Builds a PageMask: walks through the page's source once, records the pieces to hide, and writes
/// the masked text. `at_` is where the walk is; functions that read move it behind what they read.
class PageMasker {
 public:
  PageMasker(const QString &source, PageMask &mask)
      : source_(source), mask_(mask), signs_(source) {}

  void Run();

 private:
  /// Where in a tag the walk is.
  struct TagState {
    qsizetype nameEnd = 0;
    QChar quote;           ///< of the value that the walk is in; null outside of quotes
    bool isValue = false;  ///< behind an "="
  };

  /// The offset behind the tag of a server's library (`<c:forEach ...>`, `</s:if>`) that begins at
  /// `at_`; `at_` itself where none does.
  qsizetype EndOfServerTag() const;
  /// The same inside another tag, where only a whole server tag is one.
  qsizetype EndOfInnerServerTag(qsizetype at) const;
  /// Whether a value in that quote ends as values do: the quote comes before any other tag.
  bool IsQuoteAhead(qsizetype at, QChar quote) const;
  bool IsSpaceAt(qsizetype at) const;
  bool IsLetterAt(qsizetype at) const;

  /// Records the source from `at_` to `end` as a piece to hide, and moves behind it.
  void Hide(qsizetype end, PageMask::Kind kind);

  // Text
  /// Reads text up to `end`, or up to the end of the first template sign in it that is to be
  /// hidden.
  void ReadText(qsizetype end);
  /// Whether a parser moves text that stands at `at_`, or makes it begin the body.
  bool IsNoPlaceForText() const;
  /// Where the next template sign begins; `end` where there is none before it.
  qsizetype NextSign(qsizetype end);
  /// Notes what the text from `at_` to `end` means for the places behind it. Blanks mean nothing,
  /// but behind the page's end they are candidates for being left out.
  void AccountForText(qsizetype end);
  /// Offset of the source's last tag of HTML, HEAD, BODY or FRAMESET, or doctype; -1 for a fragment
  /// without them, which has no place before its body.
  qsizetype LastFrameTag() const;

  // The blanks behind the page's end tags
  /// What follows is more than blanks: the page has not ended, and its blanks stay.
  void KeepTail();
  /// Leaves out the blanks behind the page's end tags.
  void LeaveOutTail();

  // Markup
  /// Reads what begins with the "<" at `at_`.
  void ReadMarkup();
  /// Reads a tag with the code in it, and the raw text behind it.
  void ReadTag();
  /// Whether a sign begins there that can be no part of a tag's name: `<tr{% if x %} class=a>`.
  bool IsControlSignAt(qsizetype at);
  /// Updates the places (before the body, in a table, behind the end) for a tag.
  void AccountForTag(QStringView name, bool isEndTag);
  /// Reads up to the tag's end.
  void ReadAttributes(QStringView name);
  /// Hides the server code or template sign that begins at `at_`; false where there is none.
  bool HideInTag(const TagState &tag);
  /// The offset behind the template sign at `at_` that is to be hidden; `at_` where there is none.
  /// A sign in a value stays, to be seen and edited there, unless a parser would end the value in
  /// it.
  qsizetype EndOfSignInTag(const TagState &tag);
  /// Hides the attribute at `at_` where it is the one that makes a TEMPLATE a shadow root.
  bool HideShadowRoot();
  /// Hides the NOSCRIPT element whose start tag, begun at `start`, was just read, instead of the
  /// pieces from `firstPiece` on in that tag; false where the element has no end tag.
  bool HideNoscript(qsizetype start, std::size_t firstPiece);
  /// Where the next end tag of that name begins; the text's end where there is none.
  qsizetype EndTagFrom(QStringView name, qsizetype from) const;
  /// Reads the content of a raw text element. Server code in it is text, and hidden only where it
  /// holds an end tag that would be taken for the element's.
  void ReadRawText(QStringView name);

  /// Writes the masked text, with a mask in the place of each piece.
  void WriteMaskedText();

  QStringView source_;
  PageMask &mask_;
  qsizetype at_ = 0;
  TextPlaces places_;
  TemplateSigns signs_;
  bool isBeforeBody_ = true;
  bool isBehindEnd_ = false;
  mutable qsizetype lastFrameTag_ = -2;  ///< -2: not yet looked for
  qsizetype noscriptClose_ = -1;         ///< the first end tag of a NOSCRIPT from some place on
  std::vector<PageMask::Piece> tail_;    ///< blanks behind the page's end tags
};

}  // namespace velor
