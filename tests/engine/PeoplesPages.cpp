// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/PeoplesPages.h"

#include "page/text/PageEncoding.h"

#include <QString>
#include <QStringList>

#include <random>

namespace velor {

namespace {

enum class Style { Capitals, Frameless, Xhtml, LayoutTables, Modern, Server };
constexpr std::uint32_t StyleCount = 6;

struct Writing {
  const char *charset;
  const char *words;
};

constexpr Writing Writings[] = {
    {"utf-8", "page welcome caf\u00e9 na\u00efve news home price \u20ac contact summer the of"},
    {"windows-1252", "caf\u00e9 garden \u201cquoted\u201d M\u00fcnchen se\u00f1or the and of by"},
    {"iso-8859-1", "\u00e9t\u00e9 for\u00eat the gar\u00e7on list of things ma\u00f1ana we sell"},
    {"iso-8859-2", "Praha \u010desk\u00fd \u0142\u00f3d\u017a the mu\u017eeum order of town"},
    {"windows-1251", "\u043d\u043e\u0432\u043e\u0441\u0442\u0438 \u0438 \u0434\u043e\u043c site"},
    {"koi8-r", "\u0413\u043b\u0430\u0432\u043d\u0430\u044f \u043e \u043d\u0430\u0441 links"},
    {"iso-8859-7", "\u03b5\u03bb\u03bb\u03ac\u03b4\u03b1 \u03ba\u03b1\u03b9 page"},
    {"windows-1255", "\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd page"},
    {"big5", "\u6b61\u8fce\u5149\u81e8 \u9996\u9801 \u53f0\u5317 home"},
    {"gb2312", "\u6b22\u8fce \u9996\u9875 \u5317\u4eac news"},
    {"shift_jis", "\u65e5\u672c\u8a9e \u8868\u793a \u30bd\u30d5\u30c8 page"},
    {"euc-jp", "\u65e5\u672c\u8a9e \u30da\u30fc\u30b8 link"},
    {"iso-2022-jp", "\u65e5\u672c \u6771\u4eac mail"},
    {"euc-kr", "\ud55c\uad6d\uc5b4 \ud648\ud398\uc774\uc9c0 main"},
    {"", "undeclared words of a plain page with nothing odd in them"},
    {"utf-16le", "two bytes each \u65e5\u672c caf\u00e9 words here"},
};

class Author {
 public:
  explicit Author(std::uint32_t number)
      : random_(number * 2654435761U + 1),
        style_(static_cast<Style>(number % StyleCount)),
        writing_(Writings[Below(static_cast<std::uint32_t>(std::size(Writings)))]),
        words_(QString::fromUtf8(writing_.words).split(u' ')) {}

  QByteArray Page() {
    Head();
    for (std::uint32_t left = 6 + Below(10); left > 0; --left) Block(2);
    Foot();
    return Bytes();
  }

 private:
  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_() % limit); }
  bool Chance(std::uint32_t percent) { return Below(100) < percent; }
  bool IsOld() const { return style_ == Style::Capitals || style_ == Style::LayoutTables; }

  void Write(const QString &text) { text_ += text; }
  void Write(const char *text) { text_ += QString::fromUtf8(text); }
  /// Markup in the style's letters and quotes.
  QString Tag(const QString &name, const QString &attribute = {}, const QString &value = {}) {
    QString tag = u'<' + (IsOld() ? name.toUpper() : name);
    if (!attribute.isEmpty()) {
      const QString quote = IsOld() && !value.contains(u' ') ? QString() : QStringLiteral("\"");
      tag += u' ' + (IsOld() ? attribute.toUpper() : attribute) + u'=' + quote + value + quote;
    }
    const bool isVoid = name == u"br" || name == u"img" || name == u"hr" || name == u"input";
    return tag + (isVoid && style_ == Style::Xhtml ? QStringLiteral(" />") : QStringLiteral(">"));
  }
  QString End(const QString &name) {
    return QStringLiteral("</") + (IsOld() ? name.toUpper() : name) + u'>';
  }
  /// An end tag that may be left out.
  QString OptionalEnd(const QString &name) {
    const bool isLeftOut = style_ != Style::Xhtml && style_ != Style::Modern && !leavesNothingOut_;
    return isLeftOut && Chance(70) ? QString() : End(name);
  }
  void Line(std::uint32_t depth = 0) {
    Write("\n");
    if (indents_) Write(QString(static_cast<qsizetype>(depth), u'\t'));
    if (Chance(4)) Write("\n");
    if (Chance(3)) Write(" ");
  }

