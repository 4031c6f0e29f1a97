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

/// Frees the bytes that a value occupies outside its own row. Its slots stay, with length 0 and
/// without the flags of a deleted row, since some readers lose the row behind a deleted one on a
/// page of long values. Raises for a damaged value.
void FreeJetLongValue(JetPager &pager, JetBytes field);

/// The bytes in the row for a value that is stored in the row itself.
QByteArray InlineJetLongValue(const QByteArray &content);

}  // namespace velor
