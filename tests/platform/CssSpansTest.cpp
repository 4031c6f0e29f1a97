// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/CssSpans.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace velor {

namespace {

/// The spans as "kind:text", the kinds by their first letters.
QByteArray Spans(QByteArrayView css) {
  constexpr const char *Kinds[] = {"sel", "prop", "str", "num", "com", "at"};
  QByteArray told;
  for (const CssSpan &span : CssSpans(css)) {
    if (!told.isEmpty()) told += ' ';
    told += Kinds[static_cast<int>(span.part)];
    told += ':' + css.sliced(span.begin, span.end - span.begin).toByteArray();
  }
  return told;
}

}  // namespace

TEST(CssSpans, SelectorsPropertiesAndValuesAreToldApart) {
  EXPECT_EQ(Spans("p.note, #top { color: red; margin:0 -1.5em }"),
            "sel:p sel:.note sel:#top prop:color prop:margin num:0 num:-1.5em");
  EXPECT_EQ(Spans("a{color:#ff8800;width:50%}b{}"),
            "sel:a prop:color num:#ff8800 prop:width num:50% sel:b");
}

TEST(CssSpans, CommentsAndStringsAreTakenWhole) {
  EXPECT_EQ(Spans("/* a{b:c} */ q { content: \"}\\\"\"; }"),
            "com:/* a{b:c} */ sel:q prop:content str:\"}\\\"\"");
}

TEST(CssSpans, RulesWithinConditionsHaveSelectors) {
  EXPECT_EQ(Spans("@media print { p { color: black } } @import 'x.css'; h1 {}"),
            "at:@media sel:p prop:color at:@import str:'x.css' sel:h1");
}

TEST(CssSpans, WhatIsCutOffOrWrongIsNoHarm) {
  for (const QByteArray &css :
       {QByteArray("/*"), QByteArray("'"), QByteArray("@"), QByteArray("}}}{{{::;;"),
        QByteArray("\0\xff\\", 3), QByteArray("a{b:\"\\")}) {
    const auto spans = CssSpans(css);
    EXPECT_LE(spans.empty() ? 0 : spans.back().end, css.size());
  }
}

}  // namespace velor
