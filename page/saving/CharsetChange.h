// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageEncoding.h"

namespace velor {

/// A page's text for another charset: each charset declaration in its head, an XML one too, names
/// that. Where there is none, one is put in: a META element in the page's dialect, at the head's
/// start. One that server code makes stays, and none is put in beside it. The encoding has a byte
/// order mark in UTF-16 alone, which browsers know by nothing else. The text differs from `text`
/// wherever a declaration could be changed.
DecodedPage InCharset(const QString &text, const QString &charset);

}  // namespace velor
