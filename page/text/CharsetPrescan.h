// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace velor {

/// Bytes of a page in which a declaration is looked for.
inline constexpr qsizetype LongestHead = 1'000'000;

/// The charset that a page's first bytes declare: by the HTML standard's "prescan a byte stream to
/// determine its encoding" a meta element's charset in the first 1,024 bytes, or its http-equiv
/// Content-Type; after those an XML declaration; after that a meta element further on in the head,
/// at which browsers begin anew. Comments are skipped. The WHATWG name; empty when nothing known is
/// declared. UTF-16 counts as UTF-8 (whoever could read the declaration was not reading UTF-16),
/// and x-user-defined as windows-1252.
QString DeclaredCharset(QByteArrayView bytes);

}  // namespace velor
