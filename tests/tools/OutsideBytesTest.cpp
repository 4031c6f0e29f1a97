// SPDX-License-Identifier: GPL-3.0-or-later
// What counts as the edit's own, as needed for it, and as outside.
#include "tools/page-check/OutsideBytes.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

QString Document(const QString &body) {
  return QStringLiteral("<html><head></head><body>") + body + QStringLiteral("</body></html>");
}

BytesBeyondEdit Count(const QByteArray &file, const QByteArray &saved, const QString &before,
                      const QString &now) {
  return CountBytesBeyondEdit({file, saved, Document(before), Document(now)});
}

TEST(BytesBeyondEdit, AreNoneWhereTheEditAloneIsSaved) {
  const BytesBeyondEdit beyond =
      Count("<P>one<P>two", "<P>one<P>new two", QStringLiteral("<p>one</p><p>two</p>"),
            QStringLiteral("<p>one</p><p>new two</p>"));
  EXPECT_EQ(beyond.outside, 0);
  EXPECT_EQ(beyond.implied, 0);
}

TEST(BytesBeyondEdit, CountWhatWasWrittenInOtherWords) {
  EXPECT_EQ(Count("<P>one<P>two", "<p>one<p>new two", QStringLiteral("<p>one</p><p>two</p>"),
                  QStringLiteral("<p>one</p><p>new two</p>"))
                .outside,
            4);
}

TEST(BytesBeyondEdit, TellTheTagsThatTheDocumentNeeds) {
  const BytesBeyondEdit beyond =
      Count("<P>one<P>two", "<P>one</p><img><P>two", QStringLiteral("<p>one</p><p>two</p>"),
            QStringLiteral("<p>one</p><img><p>two</p>"));
  EXPECT_EQ(beyond.outside, 0);
  EXPECT_EQ(beyond.implied, 4);
}

TEST(BytesBeyondEdit, TellThemWhereTheyStandInAnothersPlace) {
  const BytesBeyondEdit beyond = Count("<p>one\r<h1>two</h1>\r<p>three", "<p>one\r</p>\r<p>three",
                                       QStringLiteral("<p>one\n</p><h1>two</h1>\n<p>three</p>"),
                                       QStringLiteral("<p>one\n</p>\n<p>three</p>"));
  EXPECT_EQ(beyond.outside, 0);
  EXPECT_EQ(beyond.implied, 4);
}

TEST(BytesBeyondEdit, AreNoneWhereALineBreakInAnAttributeGoes) {
  const BytesBeyondEdit beyond = Count("<p title=\"a\r\nb\">one\r\n", "<p title=\"a new\">one\r\n",
                                       QStringLiteral("<p title=\"a\nb\">one\n</p>"),
                                       QStringLiteral("<p title=\"a new\">one\n</p>"));
  EXPECT_EQ(beyond.outside, 0);
}

TEST(BytesBeyondEdit, TellTheTagThatTheEditGaveAttributes) {
  const BytesBeyondEdit beyond =
      Count("<div><h1><a id=a>one</h1><p>two</div>",
            R"(<div><h1><a id=a>one</a></h1><a id="a" title="new"><p>two</div>)",
            QStringLiteral("<div><h1><a id=\"a\">one</a></h1><a id=\"a\"></a><p><a id=\"a\">two</a>"
                           "</p></div>"),
            QStringLiteral("<div><h1><a id=\"a\">one</a></h1><a id=\"a\" title=\"new\"></a><p>"
                           "<a id=\"a\">two</a></p></div>"));
  EXPECT_EQ(beyond.outside, 0);
  EXPECT_EQ(beyond.implied, 14);
}

TEST(BytesBeyondEdit, AreNoneWhereWhatTheParserMovedIsTakenAway) {
  const BytesBeyondEdit beyond =
      Count("<table><tr>lost words here<td>a</td></table>", "<table><tr>lost words here</table>",
            QStringLiteral("lost words here<table><tbody><tr><td>a</td></tr></tbody></table>"),
            QStringLiteral("lost words here<table><tbody><tr></tr></tbody></table>"));
  EXPECT_EQ(beyond.outside, 0);
}

TEST(ByteDifference, ForgivesNothing) {
  const auto count = [](const char *file, const char *saved) {
    const ByteDifference difference = CountByteDifference(file, saved);
    return std::pair(difference.lost, difference.added);
  };
  EXPECT_EQ(count("<p>one two\n  </p>", "<p>one two\n  </p>"),
            std::pair(qsizetype{0}, qsizetype{0}));
  EXPECT_EQ(count("<p>one two\n  </p>", "<p>one twoword\n  </p>"),
            std::pair(qsizetype{0}, qsizetype{4}));
  EXPECT_EQ(count("<p>one two\n  </p>", "<p>one twoword</p>"),
            std::pair(qsizetype{3}, qsizetype{4}));
  EXPECT_EQ(count("<P>one", "<p>one"), std::pair(qsizetype{1}, qsizetype{1}));
  EXPECT_EQ(count("", "<p>"), std::pair(qsizetype{0}, qsizetype{3}));
}

}  // namespace

}  // namespace velor
