// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <array>

namespace velor::bench {

struct Size {
  const char *name;
  int bytes;
  int rounds;
};
inline constexpr std::array<Size, 4> Sizes = {Size{"10 KB", 10'000, 9},
                                              {"100 KB", 100'000, 7},
                                              {"1 MB", 1'000'000, 5},
                                              {"10 MB", 10'000'000, 1}};

/// A page such as people have: headings, paragraphs with inline markup, a table now and then.
QByteArray SamplePage(int bytes);

/// A page of one kind of thing in great numbers.
struct Shape {
  const char *name;
  const char *before;
  const char *part;
  const char *after;
  int parts;
};
inline constexpr std::array<Shape, 6> Shapes = {
    Shape{"one paragraph of 1 MB", "<p>", "the quick brown fox ", "</p>", 50'000},
    {"20,000 runs in a paragraph", "<p>", "plain <b>bold</b> ", "</p>", 20'000},
    {"50,000 paragraphs", "", "<p>a short one</p>\n", "", 50'000},
    {"a table of 20,000 rows", "<table>", "<tr><td>one</td><td>two</td></tr>\n", "</table>",
     20'000},
    {"a list of 20,000 items", "<ul>", "<li>an item</li>\n", "</ul>", 20'000},
    {"20,000 lines without paragraphs", "", "a line<br>\n", "", 20'000}};
QByteArray ShapedPage(const Shape &shape);

}  // namespace velor::bench
