// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page-check/WordDeletion.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

struct Deleted {
  const char *name;
  const char *file;
  const char *saved;
  const char *word;
  const char *with;
  int beyond = 0;
};

class WordDeletionSample : public ::testing::TestWithParam<Deleted> {};

TEST_P(WordDeletionSample, IsToldApartFromWhatNobodyAskedFor) {
  const auto &[name, file, saved, word, with, beyond] = GetParam();
  const WordDeletion result = JudgeWordDeletion(file, saved, QString::fromUtf8(word));
  EXPECT_EQ(result.with.join(u' ').toStdString(), with);
  EXPECT_EQ(result.beyond, beyond);
}

const Deleted Samples[] = {
    {"Word", "<p>one two</p>", "<p>one </p>", "two", ""},
    {"WordAndBlank", "<p>one two three</p>", "<p>one three</p>", "two", "blank"},
    {"WordThatEndsAsTheOneBefore", "<p>text that is", "<p>text is", "that", "blank"},
    {"WordLikeItsNeighbour", "<p>x at a y</p>", "<p>x a y</p>", "at", "blank"},
    {"Reference", "<p>une libert&eacute;, x", "<p>une , x", "libert\xC3\xA9", ""},
    {"OtherCharset",
     "<meta charset=iso-8859-1><p>b\xFC"
     "cher x",
     "<meta charset=iso-8859-1><p> x",
     "b\xC3\xBC"
     "cher",
     ""},
    {"Link", "<p>one <a href=\"b.htm\"><b>two</b></a> three", "<p>one three", "two",
     "element blank"},
    {"Cell", "<td>two</td>", "<td><br></td>", "two", "line"},
    {"LinkInItem", "<ul>\n<li><a href=x>two</a></li>", "<ul>\n<li><br></li>", "two",
     "line element"},
    {"Sign", "<p>one {% if two %} three", "<p>one three", "two", "sign blank"},
    {"OneOfTwoSigns", "<p>{{ a2 }} {{ b2 }} x", "<p>{{ a2 }} x", "b2", "sign blank"},
    {"LinkThatClosedAnother", "<a href=x><img><a href=y>two</a> |", "<a href=x><img></a> |", "two",
     "element"},
    {"EndTagLeftOver", "<p>one <b>two</b> |", "<p>one </b> |", "two", "", 3},
    {"OtherWord", "<p>one two three four", "<p>one four", "two", "", 7},
    {"SourceLines", "<p>one\n  two\n  three", "<p>one three", "two", "", 5},
    {"StrayTag", "<p>one two</a> three", "<p>one three", "two", "blank", 4},
    {"EmptyElementLeft", "<p>one <a href=x>two</a>", "<p>one <a href=y></a>", "two", "", 20},
    {"WordThatIsThere", "<p>one two", "<p>one two", "two", "", 3},
};
INSTANTIATE_TEST_SUITE_P(Samples, WordDeletionSample, ::testing::ValuesIn(Samples),
                         [](const auto &sample) { return std::string(sample.param.name); });

}  // namespace
}  // namespace velor
