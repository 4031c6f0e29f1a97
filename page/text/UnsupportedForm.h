// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace velor {

/// Forms of files that are no page in any charset that pages may have. DecodePage reads them as
/// something, and a page edited in that reading would destroy the file.
enum class UnsupportedForm { Utf32, Utf7, Ebcdic, Binary };

/// Nothing for a page. Looks at the first few thousand bytes.
std::optional<UnsupportedForm> UnsupportedFormOf(QByteArrayView bytes);

/// What a person is told: "UTF-32, which is none of the charsets that pages may have".
QString InWords(UnsupportedForm form);

}  // namespace velor
