// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"
#include "properties/PropertySheets.h"

namespace velor {

/// A properties window has the fields that the page answers: here all of its sheet, empty.
inline PropertyValues EveryField(const PropertySheet &sheet) {
  PropertyValues empty;
  for (const PropertyField &field : sheet.fields) empty[QLatin1String(field.name)] = QString();
  return empty;
}

}  // namespace velor
