// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

enum class LineEnds { CrLf, Lf, Cr };

/// How a page's bytes stand for its text: what must be the same when it is written again.
struct PageEncoding {
  /// WHATWG name in lower case ("utf-8", "big5", "windows-1252", "utf-16le" ...).
  QString charset = QStringLiteral("utf-8");
  bool byteOrderMark = false;
  /// The form that most of the page's line breaks have; CrLf for a page without any.
  LineEnds lineEnds = LineEnds::CrLf;

  bool operator==(const PageEncoding &) const = default;
};

struct DecodedPage {
  /// Line ends as in the file; no byte order mark.
  QString text;
  PageEncoding encoding;
};

/// Reads a page's bytes as browsers do (WHATWG Encoding and the HTML standard's prescan): byte
/// order mark, else the charset declared in the head, else UTF-8 where the bytes are valid UTF-8,
/// else windows-1252. A declared charset that nobody knows counts as undeclared.
/// Bytes that are no text in the charset become U+FFFD. Never raises.
DecodedPage DecodePage(const QByteArray &bytes);

/// Text to bytes in the page's charset; what the charset lacks becomes a decimal character
/// reference (&#26085;). Line ends are written as they stand in `text`.
QByteArray EncodePage(const QString &text, const PageEncoding &encoding);

/// The encoding that a text declares for itself in its head, else UTF-8 without a
/// byte order mark; line ends as found in the text.
PageEncoding DeclaredEncoding(const QString &text);

/// How to write a text that takes the place of a page read as `page`: a byte order mark stays and
/// decides, as it does for browsers; else what the text declares, else the page's charset.
PageEncoding EncodingInPlaceOf(const PageEncoding &page, const QString &text);

/// The encoding in words: "big5, LF", "utf-8 (BOM), CR LF".
QString InWords(const PageEncoding &encoding);

/// The WHATWG name for a label ("latin1" is "windows-1252"); empty for a label that is none.
QString CharsetForLabel(const QString &label);

/// All line breaks (CR LF, CR, LF) in the given form.
QString WithLineEnds(const QString &text, LineEnds ends);

}  // namespace velor
