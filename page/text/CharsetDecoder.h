// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/CharsetIndex.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <vector>

namespace velor {

/// What an invalid sequence of bytes becomes.
inline constexpr char16_t Replacement = 0xFFFD;

/// Decodes bytes of any form but Unicode as the decoders of the Encoding Standard do. Invalid bytes
/// become U+FFFD, one for each sequence that the standard counts as one error. Except in escape
/// sequences of ISO-2022-JP no ASCII byte is part of such a sequence, so that no broken character
/// swallows markup. `offsets`, unless null, gets for each UTF-16 code unit the place of the first
/// byte of its character.
QString DecodeByIndex(CharsetForm form, const CharsetIndex &index, QByteArrayView bytes,
                      std::vector<std::int32_t> *offsets);

}  // namespace velor
