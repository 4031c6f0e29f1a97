// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceRoles.h"
#include "page/source/SourceScan.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <string_view>

namespace velor {

namespace {

using namespace std::string_view_literals;

constexpr std::array ScriptWords = {
    "async"sv,    "await"sv,      "break"sv,   "case"sv,   "catch"sv,    "class"sv, "const"sv,
    "continue"sv, "debugger"sv,   "default"sv, "delete"sv, "do"sv,       "else"sv,  "export"sv,
    "extends"sv,  "false"sv,      "finally"sv, "for"sv,    "function"sv, "if"sv,    "import"sv,
    "in"sv,       "instanceof"sv, "let"sv,     "new"sv,    "null"sv,     "of"sv,    "return"sv,
    "static"sv,   "super"sv,      "switch"sv,  "this"sv,   "throw"sv,    "true"sv,  "try"sv,
    "typeof"sv,   "undefined"sv,  "var"sv,     "void"sv,   "while"sv,    "with"sv,  "yield"sv};

/// Keywords of PHP and VBScript, in lower case: both ignore letter case.
constexpr std::array ServerWords = {
    "and"sv,        "array"sv,   "as"sv,       "break"sv,        "by"sv,           "byref"sv,
    "byval"sv,      "call"sv,    "case"sv,     "catch"sv,        "class"sv,        "const"sv,
    "continue"sv,   "default"sv, "die"sv,      "dim"sv,          "do"sv,           "each"sv,
    "echo"sv,       "else"sv,    "elseif"sv,   "empty"sv,        "end"sv,          "endfor"sv,
    "endforeach"sv, "endif"sv,   "endwhile"sv, "error"sv,        "exit"sv,         "explicit"sv,
    "extends"sv,    "false"sv,   "for"sv,      "foreach"sv,      "function"sv,     "global"sv,
    "if"sv,         "in"sv,      "include"sv,  "include_once"sv, "is"sv,           "isset"sv,
    "loop"sv,       "mod"sv,     "new"sv,      "next"sv,         "not"sv,          "nothing"sv,
    "null"sv,       "on"sv,      "option"sv,   "or"sv,           "print"sv,        "private"sv,
    "protected"sv,  "public"sv,  "redim"sv,    "require"sv,      "require_once"sv, "resume"sv,
    "return"sv,     "select"sv,  "set"sv,      "static"sv,       "sub"sv,          "switch"sv,
    "then"sv,       "throw"sv,   "to"sv,       "true"sv,         "try"sv,          "unset"sv,
    "until"sv,      "use"sv,     "var"sv,      "wend"sv,         "while"sv,        "with"sv,
    "xor"sv};

static_assert(std::ranges::is_sorted(ScriptWords) && std::ranges::is_sorted(ServerWords));

/// What is still open at a line's end.
enum class Open { Nothing, Comment, Template, DoubleQuoted, SingleQuoted };

class CodeLine {
 public:
  CodeLine(QByteArrayView code, int state, SourceRole *roles)
      : code_(code), roles_(roles), open_(static_cast<Open>(std::clamp(state, 0, 4))) {}
  virtual ~CodeLine() = default;

  int Read() {
    if (open_ == Open::Comment) ConsumeComment(0);
    if (open_ == Open::Template) ConsumeTemplate(0);
    if (open_ == Open::DoubleQuoted || open_ == Open::SingleQuoted) GoOnInString();
    while (at_ < code_.size()) ReadOne();
    return static_cast<int>(open_);
  }

 protected:
  /// Reads what only this language has; false where nothing of the kind stands at `at_`.
  virtual bool ReadOwn() = 0;
  virtual bool IsKeyword(QByteArrayView word) const = 0;

  char Next(qsizetype ahead = 0) const {
    return at_ + ahead < code_.size() ? code_[at_ + ahead] : '\0';
  }

  void Consume(SourceRole role, qsizetype end) {
    end = std::min(end, code_.size());
    for (qsizetype at = at_; at < end; ++at) {
      if (!IsBlank(code_[at])) last_ = code_[at];
    }
    std::fill(roles_ + at_, roles_ + end, role);
    at_ = end;
  }

  /// Whether an operand has to follow, not an operator: "/" begins a regular expression then.
  bool IsOperandDue() const {
    return last_ == '\0' || lastWordBinds_ ||
           QByteArrayView("(,=:[!&|?{};+-*%~^<>").contains(last_);
  }

  void ConsumeTemplate(qsizetype opening) {
    qsizetype end = at_ + opening;
    while (end < code_.size() && code_[end] != '`') end += code_[end] == '\\' ? 2 : 1;
    open_ = end >= code_.size() ? Open::Template : Open::Nothing;
    Consume(SourceRole::String, end + 1);
  }

  QByteArrayView code_;
  SourceRole *roles_;
  qsizetype at_ = 0;
  Open open_;

 private:
  void ConsumeComment(qsizetype opening) {
    const qsizetype closing = code_.indexOf(QByteArrayView("*/"), at_ + opening);
    open_ = closing < 0 ? Open::Comment : Open::Nothing;
    const char before = last_;
    Consume(SourceRole::Comment, closing < 0 ? code_.size() : closing + 2);
    last_ = before;
  }

