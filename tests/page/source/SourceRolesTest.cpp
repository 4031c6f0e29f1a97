// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceRoles.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace velor {

namespace {

/// The source with its stretches of one role as "t:<p", text left out; line by line, as a control
/// does it.
std::string Roles(const QByteArray &source) {
  constexpr const char *Names[] = {"", "t", "a", "s", "c", "n", "e", "k"};
  std::string told;
  SourceLineState state = 0;
  for (qsizetype begin = 0; begin < source.size();) {
    const qsizetype lineEnd = source.indexOf('\n', begin);
    const qsizetype end = lineEnd < 0 ? source.size() : lineEnd + 1;
    const QByteArray line = source.sliced(begin, end - begin);
    std::vector<SourceRole> roles(static_cast<std::size_t>(line.size()), SourceRole::Text);
    state = RolesOfLine(line, state, roles.data());
    for (std::size_t at = 0; at < roles.size();) {
      std::size_t next = at;
      while (next < roles.size() && roles[next] == roles[at]) ++next;
      const QByteArray text =
          line.sliced(static_cast<qsizetype>(at), static_cast<qsizetype>(next - at)).trimmed();
      if (roles[at] != SourceRole::Text && !text.isEmpty()) {
        if (!told.empty()) told += ' ';
        told += Names[static_cast<std::size_t>(roles[at])];
        told += ':' + text.toStdString();
      }
      at = next;
    }
    begin = end;
  }
  return told;
}

}  // namespace

TEST(SourceRoles, TagsAttributesValuesAndReferencesAreToldApart) {
  EXPECT_EQ(Roles("<!DOCTYPE html><P align=left id='x'>a &amp; b &copy c & d</P>"),
            "t:<!DOCTYPE html><P a:align t:= s:left a:id t:= s:'x' t:> e:&amp; e:&copy t:</P>");
  EXPECT_EQ(Roles("a < b <1> <br/>"), "t:<br/>");
}

TEST(SourceRoles, WhatBeginsInOneLineGoesOnInTheNext) {
  EXPECT_EQ(Roles("<!-- a\n<b> --><i\ntitle\n=\n\"x\ny\">z"),
            "c:<!-- a c:<b> --> t:<i a:title t:= s:\"x s:y\" t:>");
}

TEST(SourceRoles, AScriptHasItsOwnAndEndsAtItsEndTagOnly) {
  EXPECT_EQ(Roles("<script>var a = '</b>' + 1.5; // if\n/* x\ny */ a.in / 2 / a</script>b"),
            "t:<script> k:var s:'</b>' n:1.5 c:// if c:/* x c:y */ n:2 t:</script>");
  EXPECT_EQ(Roles("<script>return /[/'\"]+/g.test(`a\nb`);</SCRIPT>"),
            "t:<script> k:return s:/[/'\"]+/g s:`a s:b` t:</SCRIPT>");
  EXPECT_EQ(Roles("<script><!-- hidden\nif (a)\n'a\\\nb' //--></script>"),
            "t:<script> c:<!-- hidden k:if s:'a\\ s:b' c://--> t:</script>");
}

TEST(SourceRoles, AScriptOfAnotherTypeIsText) {
  EXPECT_EQ(
      Roles("<script type=\"text/template\"><p>if</p></script><script type=module>if</script>"),
      "t:<script a:type t:= s:\"text/template\" t:> t:</script><script a:type t:= s:module "
      "t:> k:if t:</script>");
}

TEST(SourceRoles, AStyleSheetHasSelectorsPropertiesAndValues) {
  EXPECT_EQ(Roles("<style type=text/css>p.note, #top { color: red;\nmargin:0 -1.5em }</style>"),
            "t:<style a:type t:= s:text/css t:>p.note t:#top a:color a:margin n:0 n:-1.5em "
            "t:</style>");
  EXPECT_EQ(Roles("<style>/* a{b:c}\nd */ q { content: \"}\\\"\"; }</style>"),
            "t:<style> c:/* a{b:c} c:d */ t:q a:content s:\"}\\\"\" t:</style>");
  EXPECT_EQ(Roles("<style>@media print {\np { color: #abc } }\n@import 'x.css'; h1 {}</style>"),
            "t:<style> k:@media t:p a:color n:#abc k:@import s:'x.css' t:h1 t:</style>");
}

TEST(SourceRoles, ServerCodeStandsAnywhere) {
  EXPECT_EQ(Roles("<a href=\"<%= Link(\"x\") %>y\">b</a>"),
            "t:<a a:href t:= s:\" t:<% s:\"x\" t:%> s:y\" t:> t:</a>");
  EXPECT_EQ(Roles("<?php echo 'a>b';\n# if\n?><script>var a = <? echo 1 ?>;</script><?xml a?>"),
            "t:<?php k:echo s:'a>b' c:# if t:?><script> k:var t:<? k:echo n:1 t:?> "
            "t:</script><?xml a?>");
  EXPECT_EQ(Roles("<% Dim a ' set\nIf a Then %>b"), "t:<% k:Dim c:' set k:If k:Then t:%>");
}

TEST(SourceRoles, TitlesAndTextAreasHaveReferencesButNoTags) {
  EXPECT_EQ(Roles("<title>a <b> &lt;</title><textarea>&lt;<p></textarea><xmp><b>&lt;</xmp>"),
            "t:<title> e:&lt; t:</title><textarea> e:&lt; t:</textarea><xmp> t:</xmp>");
}

TEST(SourceRoles, AnyBytesInAnyStateAreNoHarm) {
  const std::vector<QByteArray> parts = {
      "<",      "<script", " src",     ">",        "</script>", "<!",      "<!--",     "-->",
      "<?",     "<?php",   "?>",       "<%",       "%>",        "'",       "\"",       "`",
      "/",      "*/",      "/*",       "\\",       "&",         "#",       "{",        "}",
      "@media", ":",       "=",        "\n",       "<style>",   "<title>", "\xff\xfe", "type=x",
      "</",     "[",       "\xc3\xa9", "<![CDATA["};
  std::mt19937 random(7);
  for (int round = 0; round < 20'000; ++round) {
    QByteArray line;
    for (auto count = random() % 12; count > 0; --count) line += parts[random() % parts.size()];
    line += QByteArray("\0", 1);
    std::vector<SourceRole> roles(static_cast<std::size_t>(line.size()));
    const auto state = static_cast<SourceLineState>(round % 2 == 0 ? random() : random() & 0x1FF);
    EXPECT_GE(RolesOfLine(line, state, roles.data()), 0);
    for (const SourceRole role : roles) ASSERT_LT(static_cast<int>(role), SourceRoleCount);
  }
}

}  // namespace velor
