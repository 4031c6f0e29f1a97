// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/PageMasker.h"

#include "page/text/HtmlElements.h"
#include "page/text/HtmlTokens.h"
#include "page/text/MarkupScan.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace velor {

namespace {

using elements::IsOneOf;
using elements::NameKeyOf;

/// Elements that do not end a head.
constexpr std::uint32_t HeadElements[] = {
    elements::Html,        elements::Head,      NameKeyOf(u"title"),    NameKeyOf(u"meta"),
    NameKeyOf(u"link"),    NameKeyOf(u"base"),  NameKeyOf(u"basefont"), NameKeyOf(u"bgsound"),
    elements::Script,      NameKeyOf(u"style"), NameKeyOf(u"noscript"), NameKeyOf(u"template"),
    NameKeyOf(u"noframes")};

/// UTF-16 code units; what goes on for longer inside a tag is no server tag.
constexpr qsizetype LongestInnerTag = 2048;

}  // namespace

void PageMasker::Run() {
  while (at_ < source_.size()) {
    const qsizetype open = source_.indexOf(u'<', at_);
    const qsizetype end = open < 0 ? source_.size() : open;
    if (at_ < end)
      ReadText(end);
    else
      ReadMarkup();
  }
  LeaveOutTail();
  WriteMaskedText();
}

bool PageMasker::IsSpaceAt(qsizetype at) const {
  return at < source_.size() && IsMarkupSpace(source_[at]);
}

bool PageMasker::IsLetterAt(qsizetype at) const {
  if (at >= source_.size()) return false;
  const int code = source_[at].unicode() | 0x20;
  return code >= u'a' && code <= u'z';
}

qsizetype PageMasker::EndOfServerTag() const {
  qsizetype at = at_ + (source_.sliced(at_).startsWith(u"</") ? 2 : 1);
  const qsizetype nameStart = at;
  while (at < source_.size() && (source_[at].isLetterOrNumber() || source_[at] == u'-')) ++at;
  const bool isServerTag = at > nameStart && at + 1 < source_.size() && source_[at] == u':' &&
                           IsLetterAt(nameStart) && IsLetterAt(at + 1);
  if (!isServerTag) return at_;
  QChar quote;
  for (; at < source_.size(); ++at) {
    if (const qsizetype end = EndOfServerCode(source_, at); end > at) {
      at = end - 1;
      continue;
    }
    const QChar codeUnit = source_[at];
    if (!quote.isNull()) {
      if (codeUnit == quote) quote = QChar();
    } else if (codeUnit == u'"' || codeUnit == u'\'') {
      quote = codeUnit;
    } else if (codeUnit == u'>') {
      return at + 1;
    }
  }
  return at_;
}