  /// Takes a string up to `end`; it goes on in the next line where this one ends in a backslash.
  void ConsumeString(qsizetype end, Open kind) {
    qsizetype textEnd = code_.size();
    while (textEnd > 0 && (code_[textEnd - 1] == '\n' || code_[textEnd - 1] == '\r')) --textEnd;
    const bool goesOn =
        end == code_.size() && textEnd < code_.size() && textEnd > 0 && code_[textEnd - 1] == '\\';
    open_ = goesOn ? kind : Open::Nothing;
    Consume(SourceRole::String, end);
  }

  void GoOnInString() {
    const char quote = open_ == Open::DoubleQuoted ? '"' : '\'';
    qsizetype end = 0;
    while (end < code_.size() && code_[end] != quote) end += code_[end] == '\\' ? 2 : 1;
    ConsumeString(std::min(end + 1, code_.size()), open_);
  }

  void ReadOne() {
    const char letter = code_[at_];
    if (letter == '/' && Next(1) == '*') return ConsumeComment(2);
    if (letter == '/' && Next(1) == '/') return Consume(SourceRole::Comment, code_.size());
    if (ReadOwn()) return;
    if (letter == '"' || letter == '\'') {
      return ConsumeString(StringEnd(code_, at_),
                           letter == '"' ? Open::DoubleQuoted : Open::SingleQuoted);
    }
    if (IsDigit(letter) || (letter == '.' && IsDigit(Next(1)))) return ReadNumber();
    if (IsWordByte(letter) || letter == '$') return ReadWord();
    if (!IsBlank(letter)) lastWordBinds_ = false;
    Consume(SourceRole::Text, at_ + 1);
  }

  void ReadNumber() {
    qsizetype end = at_ + 1;
    while (end < code_.size() && (IsWordByte(code_[end]) || code_[end] == '.')) ++end;
    lastWordBinds_ = false;
    Consume(SourceRole::Number, end);
  }

  void ReadWord() {
    qsizetype end = at_ + 1;
    while (end < code_.size() && (IsWordByte(code_[end]) || code_[end] == '$')) ++end;
    const QByteArrayView word = code_.sliced(at_, end - at_);
    const bool isKeyword = last_ != '.' && IsKeyword(word);
    lastWordBinds_ = isKeyword && word != "this" && word != "super";
    Consume(isKeyword ? SourceRole::Keyword : SourceRole::Text, end);
  }

  char last_ = '\0';            ///< the last character that is no blank, 0 at the line's start
  bool lastWordBinds_ = false;  ///< `last_` ends a word such as "return", which an operand follows
};

template <std::size_t Count>
bool Has(const std::array<std::string_view, Count> &words, QByteArrayView word) {
  return std::ranges::binary_search(
      words, std::string_view(word.data(), static_cast<std::size_t>(word.size())));
}

class ScriptLine final : public CodeLine {
 public:
  using CodeLine::CodeLine;

 private:
  bool IsKeyword(QByteArrayView word) const override { return Has(ScriptWords, word); }

  bool ReadOwn() override {
    if (Next() == '`') {
      ConsumeTemplate(1);
      return true;
    }
    // Old pages hide scripts from browsers without them in "<!--"; in a script that begins a
    // comment.
    if (BeginsWith(code_, at_, "<!--")) {
      Consume(SourceRole::Comment, code_.size());
      return true;
    }
    if (Next() != '/' || !IsOperandDue()) return false;
    const qsizetype end = RegularExpressionEnd();
    if (end < 0) return false;
    Consume(SourceRole::String, end);
    return true;
  }

  /// The offset behind the expression's closing "/" and flags; -1 where none closes it in this
  /// line.
  qsizetype RegularExpressionEnd() const {
    bool isInSet = false;
    for (qsizetype end = at_ + 1; end < code_.size(); ++end) {
      const char letter = code_[end];
      if (letter == '\\')
        ++end;
      else if (letter == '[' || letter == ']')
        isInSet = letter == '[';
      else if (letter == '/' && !isInSet) {
        do ++end;
        while (end < code_.size() && IsLetter(code_[end]));
        return end;
      }
    }
    return -1;
  }
};

class ServerLine final : public CodeLine {
 public:
  using CodeLine::CodeLine;

 private:
  bool IsKeyword(QByteArrayView word) const override {
    return Has(ServerWords, word.toByteArray().toLower());
  }

  /// "#", and an apostrophe that has no partner in its line, begin a comment.
  bool ReadOwn() override {
    const bool isComment =
        Next() == '#' || (Next() == '\'' && !code_.sliced(at_ + 1).contains('\''));
    if (isComment) Consume(SourceRole::Comment, code_.size());
    return isComment;
  }
};

}  // namespace

int RolesOfScript(QByteArrayView line, int state, SourceRole *roles) {
  return ScriptLine(line, state, roles).Read();
}

int RolesOfServerCode(QByteArrayView line, int state, SourceRole *roles) {
  return ServerLine(line, state, roles).Read();
}

}  // namespace velor
