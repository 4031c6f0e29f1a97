// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceRoles.h"

#include "page/source/SourceScan.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace velor {

namespace {

enum class Mode {
  Text,
  Tag,
  Value,
  DoubleQuoted,
  SingleQuoted,
  Comment,
  Declaration,
  Inside,
  Server
};
constexpr int ModeCount = 9;

/// What the content of an element is, up to its own end tag.
enum class Inside { Script, StyleSheet, References, Raw };

struct TextElement {
  QByteArrayView name;
  Inside inside;
};

/// The elements whose content is no markup. LineState::element counts them from 1.
constexpr std::array<TextElement, 8> TextElements = {{{"script", Inside::Script},
                                                      {"style", Inside::StyleSheet},
                                                      {"title", Inside::References},
                                                      {"textarea", Inside::References},
                                                      {"xmp", Inside::Raw},
                                                      {"iframe", Inside::Raw},
                                                      {"noembed", Inside::Raw},
                                                      {"noframes", Inside::Raw}}};
constexpr int TextElementCount = static_cast<int>(TextElements.size());

struct ServerMark {
  QByteArrayView opening;
  QByteArrayView closing;
};

/// The marks of server code. The short one of PHP comes last, since the others begin like it.
constexpr std::array<ServerMark, 4> ServerMarks = {
    {{"<%", "%>"}, {"<?php", "?>"}, {"<?=", "?>"}, {"<? ", "?>"}}};
constexpr int ServerMarkCount = static_cast<int>(ServerMarks.size());

/// A script whose type contains one of these is coloured as script.
constexpr std::array<QByteArrayView, 5> ScriptTypes = {"javascript", "ecmascript", "jscript",
                                                       "module", "json"};

/// The state in which a line begins; packed into a SourceLineState, the first member in the lowest
/// bits.
struct LineState {
  Mode mode = Mode::Text;
  /// The text element that the tag begins, or that the line stands in; 0 for none.
  int element = 0;
  /// The element is a script in an unknown language, whose lines are not coloured.
  bool isData = false;
  /// State of the reader of style sheets, scripts or server code, where the line begins in such.
  int inner = 0;
  /// Of server code: index of its mark, and the mode and inner state that go on behind it.
  int serverMark = 0;
  Mode serverIn = Mode::Text;
  int innerBehindServer = 0;

  static LineState Unpack(SourceLineState packed) {
    const auto take = [&packed](int bits) {
      const int part = packed & ((1 << bits) - 1);
      packed >>= bits;
      return part;
    };
    LineState state;
    state.mode = static_cast<Mode>(std::min(take(4), ModeCount - 1));
    state.element = std::min(take(4), TextElementCount);
    state.isData = take(1) != 0;
    state.inner = take(8);
    state.serverMark = std::min(take(2), ServerMarkCount - 1);
    state.serverIn = static_cast<Mode>(std::min(take(4), ModeCount - 1));
    state.innerBehindServer = take(8);
    return state;
  }

  SourceLineState Pack() const {
    int packed = 0;
    int shift = 0;
    const auto put = [&](int part, int bits) {
      packed |= part << shift;
      shift += bits;
    };
    put(static_cast<int>(mode), 4);
    put(element, 4);
    put(isData ? 1 : 0, 1);
    put(inner, 8);
    put(serverMark, 2);
    put(static_cast<int>(serverIn), 4);
    put(innerBehindServer, 8);
    return packed;
  }
};

class Line {
 public:
  Line(QByteArrayView line, SourceLineState state, SourceRole *roles)
      : line_(line), roles_(roles), state_(LineState::Unpack(state)) {}

  SourceLineState Read() {
    while (at_ < line_.size()) ReadSome();
    return state_.Pack();
  }

 private:
  void Consume(SourceRole role, qsizetype end) {
    std::fill(roles_ + at_, roles_ + end, role);
    at_ = end;
  }

  void ReadSome() {
    if (state_.mode != Mode::Server && state_.mode != Mode::Comment && line_[at_] == '<' &&
        BeginsServerCode())
      return;
    switch (state_.mode) {
      case Mode::Text:
        return ReadText();
      case Mode::Tag:
        return ReadTag();
      case Mode::Value:
        return ReadValue();
      case Mode::DoubleQuoted:
        return ReadQuoted('"');
      case Mode::SingleQuoted:
        return ReadQuoted('\'');
      case Mode::Comment:
        return ConsumeThrough("-->", SourceRole::Comment);
      case Mode::Declaration:
        return ConsumeThrough(">", SourceRole::Tag);
      case Mode::Inside:
        return ReadInside();
      case Mode::Server:
        return ReadServerCode();
    }
  }

