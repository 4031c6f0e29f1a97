// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetFormat.h"

#include <QByteArray>
#include <QtEndian>

#include <bit>
#include <cstddef>
#include <span>

namespace velor {

using JetBytes = std::span<const unsigned char>;

inline JetBytes BytesOf(const QByteArray &bytes) {
  return {reinterpret_cast<const unsigned char *>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

inline void Append(QByteArray &to, JetBytes bytes) {
  to.append(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

}  // namespace velor

/// Little-endian numbers at places that the caller has checked.
namespace velor::jet {

template <typename Number>
Number Get(const unsigned char *from) {
  return qFromLittleEndian<Number>(from);
}

template <typename Number>
void Put(unsigned char *to, Number value) {
  qToLittleEndian(value, to);
}

inline double GetDouble(const unsigned char *from) {
  return std::bit_cast<double>(Get<quint64>(from));
}

inline PageNumber GetPage24(const unsigned char *from) {
  return static_cast<PageNumber>(from[0] | from[1] << 8 | from[2] << 16);
}

}  // namespace velor::jet
