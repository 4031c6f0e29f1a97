// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

#include <span>

namespace velor {

/// What a field of a properties dialog takes.
enum class FieldKind {
  Text,
  Length,  ///< pixels, or a number with a unit or "%"
  Color,   ///< "#RRGGBB" or a colour's name
  Choice,  ///< one of `choices`; a value that is none of them stays as it is
  Truth,   ///< "true" or empty
  Told,    ///< shown only
};

struct PropertyChoice {
  const char *value;
  const char *caption;
};

/// One field of a properties dialog.
struct PropertyField {
  const char *name;   ///< of the value, in the bridge (engine/bridge/properties/subjects.js)
  const char *label;  ///< with its mnemonic
  FieldKind kind = FieldKind::Text;
  std::span<const PropertyChoice> choices = {};
  const char *help = "";
};

/// A properties dialog: its title and its fields from top to bottom.
struct PropertySheet {
  PropertySubject subject;
  const char *title;
  std::span<const PropertyField> fields;
};

const PropertySheet &SheetOf(PropertySubject subject);

/// Why a field does not take the text, as a sentence; empty where it does.
QString PropertyRefusal(const PropertyField &field, const QString &text);

}  // namespace velor
