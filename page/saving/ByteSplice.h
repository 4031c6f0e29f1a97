// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageText.h"

#include <QString>

#include <vector>

namespace velor {

/// A stretch of a text and what takes its place; offsets in UTF-16 code units.
struct TextPatch {
  qsizetype start = 0;
  qsizetype end = 0;
  QString text;
};

/// The text with all patches applied. The patches are in order and do not overlap.
QString Patched(const QString &text, const std::vector<TextPatch> &patches);

/// Applies patches of a page's text (order and overlap as above) to its bytes. Bytes that no patch
/// touches are copied as they are, valid in the charset or not. A character that the charset lacks
/// is written as a reference. Raises InvalidProcedureCall where no reference can stand (scripts,
/// style sheets, comments, names of tags and attributes, server code).
PageToWrite SpliceBytes(const PageOriginal &original, const std::vector<TextPatch> &patches);

/// The bytes of a text that replaces the page's. Lines that both have keep their bytes where the
/// encoding stays the same. Raises as above.
QByteArray BytesForText(const PageOriginal &original, const QString &text,
                        const PageEncoding &encoding);

/// A whole text in a page's charset; raises as above.
PageToWrite WriteWhole(const QString &text, const PageEncoding &encoding);

}  // namespace velor