  QString Word() {
    return words_[static_cast<qsizetype>(Below(static_cast<std::uint32_t>(words_.size())))];
  }
  QString Words(std::uint32_t most) {
    QStringList words;
    for (std::uint32_t left = 1 + Below(most); left > 0; --left) words << Word();
    return words.join(Chance(5) ? QStringLiteral("  ") : QStringLiteral(" "));
  }

  void Inline() {
    static constexpr const char *References[] = {"&nbsp;",          "&copy; 2001",   "&amp;",
                                                 "&eacute;t&#233;", "&quot;x&quot;", "&lt;b&gt;",
                                                 "&mdash;"};
    switch (Below(14)) {
      case 0:
        return Write(Tag(QStringLiteral("b")) + Words(3) + End(QStringLiteral("b")));
      case 1:
        return Write(Tag(QStringLiteral("i")) + Tag(QStringLiteral("b")) + Words(2) +
                     End(QStringLiteral("b")) + u' ' + Word() + End(QStringLiteral("i")));
      case 2:
        return Write(
            Tag(QStringLiteral("a"), QStringLiteral("href"), QStringLiteral("page.htm?a=1&b=2")) +
            Words(3) + End(QStringLiteral("a")));
      case 3:
        return Write(
            IsOld()
                ? Tag(QStringLiteral("font"), QStringLiteral("color"), QStringLiteral("#FF0000")) +
                      Words(3) + End(QStringLiteral("font"))
                : Tag(QStringLiteral("span"), QStringLiteral("class"), QStringLiteral("x y")) +
                      Words(3) + End(QStringLiteral("span")));
      case 4:
        Write(Tag(QStringLiteral("br")));
        return Line(3);
      case 5:
        return Write(Tag(QStringLiteral("img"), QStringLiteral("src"), QStringLiteral("a.gif")));
      case 6:
        return Write("<!-- " + Words(2) + " -->");
      case 7:
      case 8:
        return Write(QString::fromUtf8(
            References[Below(static_cast<std::uint32_t>(std::size(References)))]));
      case 9:
        if (style_ != Style::Server) return Write(Words(4));
        return Write(Chance(50) ? "<%= rs(\"name\") %>" : "<?php echo $name; ?>");
      default:
        Write(Words(8));
    }
  }
  void Text(std::uint32_t most) {
    Write(Word());
    for (std::uint32_t left = 1 + Below(most); left > 0; --left) {
      if (Chance(12))
        Line(3);
      else
        Write(" ");
      Inline();
    }
    Write(" " + Word());
  }

  void List(std::uint32_t depth) {
    const QString name = Chance(70) ? QStringLiteral("ul") : QStringLiteral("ol");
    Write(Tag(name));
    for (std::uint32_t left = 1 + Below(4); left > 0; --left) {
      Line(2);
      Write(Tag(QStringLiteral("li")));
      Text(2);
      if (depth > 0 && Chance(15)) List(depth - 1);
      Write(OptionalEnd(QStringLiteral("li")));
    }
    Line(1);
    Write(End(name));
  }
  void Table(std::uint32_t depth) {
    const bool hasBody = Chance(25);
    Write(Tag(QStringLiteral("table"), QStringLiteral("border"), QString::number(Below(2))));
    if (hasBody) Write(Tag(QStringLiteral("tbody")));
    for (std::uint32_t rows = 1 + Below(3); rows > 0; --rows) {
      Line(1);
      if (style_ == Style::Server && Chance(20)) Write("<% Do While Not rs.EOF %>");
      Write(Tag(QStringLiteral("tr")));
      for (std::uint32_t cells = 1 + Below(3); cells > 0; --cells) {
        Line(2);
        Write(Chance(30) ? Tag(QStringLiteral("td"), QStringLiteral("width"), QStringLiteral("50%"))
                         : Tag(QStringLiteral("td")));
        if (depth > 0 && Chance(style_ == Style::LayoutTables ? 60 : 8))
          Block(depth - 1);
        else
          Text(2);
        Write(OptionalEnd(QStringLiteral("td")));
      }
      Write(OptionalEnd(QStringLiteral("tr")));
    }
    Line(1);
    if (hasBody) Write(End(QStringLiteral("tbody")));
    Write(End(QStringLiteral("table")));
  }

