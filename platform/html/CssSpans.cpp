// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/CssSpans.h"

#include <algorithm>

namespace velor {

namespace {

bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

bool IsName(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || IsDigit(letter) ||
         letter == '-' || letter == '_' || static_cast<unsigned char>(letter) >= 0x80;
}

/// Goes through a style sheet once. A name is a selector, a property or a value's word by what
/// stands before it.
class CssReader {
 public:
  explicit CssReader(QByteArrayView css) : css_(css) {}

  std::vector<CssSpan> Read() {
    while (at_ < css_.size()) ReadOne();
    return std::move(spans_);
  }

 private:
  enum class Place { Selector, Property, Value };

  char Next(qsizetype ahead = 0) const {
    return at_ + ahead < css_.size() ? css_[at_ + ahead] : '\0';
  }

  void Take(CssPart part, qsizetype end) {
    end = std::min(end, css_.size());
    spans_.push_back({part, at_, end});
    at_ = end;
  }

  qsizetype NameEnd(qsizetype from) const {
    while (from < css_.size() && IsName(css_[from])) ++from;
    return from;
  }

  qsizetype StringEnd() const {
    const char quote = css_[at_];
    for (qsizetype end = at_ + 1; end < css_.size(); ++end) {
      if (css_[end] == '\\')
        ++end;
      else if (css_[end] == quote || css_[end] == '\n')
        return end + 1;
    }
    return css_.size();
  }

  qsizetype CommentEnd() const {
    for (qsizetype end = at_ + 2; end + 1 < css_.size(); ++end)
      if (css_[end] == '*' && css_[end + 1] == '/') return end + 2;
    return css_.size();
  }

  bool NumberBegins() const {
    const bool isSigned = Next() == '-' || Next() == '+' || Next() == '.';
    return IsDigit(Next()) || (isSigned && IsDigit(Next(1)));
  }

  void ReadOne() {
    const char letter = css_[at_];
    if (letter == '/' && Next(1) == '*') return Take(CssPart::Comment, CommentEnd());
    if (letter == '"' || letter == '\'') return Take(CssPart::String, StringEnd());
    if (letter == '@') {
      place_ = Place::Value;
      return Take(CssPart::AtRule, NameEnd(at_ + 1));
    }
    if (place_ == Place::Value && (NumberBegins() || letter == '#')) {
      qsizetype end = at_ + 1;
      while (end < css_.size() && (IsName(css_[end]) || css_[end] == '.' || css_[end] == '%'))
        ++end;
      return Take(CssPart::Number, end);
    }
    const bool beginsSelector = place_ == Place::Selector && (letter == '.' || letter == '#');
    if (IsName(letter) || beginsSelector) {
      const qsizetype end = NameEnd(at_ + 1);
      if (place_ == Place::Value)
        at_ = end;
      else
        Take(place_ == Place::Selector ? CssPart::Selector : CssPart::Property, end);
      return;
    }
    ReadPunctuation(letter);
    ++at_;
  }

  void ReadPunctuation(char letter) {
    switch (letter) {
      case '{':
        // The rules inside a conditional one have selectors again.
        place_ = OpensRules() ? Place::Selector : Place::Property;
        ++depth_;
        break;
      case '}':
        depth_ = std::max(depth_ - 1, 0);
        place_ = Place::Selector;
        break;
      case ':':
        if (place_ == Place::Property) place_ = Place::Value;
        break;
      case ';':
        place_ = depth_ > 0 ? Place::Property : Place::Selector;
        break;
      default:
        break;
    }
  }

  /// Whether the block that opens holds rules rather than declarations.
  bool OpensRules() const {
    for (auto span = spans_.rbegin(); span != spans_.rend(); ++span) {
      if (span->part == CssPart::Selector) return false;
      if (span->part != CssPart::AtRule) continue;
      const QByteArrayView name = css_.sliced(span->begin, span->end - span->begin);
      return place_ == Place::Value && (name == "@media" || name == "@supports");
    }
    return false;
  }

  QByteArrayView css_;
  qsizetype at_ = 0;
  int depth_ = 0;
  Place place_ = Place::Selector;
  std::vector<CssSpan> spans_;
};

}  // namespace

std::vector<CssSpan> CssSpans(QByteArrayView css) {
  return CssReader(css).Read();
}

}  // namespace velor
