// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace velor {

/// Hides from the engine what it would move, drop or run:
/// - server code (`<% %>`, `<?php ?>`, and `<!--#include-->` inside tags), and tags of a server's
///   library that would end the tag or value that they stand in;
/// - template signs (TemplateSigns.h) among attributes and where text may not stand: between parts
///   of a table, before the body, behind the page's end;
/// - NOSCRIPT elements (with scripts off a parser reads their content as markup, which ends a
/// HEAD);
/// - the attribute that makes a TEMPLATE a shadow root, which no serialisation has.
/// In content a comment takes the place of such a piece, inside a tag a word that the page does not
/// contain. The page's own comments stay. Blanks behind the page's last end tags are left out
/// altogether: a parser moves them before these tags, between the page's text and whatever is added
/// at its end.
///
/// Offsets count UTF-16 code units. "Masked" is the text that the engine is given, or one of its
/// serialisations.
class PageMask {
 public:
  explicit PageMask(const QString &source);

  const QString &MaskedText() const { return masked_; }

  /// What the words begin with that stand for hidden pieces.
  const QString &Stem() const { return stem_; }

  /// A text of the engine's with the original pieces in the place of their masks.
  QString Unmask(const QString &text) const;

  /// The first hidden piece whose mask neither serialisation has: the parser dropped it, not an
  /// edit. Nothing where there is none.
  std::optional<QString> Dropped(const QString &before, const QString &now) const;

  /// Whether that offset of the source is in server code.
  bool IsServerCode(qsizetype source) const;

  enum class Edge { Start, End };
  /// Where an offset into MaskedText() lies in the source; one inside a mask goes to the mask's
  /// edge.
  qsizetype ToSource(qsizetype masked, Edge edge) const;
  /// An offset into MaskedText() that lies inside a mask moved to the mask's edge.
  qsizetype MoveOutOfMask(qsizetype masked, Edge edge) const;

 private:
  friend class PageMasker;
  enum class Kind {
    Content,        ///< outside of tags: a comment takes its place
    AttributeName,  ///< in a tag where an attribute may begin: a word with a blank before it
    NamePart,       ///< in a tag, joined to the name before it: a word
    InTag,          ///< in an attribute's value, or in raw text: a word
    LeftOut,        ///< nothing takes its place
  };
  struct Piece {
    qsizetype source = 0;
    qsizetype sourceLength = 0;
    qsizetype masked = 0;
    qsizetype maskedLength = 0;
    Kind kind = Kind::Content;
    QString text;
  };

  /// The word that stands for the piece of that number.
  QString WordOf(std::size_t number) const;
  /// The last piece whose mask begins before an offset of the masked text; nullptr for none.
  const Piece *PieceBefore(qsizetype masked) const;

  QString masked_;
  QString stem_;  ///< how all words of this page begin; the page does not contain it
  std::vector<Piece> pieces_;
};

/// Where a mask stands in a masked text.
struct MaskSpan {
  qsizetype start = 0;
  qsizetype end = 0;
};
/// The mask that a cut at `at` would go through; nullopt where it goes through none. `stem`:
/// PageMask::Stem.
std::optional<MaskSpan> MaskAround(QStringView masked, qsizetype at, QStringView stem);

}  // namespace velor
