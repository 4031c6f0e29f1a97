// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetRowWriter.h"

#include <QtEndian>

#include <algorithm>

namespace velor::fixture {

namespace {

constexpr qsizetype LongestInlineMemo = 64;
constexpr qsizetype LongestMemoRow = 4076;  // what an otherwise empty page leaves for one row
constexpr quint32 InlineMemo = 0x80000000;
constexpr quint32 OneRowMemo = 0x40000000;

int FixedLength(CellType type) {
  switch (type) {
    case CellType::Short:
      return 2;
    case CellType::Long:
      return 4;
    case CellType::Double:
    case CellType::DateTime:
      return 8;
    default:
      return 0;
  }
}

QByteArray DoubleBytes(double value) {
  QByteArray bytes(8, '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}

QByteArray FixedBytes(const Cell &cell, int length) {
  if (const auto *number = std::get_if<double>(&cell)) return DoubleBytes(*number);
  if (const auto *days = std::get_if<Days>(&cell)) return DoubleBytes(days->value);
  QByteArray bytes;
  if (const auto *number = std::get_if<qint32>(&cell)) Add32(bytes, static_cast<quint32>(*number));
  return bytes.leftJustified(length, '\0', true);
}

/// A Boolean's bit is its value; any other column's says that there is one.
bool MaskBit(const Cell &cell) {
  if (const auto *truth = std::get_if<bool>(&cell)) return *truth;
  return !std::holds_alternative<std::monostate>(cell);
}

}  // namespace

bool IsLongValue(CellType type) {
  return type == CellType::Memo || type == CellType::Ole;
}

std::vector<ColumnPlace> PlacesOf(const std::vector<FixtureColumn> &columns) {
  std::vector<ColumnPlace> places;
  int offset = 0;
  int variables = 0;
  for (const FixtureColumn &column : columns) {
    ColumnPlace place;
    place.variable = column.type == CellType::Text || IsLongValue(column.type);
    place.variableIndex = variables;
    if (place.variable) {
      ++variables;
    } else {
      place.fixedLength = FixedLength(column.type);
      place.fixedOffset = place.fixedLength > 0 ? offset : 0;
      offset += place.fixedLength;
    }
    places.push_back(place);
  }
  return places;
}

QByteArray TextBytes(const QString &text, TextForm form) {
  const bool narrow = std::all_of(text.begin(), text.end(), [](QChar character) {
    return character.unicode() >= 1 && character.unicode() <= 255;
  });
  if (form == TextForm::Compressed && narrow && text.size() > 2 && text.size() <= 1024)
    return QByteArray::fromHex("FFFE") + text.toLatin1();
  QByteArray bytes;
  for (const QChar character : text) Add16(bytes, character.unicode());
  return bytes;
}

JetRowWriter::JetRowWriter(JetPageSet &pages, const FixtureTable &table)
    : pages_(pages), table_(table), places_(PlacesOf(table.columns)) {
  for (int i = 0; i < static_cast<int>(table.columns.size()); ++i)
    if (IsLongValue(table.columns[i].type)) memos_[i] = {};
}

QByteArray JetRowWriter::Bytes(const FixtureRow &row) {
  const int columns = row.storedColumns.value_or(static_cast<int>(table_.columns.size()));
  QByteArray bytes;
  Add16(bytes, columns);
  for (int i = 0; i < columns; ++i)
    if (!places_[i].variable) bytes += FixedBytes(row.cells[i], places_[i].fixedLength);

  std::vector<qsizetype> offsets;
  for (int i = 0; i < columns; ++i) {
    if (!places_[i].variable) continue;
    offsets.push_back(bytes.size());
    bytes += VariableBytes(i, row.cells[i]);
  }
  Add16(bytes, static_cast<quint32>(bytes.size()));
  for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset)
    Add16(bytes, static_cast<quint32>(*offset));
  Add16(bytes, static_cast<quint32>(offsets.size()));

  QByteArray mask((columns + 7) / 8, '\0');
  for (int i = 0; i < columns; ++i)
    if (MaskBit(row.cells[i])) SetBitAt(mask, 0, i);
  return bytes + mask;
}

QByteArray JetRowWriter::VariableBytes(int column, const Cell &cell) {
  const auto *text = std::get_if<QString>(&cell);
  if (!text) return {};
  return table_.columns[column].type == CellType::Memo
             ? MemoBytes(column, *text)
             : TextBytes(*text, table_.columns[column].form);
}

QByteArray JetRowWriter::MemoBytes(int column, const QString &text) {
  const QByteArray bytes = TextBytes(text, table_.columns[column].form);
  MemoPlace place = table_.columns[column].place;
  if (place == MemoPlace::ByLength)
    place = bytes.size() <= LongestInlineMemo ? MemoPlace::Inline : MemoPlace::OneRow;
  if (place == MemoPlace::OneRow && bytes.size() > LongestMemoRow) place = MemoPlace::Chain;

  quint32 address = 0;
  quint32 kind = 0;
  if (place == MemoPlace::Inline) {
    kind = InlineMemo;
  } else if (place == MemoPlace::OneRow) {
    kind = OneRowMemo;
    address = AddMemoRow(memos_[column], bytes);
  } else {
    // From the last part to the first, since each begins with the address of the next.
    constexpr qsizetype Part = LongestMemoRow - 4;
    for (qsizetype start = (std::max<qsizetype>(bytes.size(), 1) - 1) / Part * Part; start >= 0;
         start -= Part) {
      QByteArray row;
      Add32(row, address);
      address = AddMemoRow(memos_[column], row + bytes.mid(start, Part));
    }
  }
  QByteArray header;
  Add32(header, static_cast<quint32>(bytes.size()) | kind);
  Add32(header, address);
  Add32(header, 0);
  return place == MemoPlace::Inline ? header + bytes : header;
}

quint32 JetRowWriter::AddMemoRow(MemoPages &memo, const QByteArray &bytes) {
  if (!memo.current || pages_.FreeBytes(*memo.current) < bytes.size() + 2) {
    memo.current = pages_.AppendRowPage(MemoPageOwner);
    memo.owned.insert(*memo.current);
  }
  return pages_.AddRow(*memo.current, bytes);
}

}  // namespace velor::fixture
