// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

namespace velor {

/// The page with a BASE element that makes its relative links resolve against `baseUrl`, placed so
/// that the page is parsed as before: first in the head, else after the root element's tag, else
/// after the doctype. A page with a BASE element of its own stays as it is.
QString WithBase(const QString &html, const QUrl &baseUrl);

}  // namespace velor
