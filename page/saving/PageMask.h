// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace velor {

/// What must not reach the engine as it stands, replaced by what a parser leaves alone: server code
/// (`<% %>`, `<?php ?>`, and `<!--#include-->` inside tags), NOSCRIPT elements (whose content is
/// markup where scripts are off, and tears a HEAD open), the attribute that makes a TEMPLATE a
/// shadow root (whose content no serialisation has). Content becomes a comment, what stands inside
/// a tag a word. Real comments stay.
/// Left out altogether: the blanks behind a page's last end tags. A parser moves them before these,
/// where they would stand between the page's text and whatever is added at its end.
///
/// Offsets count UTF-16 units. "Masked" is the text that the engine is given, or one of its
/// serialisations.
class PageMask {
 public:
  explicit PageMask(const QString &source);

  const QString &MaskedText() const { return masked_; }

  /// A text of the engine's with the original pieces in the place of their masks.
  QString Unmask(const QString &text) const;

  /// Whether that place of the source is in server code.
  bool IsServerCode(qsizetype source) const;

  enum class Edge { Start, End };
  /// Where an offset into MaskedText() lies in the source; one inside a mask goes to the mask's
  /// edge.
  qsizetype ToSource(qsizetype masked, Edge edge) const;
  /// An offset into MaskedText() that lies inside a mask moved to the mask's edge.
  qsizetype OutOfMask(qsizetype masked, Edge edge) const;

 private:
  friend class PageMasker;
  enum class Kind { Content, AttributeName, InTag, LeftOut };
  struct Piece {
    qsizetype source = 0;
    qsizetype sourceLength = 0;
    qsizetype masked = 0;
    qsizetype maskedLength = 0;
    Kind kind = Kind::Content;
    QString text;
  };

  const Piece *PieceBefore(qsizetype masked) const;

  QString masked_;
  QString stem_;
  std::vector<Piece> pieces_;
};

}  // namespace velor
