// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetLongValue.h"

#include "catalogue/jet/JetDataPage.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <cstring>
#include <vector>

namespace velor {

namespace {

constexpr char Owner[] = {'L', 'V', 'A', 'L'};

/// The head's first number: length and kind.
quint32 HeadOf(JetBytes field) {
  return jet::Get<quint32>(field.data());
}

std::optional<JetFoundRow> FindPiece(JetPager &pager, const JetPlace &place) {
  JetFoundRow row = FindJetRow(pager, place);
  if (!row.page || row.flags != 0 ||
      std::memcmp(row.page->data() + jet::DataOwner, Owner, sizeof Owner) != 0) {
    return std::nullopt;
  }
  return row;
}

/// The rows outside the value's own row, in their order. A chain that is longer than the file has
/// pages runs in a circle.
std::optional<std::vector<JetFoundRow>> FindPieces(JetPager &pager, JetBytes field) {
  std::vector<JetFoundRow> pieces;
  const quint32 head = HeadOf(field);
  if (head & jet::LongValueInline) return pieces;
  JetPlace place = PlaceAt(field.data() + sizeof head);
  if (head & jet::LongValueSingle) {
    auto piece = FindPiece(pager, place);
    if (!piece) return std::nullopt;
    pieces.push_back(*std::move(piece));
    return pieces;
  }
  while (place != JetPlace{}) {
    auto piece = FindPiece(pager, place);
    if (!piece || piece->bytes.size() < jet::PointerBytes || pieces.size() > pager.PageCount()) {
      return std::nullopt;
    }
    place = PlaceAt(piece->bytes.data());
    pieces.push_back(*std::move(piece));
  }
  return pieces;
}

}  // namespace

std::optional<QByteArray> ReadJetLongValue(JetPager &pager, JetBytes field) {
  if (field.size() < jet::LongValueHead) return std::nullopt;
  const quint32 head = HeadOf(field);
  const auto pieces = FindPieces(pager, field);
  if (!pieces) return std::nullopt;
  QByteArray content;
  if (head & jet::LongValueInline) {
    Append(content, field.subspan(jet::LongValueHead));
  } else {
    const std::size_t skipped = head & jet::LongValueSingle ? 0 : jet::PointerBytes;
    for (const JetFoundRow &piece : *pieces) Append(content, piece.bytes.subspan(skipped));
  }
  const auto length = static_cast<qsizetype>(head & jet::LongValueLength);
  if (content.size() < length) return std::nullopt;
  content.truncate(length);
  return content;
}

void FreeJetLongValue(JetPager &pager, JetBytes field) {
  const auto pieces = field.size() < jet::LongValueHead ? std::nullopt : FindPieces(pager, field);
  if (!pieces) {
    throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("Database.Execute"),
                           Words::tr("the value that would be replaced is damaged"));
  }
  for (const JetFoundRow &piece : *pieces) {
    ReplaceJetRow(pager.Modify(piece.place.page), piece.place.slot, 0, {});
  }
}

QByteArray InlineJetLongValue(const QByteArray &content) {
  QByteArray field(jet::LongValueHead, '\0');
  jet::Put(reinterpret_cast<unsigned char *>(field.data()),
           static_cast<quint32>(content.size()) | jet::LongValueInline);
  return field + content;
}

}  // namespace velor
