// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/TagPatches.h"

#include "page/text/HtmlTokens.h"

#include <algorithm>

namespace velor {

namespace {

using Attributes = std::vector<HtmlAttributeSlice>;

const HtmlAttributeSlice *Find(QStringView html, const Attributes &attributes, QStringView name) {
  const auto found =
      std::find_if(attributes.begin(), attributes.end(), [&](const HtmlAttributeSlice &attribute) {
        return attribute.NameIn(html).compare(name, Qt::CaseInsensitive) == 0;
      });
  return found == attributes.end() ? nullptr : &*found;
}

/// Where the space before an attribute begins.
qsizetype StartWithSpace(QStringView html, const HtmlAttributeSlice &attribute) {
  qsizetype start = attribute.name;
  while (start > 0 && html[start - 1].isSpace()) --start;
  return start;
}

}  // namespace

std::vector<TextPatch> PatchTag(const TagTexts &texts, qsizetype offset,
                                const TagSpelling &spelling, QStringView maskStem) {
  const HtmlTagParts source = ReadHtmlTag(texts.source, offset);
  const HtmlTagParts before = ReadHtmlTag(texts.before, 0);
  const HtmlTagParts now = ReadHtmlTag(texts.now, 0);
  std::vector<TextPatch> patches;
  QString added;
  for (const HtmlAttributeSlice &attribute : now.attributes) {
    const QStringView name = attribute.NameIn(texts.now);
    const QStringView value = attribute.ValueIn(texts.now);
    const HtmlAttributeSlice *old = Find(texts.before, before.attributes, name);
    if (old != nullptr && old->ValueIn(texts.before) == value) continue;
    const HtmlAttributeSlice *place = Find(texts.source, source.attributes, name);
    if (place == nullptr) {
      added += SpelledAttribute(name, value, spelling, maskStem);
    } else {
      const qsizetype nameEnd = place->name + place->nameLength;
      const bool hasValue = place->value >= 0;
      const qsizetype start = hasValue ? place->value - (place->quote != 0 ? 1 : 0) : nameEnd;
      const char16_t quote = hasValue ? place->quote : spelling.quote;
      const QString written = QuotedValue(value, quote, maskStem);
      patches.push_back({start, place->end, hasValue ? written : u'=' + written});
    }
  }
  for (const HtmlAttributeSlice &attribute : source.attributes) {
    const QStringView name = attribute.NameIn(texts.source);
    // All duplicates go too: a parser would take the next one for the attribute.
    if (Find(texts.now, now.attributes, name) == nullptr &&
        Find(texts.before, before.attributes, name) != nullptr)
      patches.push_back({StartWithSpace(texts.source, attribute), attribute.end, {}});
  }
  if (!added.isEmpty()) {
    // An unquoted value would take what follows it for its own.
    patches.push_back({source.attributesEnd, source.attributesEnd, added});
  }
  std::stable_sort(patches.begin(), patches.end(),
                   [](const TextPatch &a, const TextPatch &b) { return a.start < b.start; });
  return patches;
}

}  // namespace velor
