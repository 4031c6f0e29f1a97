// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageCharset.h"

#include "page/text/CharsetRange.h"
#include "platform/EditingComponent.h"
#include "platform/Words.h"

namespace velor {

QStringList CharsetsForPages() {
  return AllCharsets();
}

QString ReasonNotToConvert(EditingComponent &page) {
  if (!page.TextToSave().contains(QChar(QChar::ReplacementCharacter))) return {};
  return Words::tr(
             "Some bytes of the page are no text in its charset %1 and would be lost. Mend them "
             "first: they show as question marks in black diamonds.")
      .arg(page.Charset());
}

QStringList CharactersLacking(EditingComponent &page, const QString &charset) {
  QStringList lines;
  for (const MissingCharacter &one : CharactersMissing(page.TextToSave(), charset))
    lines << (one.count == 1 ? Words::tr("%1 (line %2)")
                             : Words::tr("%1 (%n times, first in line %2)", nullptr, one.count))
                 .arg(one.character)
                 .arg(one.line);
  return lines;
}

}  // namespace velor
