// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace velor {

// Template languages put signs between and into tags: `{{#each}}`, `{% for %}`, `{# note #}`,
// `<#list>`, `[[x]]`, `${x}`, `#foreach($x in $y)`, `@for (x of y) {`. A page that is edited as
// its source template has them where HTML has no place for text.

/// Where a sign stands, which decides what counts as one.
enum class SignPlace {
  InTag,        ///< among or in attributes
  BetweenTags,  ///< where text may not stand: whatever looks like a sign is one
};

/// Finds the signs of a text. After a thousand unclosed signs it finds no more, so that a hostile
/// text costs no more than an ordinary one.
class TemplateSigns {
 public:
  explicit TemplateSigns(QStringView text) : text_(text) {}

  /// The offset behind the sign that begins at `at`; `at` itself where none begins.
  qsizetype EndOf(qsizetype at, SignPlace place);

 private:
  QStringView text_;
  int unclosed_ = 0;
};

}  // namespace velor
