// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EditingCommands.h"

namespace velor {

const std::vector<BlockFormat> &BlockFormats() {
  // Normal and Paragraph have the same element; a look-up by element finds Normal, the first.
  static const std::vector<BlockFormat> formats = {
      {"Normal", "P"},         {"Formatted", "PRE"},      {"Address", "ADDRESS"},
      {"Heading 1", "H1"},     {"Heading 2", "H2"},       {"Heading 3", "H3"},
      {"Heading 4", "H4"},     {"Heading 5", "H5"},       {"Heading 6", "H6"},
      {"Numbered List", "OL"}, {"Bulleted List", "UL"},   {"Directory List", "DIR"},
      {"Menu List", "MENU"},   {"Definition Term", "DT"}, {"Definition", "DD"},
      {"Paragraph", "P"},
  };
  return formats;
}

QStringList BlockFormatNames() {
  QStringList names;
  for (const BlockFormat &format : BlockFormats()) names += QString::fromLatin1(format.name);
  return names;
}

}  // namespace velor
