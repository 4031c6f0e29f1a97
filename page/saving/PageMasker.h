// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageMask.h"
#include "page/text/TemplateSigns.h"
#include "page/text/TextPlaces.h"

#include <QStringView>

#include <vector>

namespace velor {

/// Walks through a page's source once, notes what a PageMask is to replace, and writes the masked
/// text.
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

  qsizetype EndOfServerCode(qsizetype at) const;
  qsizetype EndOfComment() const;
  bool IsSpaceAt(qsizetype at) const;
  bool IsLetterAt(qsizetype at) const;

  void Note(qsizetype end, PageMask::Kind kind);

  // Text
  void ReadText(qsizetype end);
  bool IsNoPlaceForText() const;
  qsizetype NextSign(qsizetype end);
  void TakeText(qsizetype end);
  qsizetype LastFrameTag() const;

  // The blanks behind the page's end tags
  void LeaveEnd();
  void LeaveOutTail();

  // Markup
  void ReadMarkup();
  void ReadTag();
  void FollowTag(QStringView name, bool isEndTag);
  void ReadAttributes(QStringView name);
  bool MaskInTag(const TagState &tag);
  qsizetype EndOfSignInTag(const TagState &tag);
  bool HideShadowRoot();
  bool HideNoscript(qsizetype start, std::size_t firstPiece);
  qsizetype CloseOf(QStringView name, qsizetype from) const;
  void ReadRawText(QStringView name);

  void Write();

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