  // Text and tags

  /// The first place from `from` where one of the letters stands, or the line's end.
  qsizetype FirstOf(QByteArrayView letters, qsizetype from) const {
    const auto *const found =
        std::find_first_of(line_.begin() + from, line_.end(), letters.begin(), letters.end());
    return found - line_.begin();
  }

  bool IsLetterAt(qsizetype at) const { return at < line_.size() && IsLetter(line_[at]); }

  void ReadText() {
    if (line_[at_] == '&') return ReadReference();
    if (line_[at_] != '<') return Consume(SourceRole::Text, FirstOf("<&", at_));
    if (BeginsWith(line_, at_, "<!--")) {
      state_.mode = Mode::Comment;
      return Consume(SourceRole::Comment, at_ + 4);
    }
    const bool isEnd = BeginsWith(line_, at_, "</");
    if (IsLetterAt(at_ + (isEnd ? 2 : 1))) return BeginTag(isEnd);
    if (isEnd || BeginsWith(line_, at_, "<!") || BeginsWith(line_, at_, "<?")) {
      state_.mode = Mode::Declaration;
      return Consume(SourceRole::Tag, at_ + 2);
    }
    Consume(SourceRole::Text, at_ + 1);
  }

  void ReadReference() {
    qsizetype end = at_ + 1;
    if (end < line_.size() && line_[end] == '#') ++end;
    const qsizetype name = end;
    while (end < line_.size() && (IsLetter(line_[end]) || IsDigit(line_[end]))) ++end;
    if (end == name) return Consume(SourceRole::Text, end);
    if (end < line_.size() && line_[end] == ';') ++end;
    Consume(SourceRole::Entity, end);
  }

  qsizetype NameEnd(qsizetype from) const { return FirstOf(" \t\r\n\f/>", from); }

  void BeginTag(bool isEnd) {
    const qsizetype name = at_ + (isEnd ? 2 : 1);
    const qsizetype end = NameEnd(name);
    const QByteArray lower = line_.sliced(name, end - name).toByteArray().toLower();
    const auto *const element =
        std::ranges::find(TextElements, QByteArrayView(lower), &TextElement::name);
    const bool holdsText = !isEnd && element != TextElements.end();
    state_.mode = Mode::Tag;
    state_.element = holdsText ? static_cast<int>(element - TextElements.begin()) + 1 : 0;
    state_.isData = false;
    Consume(SourceRole::Tag, end);
  }

  void ReadTag() {
    const char letter = line_[at_];
    if (letter == '>') {
      state_.mode = state_.element == 0 ? Mode::Text : Mode::Inside;
      state_.inner = 0;
      return Consume(SourceRole::Tag, at_ + 1);
    }
    if (letter == '=') {
      state_.mode = Mode::Value;
      return Consume(SourceRole::Tag, at_ + 1);
    }
    if (letter == '/' || letter == '<') return Consume(SourceRole::Tag, at_ + 1);
    if (IsBlank(letter)) return Consume(SourceRole::Text, at_ + 1);
    const qsizetype end = FirstOf(" \t\r\n\f/>=<", at_);
    isType_ =
        line_.sliced(at_, end - at_).compare(QByteArrayView("type"), Qt::CaseInsensitive) == 0;
    Consume(SourceRole::Attribute, end);
  }

  void ReadValue() {
    const char letter = line_[at_];
    if (IsBlank(letter)) return Consume(SourceRole::Text, at_ + 1);
    if (letter == '"' || letter == '\'') {
      state_.mode = letter == '"' ? Mode::DoubleQuoted : Mode::SingleQuoted;
      return Consume(SourceRole::String, at_ + 1);
    }
    state_.mode = Mode::Tag;
    if (letter == '>') return;
    const qsizetype end = std::max(FirstOf(" \t\r\n\f><", at_), at_ + 1);
    ReadScriptType(end);
    Consume(SourceRole::String, end);
  }

  void ReadQuoted(char quote) {
    if (line_[at_] == quote) {
      state_.mode = Mode::Tag;
      return Consume(SourceRole::String, at_ + 1);
    }
    const char ends[] = {quote, '<'};
    const qsizetype end = std::max(FirstOf({ends, 2}, at_), at_ + 1);
    ReadScriptType(end);
    Consume(SourceRole::String, end);
  }

