// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EditingCommands.h"

#include "platform/Words.h"

namespace velor {

const std::vector<BlockFormat> &BlockFormats() {
  // Normal and Paragraph have the same element; a look-up by element finds Normal, the first.
  static const std::vector<BlockFormat> formats = {
      {Words::Mark("Normal"), "P"},         {Words::Mark("Formatted"), "PRE"},
      {Words::Mark("Address"), "ADDRESS"},  {Words::Mark("Heading 1"), "H1"},
      {Words::Mark("Heading 2"), "H2"},     {Words::Mark("Heading 3"), "H3"},
      {Words::Mark("Heading 4"), "H4"},     {Words::Mark("Heading 5"), "H5"},
      {Words::Mark("Heading 6"), "H6"},     {Words::Mark("Numbered List"), "OL"},
      {Words::Mark("Bulleted List"), "UL"}, {Words::Mark("Directory List"), "DIR"},
      {Words::Mark("Menu List"), "MENU"},   {Words::Mark("Definition Term"), "DT"},
      {Words::Mark("Definition"), "DD"},    {Words::Mark("Paragraph"), "P"},
  };
  return formats;
}

QStringList BlockFormatNames() {
  QStringList names;
  for (const BlockFormat &format : BlockFormats()) names += QString::fromLatin1(format.name);
  return names;
}

}  // namespace velor
