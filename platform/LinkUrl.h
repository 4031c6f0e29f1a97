// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

namespace velor {

/// The URL that a link in a page stands for, read as browsers do: a "%" that begins no
/// percent-encoding stands for itself, and the encodings beside it keep their meaning.
QUrl UrlOfLink(const QString &link);

}  // namespace velor
