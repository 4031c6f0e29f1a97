// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/JetBytes.h"
#include "platform/jet/JetPager.h"

#include <QByteArray>

#include <optional>

namespace velor {

/// The content of a memo or OLE value, from the bytes that stand in the row. Nothing when it is
/// damaged.
std::optional<QByteArray> ReadJetLongValue(JetPager &pager, JetBytes field);

/// Gives back the rows that the value occupies outside its own row. Raises for a damaged value.
void FreeJetLongValue(JetPager &pager, JetBytes field);

/// The bytes in the row of a value that stands there itself.
QByteArray InlineJetLongValue(const QByteArray &content);

}  // namespace velor
