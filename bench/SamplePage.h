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

}  // namespace velor::bench
