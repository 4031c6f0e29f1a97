// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/PageMask.h"

#include "page/text/HtmlElements.h"
#include "page/text/HtmlTokens.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace velor {

namespace {

bool IsLetter(QChar unit) {
  const int code = unit.unicode() | 0x20;
  return code >= u'a' && code <= u'z';
}

bool IsSpace(QChar unit) {
  return unit == u' ' || unit == u'\n' || unit == u'\t' || unit == u'\r' || unit == u'\f';
}

/// The end of what `close` ends, or the text's end.
qsizetype After(QStringView text, QStringView close, qsizetype from) {
  const qsizetype found = text.indexOf(close, from);
  return found < 0 ? text.size() : found + close.size();
}

}  // namespace

/// Walks through a source and notes what is to be masked.
class PageMasker {
 public:
  PageMasker(const QString &source, PageMask &mask) : source_(source), mask_(mask) {}

  void Run() {
    while (at_ < source_.size()) {
      const qsizetype open = source_.indexOf(u'<', at_);
      TextUpTo(open < 0 ? source_.size() : open);
      if (open < 0) break;
      at_ = open;
      const QChar next = at_ + 1 < source_.size() ? source_[at_ + 1] : QChar();
      if (const qsizetype end = EndOfServerCode(at_); end > at_)
        Note(end, PageMask::Kind::Content);
      else if (source_.sliced(at_).startsWith(u"<!--"))
        at_ = EndOfComment();
      else if (IsLetter(next) ||
               (next == u'/' && at_ + 2 < source_.size() && IsLetter(source_[at_ + 2])))
        Tag();
      else if (next == u'!' || next == u'/' || next == u'?')
        at_ = After(source_, u">", at_);
      else
        LoneSign();
    }
    LeaveOutTail();
    Write();
  }

 private:
  /// Where the server code ends that begins at `at`; `at` itself where none does.
  qsizetype EndOfServerCode(qsizetype at) const {
    const QStringView rest = source_.sliced(at);
    if (rest.startsWith(u"<%")) return After(source_, u"%>", at + 2);
    if (!rest.startsWith(u"<?")) return at;
    const bool isCode = rest.startsWith(u"<?php", Qt::CaseInsensitive) || rest.size() < 3 ||
                        rest[2] == u'=' || IsSpace(rest[2]);
    return isCode ? After(source_, u"?>", at + 2) : at;
  }

  qsizetype EndOfComment() const {
    if (source_.sliced(at_ + 4).startsWith(u">")) return at_ + 5;
    if (source_.sliced(at_ + 4).startsWith(u"->")) return at_ + 6;
    for (qsizetype at = source_.indexOf(u"--", at_ + 4); at >= 0;
         at = source_.indexOf(u"--", at + 1)) {
      const QStringView rest = source_.sliced(at + 2);
      if (rest.startsWith(u">")) return at + 3;
      if (rest.startsWith(u"!>")) return at + 4;
    }
    return source_.size();
  }

  void Note(qsizetype end, PageMask::Kind kind) {
    PageMask::Piece piece;
    piece.source = at_;
    piece.sourceLength = end - at_;
    piece.kind = kind;
    mask_.pieces_.push_back(piece);
    at_ = end;
  }

  /// Takes note of blanks behind the page's end tags, until something else follows.
  void TextUpTo(qsizetype end) {
    if (!isBehindEnd_ || end == at_) return;
    if (std::all_of(source_.begin() + at_, source_.begin() + end, IsSpace))
      tail_.push_back({at_, end - at_, 0, 0, PageMask::Kind::LeftOut, {}});
    else
      GoOn();
  }
  void LoneSign() {
    GoOn();
    ++at_;
  }
  void GoOn() {
    isBehindEnd_ = false;
    tail_.clear();
  }
  void LeaveOutTail() {
    std::vector<PageMask::Piece> &pieces = mask_.pieces_;
    pieces.insert(pieces.end(), tail_.begin(), tail_.end());
    std::sort(pieces.begin(), pieces.end(), [](const PageMask::Piece &a, const PageMask::Piece &b) {
      return a.source < b.source;
    });
  }

