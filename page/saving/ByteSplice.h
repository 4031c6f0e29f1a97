// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageText.h"

#include <QString>

#include <vector>

namespace velor {

/// A stretch of a text and what takes its place; offsets in UTF-16 units.
struct TextPatch {
  qsizetype start = 0;
  qsizetype end = 0;
  QString text;
};

/// The text with all patches; they are in order and do not overlap.
QString Patched(const QString &text, const std::vector<TextPatch> &patches);

/// Carries patches of a page's text (order and overlap as above) over into its bytes: what no patch
/// touches is copied byte by byte, valid in the charset or not. What the charset lacks is written
/// as a reference. Raises InvalidProcedureCall where no reference can stand (scripts, style sheets,
/// comments, names of tags and attributes, server code).
PageToWrite SpliceBytes(const PageOriginal &original, const std::vector<TextPatch> &patches);

/// The bytes of a text that takes the place of the page's: lines that it shares with the page keep
/// their bytes where the encoding stays. Raises as above.
QByteArray BytesForText(const PageOriginal &original, const QString &text,
                        const PageEncoding &encoding);

/// A whole text in a page's charset; raises as above.
PageToWrite WriteWhole(const QString &text, const PageEncoding &encoding);

}  // namespace velor
