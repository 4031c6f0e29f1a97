// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/CharsetIndex.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <vector>

namespace velor {

/// Reads bytes of any form but Unicode by the decoders of the Encoding Standard: bytes that are no
/// text become U+FFFD, one for as many as the standard takes together. A byte of ASCII is among
/// them only within the escape sequences of ISO-2022-JP, so that no broken character swallows
/// markup. `offsets`, unless null, gets for each UTF-16 unit the place of the first byte of its
/// character.
QString DecodeByIndex(CharsetForm form, const CharsetIndex &index, QByteArrayView bytes,
                      std::vector<std::int32_t> *offsets);

}  // namespace velor
