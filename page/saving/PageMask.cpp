// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/PageMask.h"

#include "page/saving/PageMasker.h"

#include <QRegularExpression>

#include <algorithm>

namespace velor {

PageMask::PageMask(const QString &source) {
  PageMasker(source, *this).Run();
}

QString PageMask::WordOf(std::size_t number) const {
  return stem_ + QString::number(number) + u'e';
}

std::optional<QString> PageMask::Dropped(const QString &before, const QString &now) const {
  for (std::size_t number = 0; number < pieces_.size(); ++number) {
    const Piece &piece = pieces_[number];
    const QString word = WordOf(number);
    if (piece.kind != Kind::LeftOut && !before.contains(word) && !now.contains(word))
      return piece.text;
  }
  return std::nullopt;
}

QString PageMask::Unmask(const QString &text) const {
  if (pieces_.empty() || !text.contains(stem_)) return text;
  const QString word = QRegularExpression::escape(stem_) + QStringLiteral("(\\d+)e");
  const QRegularExpression masks(QStringLiteral("<!--%1-->|%1(=\"\")?").arg(word));
  QString result;
  qsizetype done = 0;
  for (auto found = masks.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    const bool isContent = !match.captured(1).isEmpty();
    const auto number = match.captured(isContent ? 1 : 2).toULongLong();
    if (number >= pieces_.size()) continue;
    const Piece &piece = pieces_[number];
    result += QStringView(text).sliced(done, match.capturedStart() - done);
    result += piece.text;
    // A name that the parser gave an empty value; any other attribute's value is its own.
    const bool isName = piece.kind == Kind::AttributeName || piece.kind == Kind::NamePart;
    if (!isContent && !isName) result += match.captured(3);
    done = match.capturedEnd();
  }
  return result += QStringView(text).sliced(done);
}

const PageMask::Piece *PageMask::PieceBefore(qsizetype masked) const {
  const auto next =
      std::upper_bound(pieces_.begin(), pieces_.end(), masked,
                       [](qsizetype offset, const Piece &piece) { return offset <= piece.masked; });
  return next == pieces_.begin() ? nullptr : &*std::prev(next);
}

qsizetype PageMask::MoveOutOfMask(qsizetype masked, Edge edge) const {
  const Piece *piece = PieceBefore(masked);
  if (piece == nullptr || masked >= piece->masked + piece->maskedLength) return masked;
  return edge == Edge::Start ? piece->masked : piece->masked + piece->maskedLength;
}

bool PageMask::IsServerCode(qsizetype source) const {
  const auto after =
      std::upper_bound(pieces_.begin(), pieces_.end(), source,
                       [](qsizetype at, const Piece &piece) { return at < piece.source; });
  if (after == pieces_.begin()) return false;
  const Piece &piece = *std::prev(after);
  const bool isCode = piece.text.startsWith(u"<%") || piece.text.startsWith(u"<?") ||
                      piece.text.startsWith(u"<!--#");
  return isCode && source < piece.source + piece.sourceLength;
}

qsizetype PageMask::ToSource(qsizetype masked, Edge edge) const {
  const qsizetype offset = MoveOutOfMask(masked, edge);
  const Piece *piece = PieceBefore(offset);
  if (piece == nullptr) return offset;
  return piece->source + piece->sourceLength + offset - piece->masked - piece->maskedLength;
}

std::optional<MaskSpan> MaskAround(QStringView masked, qsizetype at, QStringView stem) {
  constexpr QStringView Open = u"<!--";
  constexpr QStringView Close = u"-->";
  if (stem.isEmpty()) return std::nullopt;
  const qsizetype found = masked.lastIndexOf(stem, std::min(at + Open.size(), masked.size()));
  if (found < 0) return std::nullopt;
  MaskSpan mask{found, found + stem.size()};
  while (mask.end < masked.size() && masked[mask.end].isDigit()) ++mask.end;
  if (mask.end < masked.size()) ++mask.end;  // the word's last letter
  if (masked.first(mask.start).endsWith(Open) && masked.sliced(mask.end).startsWith(Close)) {
    mask.start -= Open.size();
    mask.end += Close.size();
  }
  if (mask.start < at && at < mask.end) return mask;
  return std::nullopt;
}

}  // namespace velor
