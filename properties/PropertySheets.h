// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

#include <span>

namespace velor {

/// What a field of a properties dialog takes.
enum class FieldKind {
  Text,
  Length,     ///< pixels, or a number with a unit or "%"
  Color,      ///< "#RRGGBB" or a colour's name
  Choice,     ///< one of `choices`; a value that is none of them stays as it is
  Truth,      ///< "true" or empty
  Address,    ///< of a file, that can be looked for, or of a place
  Addresses,  ///< of files, one a line
  Charset,    ///< one of those that the host names
  Font,       ///< the name of a family
  Size,       ///< of letters
  Told,       ///< shown only, in the words of `choices` where they have the value
  Part,       ///< no field: those behind it are on a tab of this name
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
  /// Of the files that an address leads to.
  const char *filter = "";
};

/// A properties dialog: its title and its fields from top to bottom.
struct PropertySheet {
  PropertySubject subject;
  const char *title;
  std::span<const PropertyField> fields;
  /// A button that takes the whole thing off, by emptying a field of this name; none without.
  const char *remover = nullptr;
  const char *removal = "";
};

const PropertySheet &SheetOf(PropertySubject subject);

/// Why a field does not take the text, as a sentence; empty where it does.
QString PropertyRefusal(const PropertyField &field, const QString &text);

}  // namespace velor
