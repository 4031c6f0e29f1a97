// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <span>

namespace velor {

/// RC4 over the bytes in place; doing it twice gives them back.
void ApplyRc4(std::span<const unsigned char> key, std::span<unsigned char> bytes);

/// RC4 with the four little-endian bytes of a number as key.
void ApplyRc4(quint32 key, std::span<unsigned char> bytes);

}  // namespace velor
