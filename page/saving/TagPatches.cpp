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

/// Whether a parser reads the whole value where it has no quotes around it.
bool NeedsNoQuotes(QStringView value) {
  static constexpr QStringView Breaking = u" \t\r\n\f\"'=<>`";
  return !value.isEmpty() && !value.endsWith(u'/') &&
         std::none_of(value.begin(), value.end(),
                      [](QChar unit) { return Breaking.contains(unit); });
}

/// The value in the quotes of the source; without quotes where the source has none and the value
/// needs none.
QString Quoted(QStringView value, char16_t quote) {
  if (quote == 0 && NeedsNoQuotes(value)) return value.toString();
  if (quote != u'\'') return u'"' + value.toString() + u'"';
  const QString apostrophes = value.toString().replace(u'\'', QLatin1String("&#39;"));
  return u'\'' + apostrophes + u'\'';
}

/// Where the space before an attribute begins.
qsizetype StartWithSpace(QStringView html, const HtmlAttributeSlice &attribute) {
  qsizetype start = attribute.name;
  while (start > 0 && html[start - 1].isSpace()) --start;
  return start;
}

}  // namespace

std::vector<TextPatch> PatchTag(const TagTexts &texts, qsizetype offset) {
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
      added += u' ' + name.toString() + u'=' + Quoted(value, u'"');
    } else {
      const qsizetype nameEnd = place->name + place->nameLength;
      const bool hasValue = place->value >= 0;
      const qsizetype start = hasValue ? place->value - (place->quote != 0 ? 1 : 0) : nameEnd;
      patches.push_back(
          {start, place->end, hasValue ? Quoted(value, place->quote) : u'=' + Quoted(value, u'"')});
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
