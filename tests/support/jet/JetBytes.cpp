// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetBytes.h"

#include <QtEndian>

#include <array>
#include <numeric>
#include <utility>

namespace velor::fixture {

namespace {

constexpr int HeaderStart = 0x18;
constexpr int HeaderLength = 0x80;
constexpr int FileKeyAt = 0x3E;

template <typename Number>
Number Get(const QByteArray &bytes, qsizetype at) {
  if (at < 0 || at + qsizetype{sizeof(Number)} > bytes.size()) return 0;
  return qFromLittleEndian<Number>(bytes.constData() + at);
}

template <typename Number>
void Put(QByteArray &bytes, qsizetype at, Number value) {
  Q_ASSERT(at >= 0 && at + qsizetype(sizeof(Number)) <= bytes.size());
  qToLittleEndian(value, bytes.data() + at);
}

}  // namespace

quint16 Get16(const QByteArray &bytes, qsizetype at) {
  return Get<quint16>(bytes, at);
}

quint32 Get24(const QByteArray &bytes, qsizetype at) {
  return Get16(bytes, at) | static_cast<quint32>(static_cast<uchar>(bytes[at + 2])) << 16;
}

quint32 Get32(const QByteArray &bytes, qsizetype at) {
  return Get<quint32>(bytes, at);
}

void Put16(QByteArray &bytes, qsizetype at, quint32 value) {
  Put(bytes, at, static_cast<quint16>(value));
}

void Put32(QByteArray &bytes, qsizetype at, quint32 value) {
  Put(bytes, at, value);
}

void Add16(QByteArray &bytes, quint32 value) {
  bytes.append(2, '\0');
  Put16(bytes, bytes.size() - 2, value);
}

void Add32(QByteArray &bytes, quint32 value) {
  bytes.append(4, '\0');
  Put32(bytes, bytes.size() - 4, value);
}

quint32 RowAddress(quint32 page, quint32 slot) {
  return page << 8 | slot;
}

bool BitAt(const QByteArray &bytes, qsizetype start, quint32 bit) {
  return (static_cast<uchar>(bytes[start + bit / 8]) >> (bit % 8) & 1) != 0;
}

void SetBitAt(QByteArray &bytes, qsizetype start, quint32 bit) {
  char &byte = bytes.data()[start + bit / 8];
  byte = static_cast<char>(byte | 1 << (bit % 8));
}

QByteArray Rc4(QByteArray bytes, const QByteArray &key) {
  std::array<uchar, 256> state;
  std::iota(state.begin(), state.end(), uchar{0});
  uchar j = 0;
  for (int i = 0; i < 256; ++i) {
    j = static_cast<uchar>(j + state[i] + static_cast<uchar>(key[i % key.size()]));
    std::swap(state[i], state[j]);
  }
  uchar i = 0;
  j = 0;
  for (char &byte : bytes) {
    ++i;
    j = static_cast<uchar>(j + state[i]);
    std::swap(state[i], state[j]);
    byte = static_cast<char>(byte ^ state[static_cast<uchar>(state[i] + state[j])]);
  }
  return bytes;
}

QByteArray WithPagesEncoded(QByteArray plain, quint32 fileKey) {
  if (fileKey == 0) return plain;
  for (qsizetype page = 1; page * JetPageSize < plain.size(); ++page) {
    QByteArray key;
    Add32(key, fileKey ^ static_cast<quint32>(page));
    const QByteArray coded = Rc4(plain.mid(page * JetPageSize, JetPageSize), key);
    plain.replace(page * JetPageSize, coded.size(), coded);
  }
  return plain;
}

quint32 FileKeyOf(const QByteArray &file) {
  return Get32(Rc4(file.mid(HeaderStart, HeaderLength), HeaderKey()), FileKeyAt - HeaderStart);
}

QByteArray HeaderKey() {
  return QByteArray::fromHex("C7DA396B");
}

}  // namespace velor::fixture
