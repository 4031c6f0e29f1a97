// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The layout of a Jet 4 database file, as far as it is read or written here. Numbers are
/// little-endian, offsets are in bytes from the start of the page (or of the row or record, where
/// the name says so).
namespace velor::jet {

inline constexpr int PageBytes = 4096;
using PageNumber = quint32;
using Page = std::array<unsigned char, PageBytes>;

/// First byte of every page after page 0.
enum class PageType : unsigned char {
  Data = 1,
  Definition = 2,
  IndexNode = 3,
  IndexLeaf = 4,
  UsageMap = 5,
};

// Page 0. "00 01 00 00", then the engine's name and the version.
inline constexpr int EngineName = 4;  ///< "Standard Jet DB" or "Standard ACE DB", zero-terminated
inline constexpr int Version = 0x14;  ///< one byte: 0 is Jet 3, 1 is Jet 4, more is ACE
/// RC4-encoded in every file, with the key HeaderKey.
inline constexpr int HeaderEncodedStart = 0x18;
inline constexpr int HeaderEncodedEnd = 0x98;
inline constexpr std::array<unsigned char, 4> HeaderKey = {0xC7, 0xDA, 0x39, 0x6B};
inline constexpr int PageKey = 0x3E;   ///< u32; not 0: every later page is RC4-encoded with
                                       ///< this key XOR the page's number
inline constexpr int Password = 0x42;  ///< 40 bytes, XORed with the int32 of the creation date
inline constexpr int PasswordBytes = 40;
inline constexpr int CreationDate = 0x72;  ///< double, days since 1899-12-30

// Fixed places.
inline constexpr PageNumber GlobalMapPage = 1;  ///< row 0: a set bit is a free page
inline constexpr PageNumber CatalogPage = 2;    ///< definition of MSysObjects

// Data page (also "LVAL" pages of long values, and the pages that hold usage map rows).
inline constexpr int DataFree = 2;   ///< u16, bytes between the slots and the lowest row
inline constexpr int DataOwner = 4;  ///< u32, definition page, or the four letters "LVAL"
inline constexpr int DataRows = 12;  ///< u16, number of slots
inline constexpr int DataSlots = 14;
inline constexpr int SlotBytes = 2;
inline constexpr int MaximumSlots = 255;
/// A row begins at its slot's offset and ends where the previous slot's row begins; the first
/// one ends at the end of the page.
inline constexpr quint16 SlotOffset = 0x1FFF;
/// The row has moved: 4 bytes remain here, row u8 and page u24 of the place it moved to.
inline constexpr quint16 SlotPointer = 0x4000;
/// A row that moved here; scans meet it through its pointer only.
inline constexpr quint16 SlotMoved = 0x8000;
inline constexpr quint16 SlotDeleted = SlotPointer | SlotMoved;
inline constexpr int PointerBytes = 4;
/// The longest row that the format's own engine writes.
inline constexpr int MaximumRowBytes = 4060;

// Row: column count u16, fixed data, variable data, end of variable data u16, offsets of the
// variable columns u16 each in reverse order, their number u16, null mask (bit set: not null; for
// a Boolean the value itself). The part about variable columns is missing where a table has none.
inline constexpr int RowFixedData = 2;

// Table definition; goes on at offset ContinuedData of the pages it is chained to.
inline constexpr int DefinitionNext = 4;    ///< u32, next page, 0 at the end
inline constexpr int DefinitionRows = 16;   ///< u32
inline constexpr int MaximumColumns = 41;   ///< u16, highest column number ever used + 1
inline constexpr int VariableColumns = 43;  ///< u16
inline constexpr int ColumnCount = 45;      ///< u16
inline constexpr int IndexCount = 51;       ///< u32, real indexes
inline constexpr int OwnedMap = 55;         ///< row u8, page u24 of the map of the table's pages
inline constexpr int FreeMap = 59;          ///< the same for pages with room for rows
inline constexpr int DefinitionHead = 63;
inline constexpr int IndexHeadBytes = 12;  ///< one a real index, after the head
inline constexpr int ContinuedData = 8;

// Column record, one a column after the index heads; the names follow, length in bytes u16 and
// UTF-16.
inline constexpr int ColumnRecordBytes = 25;
inline constexpr int ColumnTypeAt = 0;          ///< u8
inline constexpr int ColumnNumberAt = 5;        ///< u16, bit in the null mask
inline constexpr int ColumnVariableAt = 7;      ///< u16, index among the variable columns
inline constexpr int ColumnScaleAt = 12;        ///< u8, digits after the point of a Numeric
inline constexpr int ColumnFlagsAt = 15;        ///< u8
inline constexpr int ColumnExtraAt = 16;        ///< u8
inline constexpr int ColumnFixedOffsetAt = 21;  ///< u16, from RowFixedData
inline constexpr int ColumnLengthAt = 23;       ///< u16, bytes; 2 a character of text
inline constexpr unsigned char ColumnFixedFlag = 0x01;
inline constexpr unsigned char ColumnCompressedFlag = 0x01;

// Index record, one a real index after the names: ten times column u16 (0xFFFF: none), order u8.
inline constexpr int IndexRecordBytes = 52;
inline constexpr int IndexColumnsAt = 4;
inline constexpr int IndexColumns = 10;
inline constexpr int IndexColumnBytes = 3;
inline constexpr quint16 NoIndexColumn = 0xFFFF;

// Usage map row: kind u8, then either the first page u32 and a bitmap, or page numbers u32 of
// usage map pages (0: none), each with a bitmap from MapPageBits.
inline constexpr unsigned char InlineMap = 0;
inline constexpr unsigned char PagedMap = 1;
inline constexpr int InlineMapStart = 1;
inline constexpr int InlineMapBits = 5;
inline constexpr int PagedMapPointers = 1;
inline constexpr int MapPageBits = 4;
inline constexpr PageNumber PagesPerMapPage = (PageBytes - MapPageBits) * 8;

// Long value (memo, OLE) in its row: length and kind u32, place (row u8, page u24), 4 bytes.
inline constexpr int LongValueHead = 12;
inline constexpr quint32 LongValueLength = 0x3FFFFFFF;
inline constexpr quint32 LongValueInline = 0x80000000;  ///< the value follows the head
inline constexpr quint32 LongValueSingle = 0x40000000;  ///< the value is one row of an LVAL page
/// Bytes of content; longer values are not written here.
inline constexpr int LongValueInlineMaximum = 1024;
/// Neither: a chain of rows, each beginning with the place of the next one, 0 at the end.

// Text is UTF-16, or the mark FF FE and then one byte a character up to U+00FF, in which a byte 0
// changes to UTF-16 and back.
inline constexpr int CompressedMinimum = 3;     ///< characters; shorter texts gain nothing
inline constexpr int CompressedMaximum = 1024;  ///< characters

}  // namespace velor::jet