  /// A tag with the server code in it, and the raw text behind it.
  void Tag() {
    const qsizetype start = at_;
    const std::size_t before = mask_.pieces_.size();
    qsizetype nameEnd = at_ + 1;
    while (nameEnd < source_.size() && !IsSpace(source_[nameEnd]) && source_[nameEnd] != u'>' &&
           source_[nameEnd] != u'/' && source_[nameEnd] != u'<')
      ++nameEnd;
    const QStringView name = source_.sliced(start + 1, nameEnd - start - 1);
    const bool isEndTag = name.isEmpty();
    if (isEndTag) nameEnd = start + 2;
    at_ = nameEnd;
    if (isEndTag && IsPagesEndTag(start))
      isBehindEnd_ = true;
    else
      GoOn();
    AttributesOf(name);
    if (name.compare(u"noscript", Qt::CaseInsensitive) == 0) {
      // Looked for once, not once for each of many that are never closed.
      if (noscriptClose_ < at_) noscriptClose_ = CloseOf(name, at_);
      const qsizetype close = noscriptClose_;
      if (close < source_.size()) {
        mask_.pieces_.resize(before);
        at_ = start;
        Note(After(source_, u">", close), PageMask::Kind::Content);
      }
      return;
    }
    const std::uint32_t key = HtmlNameKey(name);
    if (elements::IsOneOf(key, elements::RawElements) ||
        elements::IsOneOf(key, elements::TitleElements))
      RawText(name);
    if (key == elements::Plaintext) at_ = source_.size();
  }

  bool IsPagesEndTag(qsizetype start) const {
    const QStringView rest = source_.sliced(start + 2);
    for (const QStringView name : {QStringView(u"body"), QStringView(u"html")}) {
      if (rest.startsWith(name, Qt::CaseInsensitive) && rest.size() > name.size() &&
          (IsSpace(rest[name.size()]) || rest[name.size()] == u'>'))
        return true;
    }
    return false;
  }

  /// Walks to the tag's end; `at_` is behind it then.
  void AttributesOf(QStringView name) {
    const bool isTemplate = name.compare(u"template", Qt::CaseInsensitive) == 0;
    QChar quote;
    bool isValue = false;  // behind an "="
    while (at_ < source_.size()) {
      const QChar unit = source_[at_];
      if (unit == u'<') {
        qsizetype end = EndOfServerCode(at_);
        if (source_.sliced(at_).startsWith(u"<!--#")) end = After(source_, u"-->", at_);
        if (end > at_) {
          Note(end,
               quote.isNull() && !isValue ? PageMask::Kind::AttributeName : PageMask::Kind::InTag);
          continue;
        }
      }
      ++at_;
      if (!quote.isNull()) {
        if (unit == quote) {
          quote = QChar();
          isValue = false;
        }
      } else if (unit == u'>') {
        return;
      } else if (unit == u'=') {
        isValue = true;
        while (at_ < source_.size() && IsSpace(source_[at_])) ++at_;
        if (at_ < source_.size() && (source_[at_] == u'"' || source_[at_] == u'\''))
          quote = source_[at_++];
      } else if (IsSpace(unit)) {
        isValue = false;
        if (isTemplate) ShadowRoot();
      }
    }
  }

  void ShadowRoot() {
    for (const QStringView name : {QStringView(u"shadowrootmode"), QStringView(u"shadowroot")}) {
      const QStringView rest = source_.sliced(at_);
      if (!rest.startsWith(name, Qt::CaseInsensitive)) continue;
      const QChar next = rest.size() > name.size() ? rest[name.size()] : QChar(u' ');
      if (!IsSpace(next) && next != u'=' && next != u'>' && next != u'/') continue;
      Note(at_ + name.size(), PageMask::Kind::InTag);
      return;
    }
  }

  qsizetype CloseOf(QStringView name, qsizetype from) const {
    for (qsizetype at = source_.indexOf(u"</", from); at >= 0;
         at = source_.indexOf(u"</", at + 2)) {
      if (!source_.sliced(at + 2).startsWith(name, Qt::CaseInsensitive)) continue;
      const qsizetype end = at + 2 + name.size();
      if (end >= source_.size()) break;
      if (IsSpace(source_[end]) || source_[end] == u'>' || source_[end] == u'/') return at;
    }
    return source_.size();
  }

