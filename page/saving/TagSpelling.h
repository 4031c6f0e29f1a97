// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageEdits.h"

#include <QString>

#include <cstdint>

namespace velor {

/// How the tags near a place of a page are spelled. The defaults are those of a serialisation.
struct TagSpelling {
  enum class Case { Lower, Upper };
  enum class VoidEnd { Plain, Slash };

  Case tagNames = Case::Lower;
  Case attributeNames = Case::Lower;
  char16_t quote = u'"';      ///< around values that a parser reads as a whole in quotes only
  char16_t bareQuote = u'"';  ///< around other values; 0 for none
  VoidEnd voidEnd = VoidEnd::Plain;
};

/// The spelling near the source's token `number`: for names of tags that of the nearest block (of
/// HTML, HEAD, TITLE or BODY where there is none), for everything else that of the nearest tag with
/// such a detail; tags before the place come first.
TagSpelling SpellingNear(const TokenText &source, std::int32_t number);

/// A tag of a serialisation, spelled like that. `maskStem`: begins the words that stand for what
/// the engine was not given; names and values that hold it stay as they are.
QString Spelled(QStringView tag, const TagSpelling &spelling, QStringView maskStem);

/// An attribute of a serialisation with the space before it, spelled like that.
QString SpelledAttribute(QStringView name, QStringView value, const TagSpelling &spelling,
                         QStringView maskStem);

/// The value in these quotes; without any for 0, where the value allows that.
QString QuotedValue(QStringView value, char16_t quote, QStringView maskStem);

}  // namespace velor
