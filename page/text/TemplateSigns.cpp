// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/TemplateSigns.h"

#include <QString>

#include <algorithm>
#include <optional>

namespace velor {

namespace {

/// UTF-16 code units; what goes on for longer is no sign.
constexpr qsizetype LongestSign = 2048;
constexpr int MostUnclosed = 1000;

bool IsLetter(QChar codeUnit) {
  const int code = codeUnit.unicode() | 0x20;
  return code >= u'a' && code <= u'z';
}

bool IsNamePart(QChar codeUnit) {
  return IsLetter(codeUnit) || codeUnit.isDigit() || codeUnit == u'_' || codeUnit == u'-';
}

class SignReader {
 public:
  SignReader(QStringView text, qsizetype at)
      : text_(text.sliced(at, std::min(LongestSign, text.size() - at))) {}

  /// Whether something began that nothing closes.
  bool IsUnclosed() const { return isUnclosed_; }

  /// The sign's length; 0 for none.
  qsizetype Length(SignPlace place) {
    switch (text_[0].unicode()) {
      case u'{':
        return Braces();
      case u'<':
        return Directive(u'<', u'>');
      case u'[':
        if (const qsizetype directive = Directive(u'[', u']'); directive > 0) return directive;
        return place == SignPlace::InTag ? 0 : Between({{u"[[", u"]]"}, {u"[(", u")]"}});
      case u'$':
        return Reference();
      case u'#':
        return Hash();
      case u'@':
        return place == SignPlace::InTag ? 0 : Block();
      case u'}':
        return place == SignPlace::InTag ? 0 : 1;  // of a block that "@for (...) {" began
      default:
        return 0;
    }
  }

 private:
  struct Marks {
    QStringView open;
    QStringView close;
  };

  /// The length up to the closing mark of the first pair whose opening mark stands here.
  qsizetype Between(std::initializer_list<Marks> pairs) {
    for (const Marks &marks : pairs) {
      if (!text_.startsWith(marks.open)) continue;
      const qsizetype close = text_.indexOf(marks.close, marks.open.size());
      return close < 0 ? Unclosed() : close + marks.close.size();
    }
    return 0;
  }

  qsizetype Braces() {
    return Between({{u"{{!--", u"--}}"},
                    {u"{{{{", u"}}}}"},
                    {u"{{{", u"}}}"},
                    {u"{{", u"}}"},
                    {u"{%", u"%}"},
                    {u"{#", u"#}"}});
  }

  /// `<#list x as y>`, `</#list>`, `<@macro/>`, `<#-- note -->`, and the same in square brackets.
  qsizetype Directive(QChar open, QChar close) {
    const QString comment = QString(open) + QStringLiteral("#--");
    const QString commentEnd = QStringLiteral("--") + close;
    if (text_.startsWith(comment)) return Between({{comment, commentEnd}});
    qsizetype at = 1;
    if (At(at) == u'/') ++at;
    if (At(at) != u'#' && At(at) != u'@') return 0;
    if (!IsLetter(At(at + 1))) return 0;
    return BehindClose(at + 1, close);
  }

  /// `${x}`, `$!{x}`, `$x.y(z)`.
  qsizetype Reference() {
    qsizetype at = At(1) == u'!' ? 2 : 1;
    if (At(at) == u'{') return BehindClose(at + 1, u'}');
    if (!IsLetter(At(at))) return 0;
    while (IsNamePart(At(at)) || (At(at) == u'.' && IsLetter(At(at + 1)))) {
      ++at;
      if (At(at) != u'(') continue;
      const qsizetype end = BehindClose(at + 1, u')');
      if (end == 0) return at;
      at = end;
    }
    return at;
  }

  /// `#foreach($x in $y)`, `#end`, `#{x}`, `## note`, `#* note *#`.
  qsizetype Hash() {
    if (At(1) == u'{') return BehindClose(2, u'}');
    if (At(1) == u'*') return Between({{u"#*", u"*#"}});
    if (At(1) == u'#') {
      const qsizetype lineEnd = text_.indexOf(u'\n');
      const qsizetype tag = text_.indexOf(u'<');
      if (lineEnd < 0 && tag < 0) return 0;
      return lineEnd < 0 ? tag : tag < 0 ? lineEnd : std::min(lineEnd, tag);
    }
    const qsizetype end = NameEnd(1);
    const QStringView name = text_.sliced(1, end - 1);
    for (const QStringView word : {u"end", u"else", u"stop", u"break"}) {
      if (name == word) return end;
    }
    for (const QStringView word : {u"if", u"elseif", u"foreach", u"set", u"macro", u"parse",
                                   u"include", u"evaluate", u"define"}) {
      if (name == word) return BehindBrackets(end);
    }
    return 0;
  }

  /// `@for (x of y; track x) {`, `@else {`.
  qsizetype Block() {
    qsizetype at = NameEnd(1);
    const QStringView name = text_.sliced(1, at - 1);
    bool isBlock = false;
    for (const QStringView word :
         {u"for", u"if", u"else", u"empty", u"switch", u"case", u"default", u"defer"})
      isBlock = isBlock || name == word;
    if (!isBlock) return 0;
    if (text_.sliced(at).startsWith(u" if")) at += 3;
    if (const qsizetype end = BehindBrackets(at); end > 0) at = end;
    at = SkipBlanks(at);
    return At(at) == u'{' ? at + 1 : 0;
  }

  qsizetype BehindBrackets(qsizetype at) {
    at = SkipBlanks(at);
    return At(at) == u'(' ? BehindClose(at + 1, u')') : 0;
  }

  /// Behind the sign that closes what was opened before `at`; quotes and brackets nest. 0 where
  /// nothing closes it.
  qsizetype BehindClose(qsizetype at, QChar close) {
    for (; at < text_.size(); ++at) {
      const QChar codeUnit = text_[at];
      if (codeUnit == close) return at + 1;
      QChar inner;
      if (codeUnit == u'"' || codeUnit == u'\'') {
        const qsizetype end = text_.indexOf(codeUnit, at + 1);
        if (end < 0) return Unclosed();
        at = end;
      } else if (codeUnit == u'(') {
        inner = u')';
      } else if (codeUnit == u'{') {
        inner = u'}';
      } else if (codeUnit == u'[') {
        inner = u']';
      }
      if (inner.isNull()) continue;
      const qsizetype end = BehindClose(at + 1, inner);
      if (end == 0) return 0;
      at = end - 1;
    }
    return Unclosed();
  }

  qsizetype Unclosed() {
    isUnclosed_ = true;
    return 0;
  }
  QChar At(qsizetype at) const { return at < text_.size() ? text_[at] : QChar(); }
  qsizetype NameEnd(qsizetype at) const {
    while (IsLetter(At(at))) ++at;
    return at;
  }
  qsizetype SkipBlanks(qsizetype at) const {
    while (At(at) == u' ') ++at;
    return at;
  }

  QStringView text_;  ///< from the sign on
  bool isUnclosed_ = false;
};

}  // namespace

qsizetype TemplateSigns::EndOf(qsizetype at, SignPlace place) {
  if (at >= text_.size() || unclosed_ >= MostUnclosed) return at;
  SignReader reader(text_, at);
  const qsizetype length = reader.Length(place);
  if (reader.IsUnclosed()) ++unclosed_;
  return at + length;
}

}  // namespace velor