  /// Where the value up to `end` is a script's type, notes whether its language is known.
  void ReadScriptType(qsizetype end) {
    if (!isType_) return;
    isType_ = false;
    const QByteArray type = line_.sliced(at_, end - at_).toByteArray().toLower();
    state_.isData = std::ranges::none_of(
        ScriptTypes, [&type](QByteArrayView known) { return type.contains(known); });
  }

  void ConsumeThrough(QByteArrayView closing, SourceRole role) {
    const qsizetype found = line_.indexOf(closing, at_);
    if (found >= 0) state_.mode = Mode::Text;
    Consume(role, found < 0 ? line_.size() : found + closing.size());
  }

  // The inside of elements that hold text

  const TextElement &Element() const {
    return TextElements.at(static_cast<std::size_t>(std::max(state_.element, 1) - 1));
  }

  bool IsEndTagOfElement(qsizetype at) const {
    const QByteArrayView name = Element().name;
    if (!BeginsWith(line_, at, "</") || line_.size() < at + 2 + name.size()) return false;
    if (line_.sliced(at + 2, name.size()).compare(name, Qt::CaseInsensitive) != 0) return false;
    return NameEnd(at + 2) == at + 2 + name.size();
  }

  /// Where the text ends: at the element's end tag, at server code, or with the line.
  qsizetype InsideEnd() const {
    qsizetype end = FirstOf("<", at_);
    while (end < line_.size() && !IsEndTagOfElement(end) && ServerMarkAt(end) < 0)
      end = FirstOf("<", end + 1);
    return end;
  }

  void ReadInside() {
    if (line_[at_] == '<' && IsEndTagOfElement(at_)) return BeginTag(true);
    const qsizetype end = InsideEnd();
    const QByteArrayView text = line_.sliced(at_, end - at_);
    const bool isData = state_.isData && Element().inside == Inside::Script;
    switch (isData ? Inside::Raw : Element().inside) {
      case Inside::Script:
        state_.inner = RolesOfScript(text, state_.inner, roles_ + at_);
        at_ = end;
        return;
      case Inside::StyleSheet:
        state_.inner = RolesOfStyleSheet(text, state_.inner, roles_ + at_);
        at_ = end;
        return;
      case Inside::References:
        while (at_ < end) line_[at_] == '&' ? ReadReference() : Consume(SourceRole::Text, at_ + 1);
        return;
      case Inside::Raw:
        return Consume(SourceRole::Text, end);
    }
  }

  // Server code

  int ServerMarkAt(qsizetype at) const {
    for (int mark = 0; mark < ServerMarkCount; ++mark) {
      if (BeginsWith(line_, at, ServerMarks.at(static_cast<std::size_t>(mark)).opening))
        return mark;
    }
    // PHP's short mark before a line's end.
    const bool endsInMark =
        BeginsWith(line_, at, "<?") && (at + 2 >= line_.size() || IsBlank(line_[at + 2]));
    return endsInMark ? ServerMarkCount - 1 : -1;
  }

  bool BeginsServerCode() {
    const int mark = ServerMarkAt(at_);
    if (mark < 0) return false;
    state_.serverIn = state_.mode;
    state_.innerBehindServer = state_.inner;
    state_.mode = Mode::Server;
    state_.inner = 0;
    state_.serverMark = mark;
    const auto &opening = ServerMarks.at(static_cast<std::size_t>(mark)).opening;
    Consume(SourceRole::Tag, std::min(at_ + opening.size(), line_.size()));
    return true;
  }

  void ReadServerCode() {
    const QByteArrayView closing =
        ServerMarks.at(static_cast<std::size_t>(state_.serverMark)).closing;
    const qsizetype found = line_.indexOf(closing, at_);
    const qsizetype end = found < 0 ? line_.size() : found;
    state_.inner = RolesOfServerCode(line_.sliced(at_, end - at_), state_.inner, roles_ + at_);
    at_ = end;
    if (found < 0) return;
    Consume(SourceRole::Tag, found + closing.size());
    state_.mode = state_.serverIn;
    state_.inner = state_.innerBehindServer;
  }

  QByteArrayView line_;
  SourceRole *roles_;
  qsizetype at_ = 0;
  LineState state_;
  /// The value that comes is that of the attribute "type".
  bool isType_ = false;
};

}  // namespace

SourceLineState RolesOfLine(QByteArrayView line, SourceLineState state, SourceRole *roles) {
  return Line(line, state, roles).Read();
}

}  // namespace velor
