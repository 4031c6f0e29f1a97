// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ElementPlace.h"

#include <QString>

#include <optional>

/// Places of a document in its source and back. Positions in UTF-16 units.
namespace velor {

/// Where the first of the places stands whose element the source has a tag for.
std::optional<qsizetype> FindPlace(const QString &source, const ElementPlaces &places);

/// The place at a position, told by the elements that are open there; within a start tag it is the
/// beginning of that tag's element.
ElementPlaces PlacesAt(const QString &source, qsizetype position);

}  // namespace velor