qsizetype PageMasker::EndOfInnerServerTag(qsizetype at) const {
  static const QRegularExpression tag(QStringLiteral(
      R"(^</?[A-Za-z][\w-]*:[A-Za-z][\w.-]*(?:\s+[\w:.-]+\s*=\s*(?:"[^"]*"|'[^']*'))*\s*/?>)"));
  if (source_[at] != u'<') return at;
  const QStringView rest = source_.sliced(at, std::min(LongestInnerTag, source_.size() - at));
  const QStringView found = rest.first(std::max<qsizetype>(0, tag.match(rest).capturedLength()));
  // A name alone may be what an unclosed tag holds.
  const bool isWhole = found.startsWith(u"</") || found.endsWith(u"/>") || found.contains(u'=');
  return isWhole ? at + found.size() : at;
}

bool PageMasker::IsQuoteAhead(qsizetype at, QChar quote) const {
  const qsizetype most = std::min(at + LongestInnerTag, source_.size());
  for (; at < most && source_[at] != quote; ++at) {
    if (source_[at] != u'<') continue;
    const qsizetype end = std::max(EndOfServerCode(source_, at), EndOfInnerServerTag(at));
    if (end == at) return false;
    at = end - 1;
  }
  return at < most;
}

void PageMasker::Hide(qsizetype end, PageMask::Kind kind) {
  PageMask::Piece piece;
  piece.source = at_;
  piece.sourceLength = end - at_;
  piece.kind = kind;
  mask_.pieces_.push_back(piece);
  at_ = end;
}

void PageMasker::ReadText(qsizetype end) {
  const bool mayHaveSigns = isBeforeBody_ || isBehindEnd_ || places_.IsBetweenTableParts();
  const qsizetype sign = mayHaveSigns ? NextSign(end) : end;
  AccountForText(sign);
  at_ = sign;
  if (sign == end) return;
  // The text before the sign may have begun the body.
  if (IsNoPlaceForText())
    return Hide(signs_.EndOf(sign, SignPlace::BetweenTags), PageMask::Kind::Content);
  AccountForText(end);
  at_ = end;
}

bool PageMasker::IsNoPlaceForText() const {
  return places_.IsBetweenTableParts() || isBehindEnd_ || (isBeforeBody_ && LastFrameTag() > at_);
}

qsizetype PageMasker::NextSign(qsizetype end) {
  qsizetype at = at_;
  while (at < end && signs_.EndOf(at, SignPlace::BetweenTags) == at) ++at;
  return at;
}

qsizetype PageMasker::LastFrameTag() const {
  if (lastFrameTag_ > -2) return lastFrameTag_;
  static const QRegularExpression tag(
      QStringLiteral("<(?:!doctype|/?(?:html|head|body|frameset))\\b"),
      QRegularExpression::CaseInsensitiveOption);
  lastFrameTag_ = -1;
  for (auto found = tag.globalMatch(source_.toString()); found.hasNext();)
    lastFrameTag_ = found.next().capturedStart();
  return lastFrameTag_;
}

void PageMasker::AccountForText(qsizetype end) {
  if (end == at_ || std::all_of(source_.begin() + at_, source_.begin() + end, IsMarkupSpace)) {
    if (isBehindEnd_ && end > at_)
      tail_.push_back({at_, end - at_, 0, 0, PageMask::Kind::LeftOut, {}});
    return;
  }
  isBeforeBody_ = false;
  KeepTail();
}

void PageMasker::KeepTail() {
  isBehindEnd_ = false;
  tail_.clear();
}

void PageMasker::LeaveOutTail() {
  std::vector<PageMask::Piece> &pieces = mask_.pieces_;
  pieces.insert(pieces.end(), tail_.begin(), tail_.end());
  std::sort(pieces.begin(), pieces.end(),
            [](const PageMask::Piece &a, const PageMask::Piece &b) { return a.source < b.source; });
}

void PageMasker::ReadMarkup() {
  if (const qsizetype end = EndOfServerCode(source_, at_); end > at_)
    return Hide(end, PageMask::Kind::Content);
  const QChar next = at_ + 1 < source_.size() ? source_[at_ + 1] : QChar();
  if (source_.sliced(at_).startsWith(u"<!--")) {
    at_ = EndOfComment(source_, at_);
  } else if (const qsizetype tagEnd = EndOfServerTag(); tagEnd > at_ && IsNoPlaceForText()) {
    Hide(tagEnd, PageMask::Kind::Content);
  } else if (IsLetterAt(at_ + 1) || (next == u'/' && IsLetterAt(at_ + 2))) {
    ReadTag();
  } else if (next == u'!' || next == u'/' || next == u'?') {
    at_ = BehindNext(source_, u">", at_);
  } else if (const qsizetype end = signs_.EndOf(at_, SignPlace::BetweenTags);
             end > at_ && IsNoPlaceForText()) {
    Hide(end, PageMask::Kind::Content);
  } else {  // a sign of text
    AccountForText(at_ + 1);
    ++at_;
  }
}

bool PageMasker::IsControlSignAt(qsizetype at) {
  const QStringView rest = source_.sliced(at);
  for (const QStringView open :
       {QStringView(u"{%"), QStringView(u"{#"), QStringView(u"{{#"), QStringView(u"{{^"),
        QStringView(u"{{/"), QStringView(u"[#"), QStringView(u"#if")}) {
    if (rest.startsWith(open) && signs_.EndOf(at, SignPlace::InTag) > at) return true;
  }
  return false;
}

void PageMasker::ReadTag() {
  const qsizetype start = at_;
  const std::size_t firstPiece = mask_.pieces_.size();
  const bool isEndTag = source_[start + 1] == u'/';
  const qsizetype nameStart = isEndTag ? start + 2 : start + 1;
  qsizetype nameEnd = nameStart;
  while (nameEnd < source_.size() && !IsMarkupSpace(source_[nameEnd]) && source_[nameEnd] != u'>' &&
         source_[nameEnd] != u'/' && source_[nameEnd] != u'<' && !IsControlSignAt(nameEnd))
    ++nameEnd;
  const QStringView name = source_.sliced(nameStart, nameEnd - nameStart);
  at_ = nameEnd;
  AccountForTag(name, isEndTag);
  ReadAttributes(name);
  if (isEndTag) return;
  if (name.compare(u"noscript", Qt::CaseInsensitive) == 0) {
    HideNoscript(start, firstPiece);
    return;
  }
  const std::uint32_t key = HtmlNameKey(name);
  if (IsOneOf(key, elements::RawElements) || IsOneOf(key, elements::TitleElements))
    ReadRawText(name);
  if (key == elements::Plaintext) at_ = source_.size();
}

void PageMasker::AccountForTag(QStringView name, bool isEndTag) {
  const std::uint32_t key = HtmlNameKey(name);
  if (isEndTag)
    places_.EndTag(key);
  else
    places_.StartTag(key);
  const bool isPagesEnd = isEndTag && (key == elements::Body || key == elements::Html);
  if (isPagesEnd || (!isEndTag && !IsOneOf(key, HeadElements))) isBeforeBody_ = false;
  const bool isWhole =
      at_ < source_.size() && (IsMarkupSpace(source_[at_]) || source_[at_] == u'>');
  if (isPagesEnd && isWhole)
    isBehindEnd_ = true;
  else
    KeepTail();
}

void PageMasker::ReadAttributes(QStringView name) {
  const bool isTemplate = name.compare(u"template", Qt::CaseInsensitive) == 0;
  TagState tag;
  tag.nameEnd = at_;
  while (at_ < source_.size()) {
    if (HideInTag(tag)) continue;
    const QChar codeUnit = source_[at_++];
    if (!tag.quote.isNull()) {
      if (codeUnit == tag.quote) tag = {tag.nameEnd, QChar(), false};
    } else if (codeUnit == u'>') {
      return;
    } else if (codeUnit == u'=') {
      tag.isValue = true;
      while (IsSpaceAt(at_)) ++at_;
      if (at_ < source_.size() && (source_[at_] == u'"' || source_[at_] == u'\''))
        tag.quote = source_[at_++];
    } else if (IsMarkupSpace(codeUnit)) {
      tag.isValue = false;
      if (isTemplate) HideShadowRoot();
    }
  }
}

bool PageMasker::HideInTag(const TagState &tag) {
  const bool isInValue = tag.isValue || !tag.quote.isNull();
  qsizetype end = source_[at_] == u'<' ? EndOfServerCode(source_, at_) : at_;
  if (source_.sliced(at_).startsWith(u"<!--#")) end = BehindNext(source_, u"-->", at_);
  const bool isCode = end > at_;
  if (!isCode) end = EndOfSignInTag(tag);
  if (end == at_) return false;
  // A sign within an attribute's name stays one name with what stands before it.
  const QChar before = source_[at_ - 1];
  const bool isJoined = !isCode && at_ > tag.nameEnd && !IsMarkupSpace(before) && before != u'"' &&
                        before != u'\'' && before != u'/';
  Hide(end, isInValue  ? PageMask::Kind::InTag
            : isJoined ? PageMask::Kind::NamePart
                       : PageMask::Kind::AttributeName);
  return true;
}

qsizetype PageMasker::EndOfSignInTag(const TagState &tag) {
  const qsizetype signEnd = signs_.EndOf(at_, SignPlace::InTag);
  const qsizetype end = std::max(signEnd, EndOfInnerServerTag(at_));
  const QStringView sign = source_.sliced(at_, end - at_);
  if (!tag.quote.isNull()) {
    const bool isOne = sign.contains(tag.quote) && (end == signEnd || IsQuoteAhead(end, tag.quote));
    return isOne ? end : at_;
  }
  if (!tag.isValue) return end;
  const bool endsValue = std::any_of(sign.begin(), sign.end(), [](QChar codeUnit) {
    return IsMarkupSpace(codeUnit) || codeUnit == u'>';
  });
  return endsValue ? end : at_;
}

bool PageMasker::HideShadowRoot() {
  for (const QStringView name : {QStringView(u"shadowrootmode"), QStringView(u"shadowroot")}) {
    const QStringView rest = source_.sliced(at_);
    if (!rest.startsWith(name, Qt::CaseInsensitive)) continue;
    const QChar next = rest.size() > name.size() ? rest[name.size()] : QChar(u' ');
    if (!IsMarkupSpace(next) && next != u'=' && next != u'>' && next != u'/') continue;
    Hide(at_ + name.size(), PageMask::Kind::InTag);
    return true;
  }
  return false;
}

bool PageMasker::HideNoscript(qsizetype start, std::size_t firstPiece) {
  // Looked for once, not once for each of many that are never closed.
  if (noscriptClose_ < at_) noscriptClose_ = EndTagFrom(u"noscript", at_);
  if (noscriptClose_ >= source_.size()) return false;
  mask_.pieces_.resize(firstPiece);
  at_ = start;
  Hide(BehindNext(source_, u">", noscriptClose_), PageMask::Kind::Content);
  return true;
}

qsizetype PageMasker::EndTagFrom(QStringView name, qsizetype from) const {
  for (qsizetype at = source_.indexOf(u"</", from); at >= 0; at = source_.indexOf(u"</", at + 2)) {
    if (!source_.sliced(at + 2).startsWith(name, Qt::CaseInsensitive)) continue;
    const qsizetype end = at + 2 + name.size();
    if (end >= source_.size()) break;
    if (IsMarkupSpace(source_[end]) || source_[end] == u'>' || source_[end] == u'/') return at;
  }
  return source_.size();
}

void PageMasker::ReadRawText(QStringView name) {
  for (;;) {
    const qsizetype close = EndTagFrom(name, at_);
    qsizetype code = source_.indexOf(u'<', at_);
    qsizetype codeEnd = code;
    while (code >= 0 && code < close) {
      codeEnd = EndOfServerCode(source_, code);
      if (codeEnd > close) break;
      code = source_.indexOf(u'<', std::max(codeEnd, code + 1));
    }
    if (code < 0 || code >= close || close >= source_.size()) {
      at_ = close;
      return;
    }
    at_ = code;
    Hide(codeEnd, PageMask::Kind::InTag);
  }
}

void PageMasker::WriteMaskedText() {
  QString &masked = mask_.masked_;
  if (mask_.pieces_.empty()) {
    masked = source_.toString();
    return;
  }
  // A word of this page's own, which the source does not have: a mask that gets into another page
  // must not stand for anything there.
  mask_.stem_ = QStringLiteral("velor-code-%1-").arg(qHash(source_, std::size_t{0}), 0, 36);
  while (source_.contains(mask_.stem_, Qt::CaseInsensitive)) mask_.stem_ += u'x';
  qsizetype done = 0;
  for (std::size_t number = 0; number < mask_.pieces_.size(); ++number) {
    PageMask::Piece &piece = mask_.pieces_[number];
    masked += source_.sliced(done, piece.source - done);
    piece.masked = masked.size();
    piece.text = source_.sliced(piece.source, piece.sourceLength).toString();
    const QString word = mask_.WordOf(number);
    switch (piece.kind) {
      case PageMask::Kind::Content:
        masked += QStringLiteral("<!--") + word + QStringLiteral("-->");
        break;
      case PageMask::Kind::AttributeName:
        masked += u' ' + word;  // behind a tag's name it must not become part of it
        break;
      case PageMask::Kind::NamePart:
      case PageMask::Kind::InTag:
        masked += word;
        break;
      case PageMask::Kind::LeftOut:
        break;
    }
    piece.maskedLength = masked.size() - piece.masked;
    done = piece.source + piece.sourceLength;
  }
  masked += source_.sliced(done);
}

}  // namespace velor
