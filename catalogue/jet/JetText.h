// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetBytes.h"
#include "catalogue/jet/JetTable.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace velor {

/// Text as it is stored (see JetFormat.h). An odd last byte is left out.
QString DecodeJetText(JetBytes bytes);

/// The stored form, compressed where the column allows it and it is worth it. Nothing for texts
/// that have none: those with U+0000, and those that begin with the mark of compressed text.
std::optional<QByteArray> EncodeJetText(const QString &text, JetCompression compression);

}  // namespace velor
