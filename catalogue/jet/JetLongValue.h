// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetBytes.h"
#include "catalogue/jet/JetPager.h"

#include <QByteArray>

#include <optional>

namespace velor {

/// The content of a memo or OLE value, from the bytes that stand in the row. Nothing when it is
/// damaged.
std::optional<QByteArray> ReadJetLongValue(JetPager &pager, JetBytes field);

/// Gives back the bytes that the value occupies outside its own row. Its slots stay, of length 0
/// and without the mark of a deleted row: there are readers that, after such a mark on a page of
/// long values, lose the row that follows it. Raises for a damaged value.
void FreeJetLongValue(JetPager &pager, JetBytes field);

/// The bytes in the row of a value that stands there itself.
QByteArray InlineJetLongValue(const QByteArray &content);

}  // namespace velor