  /// Server code in raw text is text there; only an end tag in it would be taken for the element's.
  void RawText(QStringView name) {
    for (;;) {
      const qsizetype close = CloseOf(name, at_);
      qsizetype code = source_.indexOf(u'<', at_);
      qsizetype codeEnd = code;
      while (code >= 0 && code < close) {
        codeEnd = EndOfServerCode(code);
        if (codeEnd > close) break;
        code = source_.indexOf(u'<', std::max(codeEnd, code + 1));
      }
      if (code < 0 || code >= close || close >= source_.size()) {
        at_ = close;
        return;
      }
      at_ = code;
      Note(codeEnd, PageMask::Kind::InTag);
    }
  }

  void Write() {
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
      const QString word = mask_.stem_ + QString::number(number) + u'e';
      switch (piece.kind) {
        case PageMask::Kind::Content:
          masked += QStringLiteral("<!--") + word + QStringLiteral("-->");
          break;
        case PageMask::Kind::AttributeName:
          masked += u' ' + word;  // behind a tag's name it must not become part of it
          break;
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

  QStringView source_;
  PageMask &mask_;
  qsizetype at_ = 0;
  bool isBehindEnd_ = false;
  qsizetype noscriptClose_ = -1;  ///< the first end tag of a NOSCRIPT from some place on
  std::vector<PageMask::Piece> tail_;
};

PageMask::PageMask(const QString &source) {
  PageMasker(source, *this).Run();
}

QString PageMask::Unmask(const QString &text) const {
  if (pieces_.empty() || !text.contains(stem_)) return text;
  const QString word = QRegularExpression::escape(stem_) + QStringLiteral("(\\d+)e");
  const QRegularExpression masks(QStringLiteral("<!--%1-->|%1(=\"\")?").arg(word));
  QString result;
  qsizetype done = 0;
  for (auto found = masks.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    const bool isContent = !match.captured(1).isEmpty();
    const auto number = match.captured(isContent ? 1 : 2).toULongLong();
    if (number >= pieces_.size()) continue;
    const Piece &piece = pieces_[number];
    result += QStringView(text).sliced(done, match.capturedStart() - done);
    result += piece.text;
    // A name that the parser gave an empty value; any other attribute's value is its own.
    if (!isContent && piece.kind != Kind::AttributeName) result += match.captured(3);
    done = match.capturedEnd();
  }
  return result += QStringView(text).sliced(done);
}

const PageMask::Piece *PageMask::PieceBefore(qsizetype masked) const {
  const auto next =
      std::upper_bound(pieces_.begin(), pieces_.end(), masked,
                       [](qsizetype offset, const Piece &piece) { return offset <= piece.masked; });
  return next == pieces_.begin() ? nullptr : &*std::prev(next);
}

qsizetype PageMask::OutOfMask(qsizetype masked, Edge edge) const {
  const Piece *piece = PieceBefore(masked);
  if (piece == nullptr || masked >= piece->masked + piece->maskedLength) return masked;
  return edge == Edge::Start ? piece->masked : piece->masked + piece->maskedLength;
}

bool PageMask::IsServerCode(qsizetype source) const {
  const auto after =
      std::upper_bound(pieces_.begin(), pieces_.end(), source,
                       [](qsizetype at, const Piece &piece) { return at < piece.source; });
  if (after == pieces_.begin()) return false;
  const Piece &piece = *std::prev(after);
  const bool isCode = piece.text.startsWith(u"<%") || piece.text.startsWith(u"<?") ||
                      piece.text.startsWith(u"<!--#");
  return isCode && source < piece.source + piece.sourceLength;
}

qsizetype PageMask::ToSource(qsizetype masked, Edge edge) const {
  const qsizetype offset = OutOfMask(masked, edge);
  const Piece *piece = PieceBefore(offset);
  if (piece == nullptr) return offset;
  return piece->source + piece->sourceLength + offset - piece->masked - piece->maskedLength;
}

}  // namespace velor