  void Block(std::uint32_t depth) {
    Line(1);
    switch (Below(style_ == Style::LayoutTables ? 15 : 12)) {
      case 0: {
        const QString name = u'h' + QString::number(1 + Below(4));
        Write(Tag(name));
        Text(1);
        return Write(End(name));
      }
      case 1:
        return List(1);
      case 2:
      case 12:
      case 13:
      case 14:
        return Table(depth > 0 ? depth - 1 : 0);
      case 3:
        Write(Tag(QStringLiteral("pre")));
        Write("\nfirst  line\n   " + Words(3) + "\n");
        return Write(End(QStringLiteral("pre")));
      case 4:
        return Write(Tag(QStringLiteral("hr")));
      case 5: {
        const QString name = IsOld() ? QStringLiteral("center") : QStringLiteral("div");
        Write(Tag(name));
        for (std::uint32_t left = 1 + Below(3); depth > 0 && left > 0; --left) Block(depth - 1);
        Line(1);
        return Write(End(name));
      }
      case 6:
        Write(Tag(QStringLiteral("form"), QStringLiteral("action"), QStringLiteral("go.cgi")) +
              Tag(QStringLiteral("input"), QStringLiteral("name"), QStringLiteral("q")) + Words(2));
        return Write(End(QStringLiteral("form")));
      case 7:
        Write(Tag(QStringLiteral("dl")));
        for (std::uint32_t left = 1 + Below(2); left > 0; --left) {
          Line(2);
          Write(Tag(QStringLiteral("dt")) + Words(2) + OptionalEnd(QStringLiteral("dt")) +
                Tag(QStringLiteral("dd")));
          Text(2);
          Write(OptionalEnd(QStringLiteral("dd")));
        }
        return Write(End(QStringLiteral("dl")));
      case 8:
        Write(Tag(QStringLiteral("blockquote")));
        Text(2);
        return Write(End(QStringLiteral("blockquote")));
      default:
        Write(Chance(20)
                  ? Tag(QStringLiteral("p"), QStringLiteral("align"), QStringLiteral("center"))
                  : Tag(QStringLiteral("p")));
        Text(6);
        Write(OptionalEnd(QStringLiteral("p")));
    }
  }

  void Head() {
    static constexpr const char *Doctypes[] = {
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2 Final//EN\">",
        "",
        ("<?xml version=\"1.0\"?>\n<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 "
         "Transitional//EN\" "
         "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">"),
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\">",
        "<!doctype html>",
        "<%@ Language=VBScript %>"};
    const QString meta =
        qstrlen(writing_.charset) == 0 || qstrcmp(writing_.charset, "utf-16le") == 0
            ? QString()
            : Tag(QStringLiteral("meta"), QStringLiteral("charset"),
                  QString::fromLatin1(writing_.charset));
    Write(Doctypes[static_cast<std::size_t>(style_)]);
    if (style_ == Style::Frameless) {
      Write(meta);
      return Write("<title>" + Words(2) + "</title>");
    }
    Line();
    Write(Tag(QStringLiteral("html")));
    Line();
    Write(Tag(QStringLiteral("head")));
    Write(meta);
    Line();
    Write(Tag(QStringLiteral("title")) + Words(3) + End(QStringLiteral("title")));
    if (style_ == Style::Modern || Chance(20)) {
      Write(
          "\n<style type=\"text/css\">\n<!--\nbody > p { color: red }\n-->\n</style>\n<script>\n"
          "if (a < b && c) document.write('<p>x</p>');\n</script>");
    }
    Line();
    Write(End(QStringLiteral("head")));
    Line();
    Write(IsOld() ? Tag(QStringLiteral("body"), QStringLiteral("bgcolor"), QStringLiteral("white"))
                  : Tag(QStringLiteral("body")));
  }
  void Foot() {
    Line();
    if (style_ == Style::Frameless || (IsOld() && Chance(20))) return;
    Write(End(QStringLiteral("body")));
    Line();
    Write(End(QStringLiteral("html")));
    Line();
  }

  QByteArray Bytes() {
    if (!Chance(50)) {
      const bool isMixed = Chance(20);
      const QString usual = Chance(80) ? QStringLiteral("\r\n") : QStringLiteral("\r");
      for (qsizetype at = text_.indexOf(u'\n'); at >= 0; at = text_.indexOf(u'\n', at + 2)) {
        if (!isMixed || Chance(60)) text_.replace(at, 1, usual);
      }
    }
    PageEncoding encoding;
    encoding.charset = CharsetForLabel(QString::fromLatin1(writing_.charset));
    if (encoding.charset.isEmpty()) encoding.charset = QStringLiteral("utf-8");
    encoding.byteOrderMark = encoding.charset == u"utf-16le";
    return EncodePage(text_, encoding);
  }

  std::mt19937 random_;
  Style style_;
  Writing writing_;
  QStringList words_;
  QString text_;
  bool leavesNothingOut_ = Chance(25);
  bool indents_ = Chance(40);
};

}  // namespace

QByteArray PeoplesPage(std::uint32_t number) {
  return Author(number).Page();
}

}  // namespace velor
