// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/NastyPages.h"

#include <iterator>
#include <random>
#include <string_view>

namespace velor {

namespace {

using namespace std::string_view_literals;
using Piece = std::string_view;

constexpr Piece Beginnings[] = {
    "",
    "<!DOCTYPE html>\n",
    "<html>\n<head><title>t &amp t</title></head>\n<body bgcolor=white>\n",
    "<!-- first --><!DOCTYPE HTML PUBLIC '-//W3C//DTD HTML 3.2//EN'>\r\n<HTML>\r\n",
    "<?xml version='1.0'?>\n<html xmlns='http://www.w3.org/1999/xhtml'><body/>\n",
    "\xEF\xBB\xBF<body><body class=second><html lang=en>",
    "<meta charset=shift_jis>\n",
    "<meta charset=windows-1251>\r",
    "<meta http-equiv=content-type content='text/html; charset=big5'>\n",
    "text first <head><base target=x></head>",
};

constexpr Piece Formatting[] = {
    "<b>",     "</b>",   "<i>",        "</i>",         "<font color=red>",
    "</font>", "<a>",    "<a href=#>", "</a>",         "<nobr>",
    "</nobr>", "<code>", "</code>",    "<u id=\"u\">", "<EM class=x>"};

constexpr Piece Blocks[] = {"<p>",       "</p>",         "<P ALIGN=center>",
                            "<div>",     "</div>",       "<h1>",
                            "</h2>",     "<ul>",         "<li>",
                            "</ul>",     "<dl>",         "<dt>",
                            "<dd>",      "</dl>",        "<pre>\n\n",
                            "</pre>",    "<blockquote>", "<center>",
                            "</center>", "<address>",    "<form>",
                            "<form>",    "</form>",      "<hr/>",
                            "</br>",     "<br>",         "<button>",
                            "</button>", "<marquee>",    "<fieldset>"};

constexpr Piece Tables[] = {"<table>",    "<table border>", "</table>", "<tr>",
                            "<tr>",       "<td>",           "<td>",     "</td>",
                            "</tr>",      "<tbody>",        "</tbody>", "<caption>",
                            "<colgroup>", "<col>",          "<th>",     "<input type=hidden>",
                            "<thead>",    "</caption>"};

constexpr Piece Foreign[] = {"<svg>",
                             "<svg viewBox='0 0 9 9'><path d='M0 0'/>",
                             "</svg>",
                             "<math><mi>x</mi>",
                             "</math>",
                             "<foreignObject>",
                             "</foreignObject>",
                             "<![CDATA[ a<b ]]>",
                             "<mtext>",
                             "<annotation-xml encoding='text/html'>",
                             "<desc>",
                             "<g/>"};

constexpr Piece Closed[] = {"<template><p>in</template>",
                            "<template>",
                            "</template>",
                            "<select><option>one<option selected>two</select>",
                            "<select>",
                            "<optgroup>",
                            "</select>",
                            "<textarea>\n a &lt; <b></textarea>",
                            "<script>if (a<b) '</p>' <!-- <script> --></script>",
                            "<style>p > a { }</style>",
                            "<noscript><p>none</noscript>",
                            "<xmp><b></xmp>",
                            "<iframe><p></iframe>",
                            "<object><param name=a><embed src=b></object>",
                            "<ruby>a<rt>b<rp>c</ruby>",
                            "<title>late</title>",
                            "<image src=a.gif>",
                            "<isindex>"};

constexpr Piece Frames[] = {"<frameset rows='*'>",    "<frame src=a>", "</frameset>",
                            "<noframes>x</noframes>", "</body>",       "</html>",
                            "<body text=red>",        "<head>"};

constexpr Piece Marks[] = {"<!-- c -->",
                           "<!-->",
                           "<!--->",
                           "<!-- -- > --!>",
                           "<!bogus>",
                           "<?php $a>b ?>",
                           "<% if a < b then %>",
                           "</>",
                           "</ x>",
                           "<!DOCTYPE late>",
                           "<![CDATA[x]]>",
                           "<p =a b==c d='e\"f' d=g>",
                           "<p a=1/b c=<d>",
                           "<3 ",
                           "<div title=\"a\r\nb\tc\">",
                           "<a href='x?a=b&copy=c&amp;d'>"};

constexpr Piece Text[] = {"one two ",
                          "three ",
                          "some words, ",
                          "&eacute;",
                          "&eacute ",
                          "&notit; ",
                          "&#128; ",
                          "&#x0; ",
                          "&#xD800; ",
                          "a&b ",
                          "&nbsp;",
                          "AT&T ",
                          "caf\xC3\xA9 ",
                          "\xE9t\xE9 ",
                          "\x83\x65\x83\x58 ",
                          "\xA4\xA4\xA4\xE5 ",
                          "\xFF\xFE ",
                          "\x81 "};

constexpr Piece Blanks[] = {"\n", "\r\n", "\r", " ", "\t ", "\f", "\0"sv, "\n\n", "\v", "\x1A"};

class Generator {
 public:
  explicit Generator(std::uint32_t number) : random_(number) {}

  QByteArray Page() {
    QByteArray page;
    Add(page, Beginnings);
    for (std::size_t parts = 10 + Pick(50); parts > 0; --parts) AddPart(page);
    // Now and then the page is cut off anywhere, or nothing ends any more.
    if (Pick(6) == 0)
      page.truncate(static_cast<qsizetype>(Pick(static_cast<std::size_t>(page.size()))));
    page += " last words";
    if (Pick(12) == 0) page += "<plaintext>more <b>words</b>\n</plaintext>";
    if (Pick(3) == 0) page += "</body>\r\n</html>\n";
    return page;
  }

 private:
  std::size_t Pick(std::size_t count) { return count == 0 ? 0 : random_() % count; }
  template <std::size_t Count>
  void Add(QByteArray &page, const Piece (&pieces)[Count]) {
    const Piece piece = pieces[Pick(Count)];
    page.append(piece.data(), static_cast<qsizetype>(piece.size()));
  }
  void AddPart(QByteArray &page) {
    switch (Pick(16)) {
      case 0:
      case 1:
        return Add(page, Formatting);
      case 2:
      case 3:
        return Add(page, Blocks);
      case 4:
      case 5:
        return Add(page, Tables);
      case 6:
        return Add(page, Foreign);
      case 7:
        return Add(page, Closed);
      case 8:
        return Add(page, Marks);
      case 9:
        return Pick(4) == 0 ? Add(page, Frames) : Add(page, Blanks);
      case 10:
      case 11:
        return Add(page, Blanks);
      default:
        return Add(page, Text);
    }
  }

  std::mt19937 random_;
};

}  // namespace

QByteArray NastyPage(std::uint32_t number) {
  return Generator(number).Page();
}

}  // namespace velor
