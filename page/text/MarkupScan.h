// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

/// Scanning that the readers of a page's source share.
namespace velor {

inline bool IsMarkupSpace(QChar codeUnit) {
  return codeUnit == u' ' || codeUnit == u'\n' || codeUnit == u'\t' || codeUnit == u'\r' ||
         codeUnit == u'\f';
}

/// The offset behind the next `close`; the text's end where there is none.
qsizetype BehindNext(QStringView text, QStringView close, qsizetype from);

/// The offset behind the server code (`<% %>`, `<?php ?>`, `<?= ?>`, `<? ?>`) that begins at `at`;
/// `at` itself where none does. Code that nothing ends goes on to the end of the source.
qsizetype EndOfServerCode(QStringView source, qsizetype at);

/// The offset behind the comment whose "<!--" stands at `at`; the end of the source where nothing
/// ends it.
qsizetype EndOfComment(QStringView source, qsizetype at);

}  // namespace velor
