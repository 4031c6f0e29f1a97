// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace velor {

/// Hides from the engine what it would move, drop or run:
/// - server code (`<% %>`, `<?php ?>`, and `<!--#include-->` inside tags);
/// - template signs (see TemplateSigns.h) among attributes and where text may not stand: between
/// the
///   parts of a table, before the body, behind the page's end;
/// - NOSCRIPT elements (where scripts are off their content is markup, which tears a HEAD open);
/// - the attribute that makes a TEMPLATE a shadow root, which no serialisation has.
/// In content a comment takes their place, inside a tag a word of the page's own. Real comments
/// stay. Left out altogether are blanks behind the page's last end tags: a parser moves them before
/// these tags, where they would stand between the page's text and whatever is added at its end.
///
/// Offsets count UTF-16 units. "Masked" is the text that the engine is given, or one of its
/// serialisations.
class PageMask {
 public:
  explicit PageMask(const QString &source);

  const QString &MaskedText() const { return masked_; }

  /// A text of the engine's with the original pieces in the place of their masks.
  QString Unmask(const QString &text) const;

  /// The first of the hidden pieces that neither serialisation has a mask of: it was dropped when
  /// the text was parsed, not by an edit.
  std::optional<QString> Dropped(const QString &before, const QString &now) const;

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
  enum class Kind { Content, AttributeName, NamePart, InTag, LeftOut };
  struct Piece {
    qsizetype source = 0;
    qsizetype sourceLength = 0;
    qsizetype masked = 0;
    qsizetype maskedLength = 0;
    Kind kind = Kind::Content;
    QString text;
  };

  QString WordOf(std::size_t number) const;
  const Piece *PieceBefore(qsizetype masked) const;

  QString masked_;
  QString stem_;
  std::vector<Piece> pieces_;
};

}  // namespace velor
