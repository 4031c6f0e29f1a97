// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceRoles.h"
#include "page/source/SourceScan.h"

#include <algorithm>

namespace velor {

namespace {

bool IsName(char letter) {
  return IsWordByte(letter) || letter == '-';
}

/// Reads a line from left to right. Whether a name is a selector, a property or a word of a value
/// depends on what stands before it.
class StyleSheetLine {
 public:
  StyleSheetLine(QByteArrayView css, int state, SourceRole *roles)
      : css_(css),
        roles_(roles),
        place_(static_cast<Place>(std::min(state & 3, 2))),
        isComment_((state & 4) != 0),
        holdsRules_((state & 8) != 0),
        depth_(state >> 4 & 15) {}

  int Read() {
    if (isComment_) ConsumeComment(0);
    while (at_ < css_.size()) ReadOne();
    return static_cast<int>(place_) | (isComment_ ? 4 : 0) | (holdsRules_ ? 8 : 0) | depth_ << 4;
  }

 private:
  enum class Place { Selector, Property, Value };
  /// Rules nested deeper, which pages do not have, get the colours of this depth.
  static constexpr int MostDepth = 15;

  char Next(qsizetype ahead = 0) const {
    return at_ + ahead < css_.size() ? css_[at_ + ahead] : '\0';
  }

  void Consume(SourceRole role, qsizetype end) {
    end = std::min(end, css_.size());
    std::fill(roles_ + at_, roles_ + end, role);
    at_ = end;
  }

  void ConsumeComment(qsizetype opening) {
    const qsizetype closing = css_.indexOf(QByteArrayView("*/"), at_ + opening);
    isComment_ = closing < 0;
    Consume(SourceRole::Comment, isComment_ ? css_.size() : closing + 2);
  }

  qsizetype NameEnd(qsizetype from) const {
    while (from < css_.size() && IsName(css_[from])) ++from;
    return from;
  }

  bool NumberBegins() const {
    const bool isSigned = Next() == '-' || Next() == '+' || Next() == '.';
    return IsDigit(Next()) || (isSigned && IsDigit(Next(1)));
  }

  void ReadOne() {
    const char letter = css_[at_];
    if (letter == '/' && Next(1) == '*') return ConsumeComment(2);
    if (letter == '"' || letter == '\'') return Consume(SourceRole::String, StringEnd(css_, at_));
    if (letter == '@') return ReadAtRule();
    if (place_ == Place::Value && (NumberBegins() || letter == '#')) {
      qsizetype end = at_ + 1;
      while (end < css_.size() && (IsName(css_[end]) || css_[end] == '.' || css_[end] == '%'))
        ++end;
      return Consume(SourceRole::Number, end);
    }
    const bool beginsSelector = place_ == Place::Selector && (letter == '.' || letter == '#');
    if (IsName(letter) || beginsSelector) return ReadName(NameEnd(at_ + 1));
    ReadPunctuation(letter);
    Consume(SourceRole::Text, at_ + 1);
  }

  void ReadAtRule() {
    const qsizetype end = NameEnd(at_ + 1);
    const QByteArrayView name = css_.sliced(at_, end - at_);
    holdsRules_ = name == "@media" || name == "@supports";
    place_ = Place::Value;
    Consume(SourceRole::Keyword, end);
  }

  void ReadName(qsizetype end) {
    if (place_ == Place::Selector) holdsRules_ = false;
    if (place_ == Place::Value) return Consume(SourceRole::Text, end);
    Consume(place_ == Place::Selector ? SourceRole::Tag : SourceRole::Attribute, end);
  }

  void ReadPunctuation(char letter) {
    switch (letter) {
      case '{':
        // The rules inside a conditional one have selectors again.
        place_ = place_ == Place::Value && holdsRules_ ? Place::Selector : Place::Property;
        depth_ = std::min(depth_ + 1, MostDepth);
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

  QByteArrayView css_;
  SourceRole *roles_;
  qsizetype at_ = 0;
  Place place_;
  bool isComment_;
  /// The at-rule that was last seen has rules in its block rather than declarations.
  bool holdsRules_;
  int depth_;
};

}  // namespace

int RolesOfStyleSheet(QByteArrayView line, int state, SourceRole *roles) {
  return StyleSheetLine(line, state, roles).Read();
}

}  // namespace velor
