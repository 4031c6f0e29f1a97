// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ElementPlace.h"

#include <QString>

#include <optional>

// From places in a document to offsets in its source (UTF-16 code units) and back.
namespace velor {

/// The offset in the source of the first of the places whose element has a tag there; nothing where
/// none has.
std::optional<qsizetype> FindPlace(const QString &source, const ElementPlaces &places);

/// The place at an offset in the source, as the path of the elements that are open there. Inside a
/// start tag it is the beginning of that tag's element.
ElementPlaces PlacesAt(const QString &source, qsizetype position);

}  // namespace velor
