// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace velor {

/// Forms of files that are no page in any charset that pages may have. DecodePage would decode them
/// to a wrong text, and saving that would destroy the file.
enum class UnsupportedForm { Utf32, Utf7, Ebcdic, Binary };

/// The form of a file, by its first few thousand bytes; nothing for a page.
std::optional<UnsupportedForm> UnsupportedFormOf(QByteArrayView bytes);

/// The form in words: "UTF-32, which is none of the charsets that pages may have".
QString InWords(UnsupportedForm form);

}  // namespace velor
