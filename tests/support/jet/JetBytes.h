// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace velor::fixture {

inline constexpr int JetPageSize = 4096;

/// Little-endian numbers inside a page; `at` is a byte offset. What lies beyond the end reads as 0.
quint16 Get16(const QByteArray &bytes, qsizetype at);
quint32 Get24(const QByteArray &bytes, qsizetype at);
quint32 Get32(const QByteArray &bytes, qsizetype at);
void Put16(QByteArray &bytes, qsizetype at, quint32 value);
void Put32(QByteArray &bytes, qsizetype at, quint32 value);

/// The same, added at the end.
void Add16(QByteArray &bytes, quint32 value);
void Add32(QByteArray &bytes, quint32 value);

/// A row's address as definitions and pointers hold it: slot number in the low byte, page above it.
quint32 RowAddress(quint32 page, quint32 slot);
inline quint32 PageOf(quint32 address) {
  return address >> 8;
}
inline int SlotOf(quint32 address) {
  return static_cast<int>(address & 0xFF);
}

bool BitAt(const QByteArray &bytes, qsizetype start, quint32 bit);
void SetBitAt(QByteArray &bytes, qsizetype start, quint32 bit);

/// RC4, which undoes itself. Written apart from the program's own, so that one checks the other.
QByteArray Rc4(QByteArray bytes, const QByteArray &key);

/// `plain` with every page after page 0 encoded by the file key, and back.
QByteArray WithPagesEncoded(QByteArray plain, quint32 fileKey);

/// The key that page 0 of a file holds; 0 for a file that is not encoded.
quint32 FileKeyOf(const QByteArray &file);

/// Page 0's key of its own, for bytes 0x18..0x97.
QByteArray HeaderKey();

}  // namespace velor::fixture
