// SPDX-License-Identifier: GPL-3.0-or-later
// Tags taken apart.
#include "page/text/CharacterReferences.h"
#include "page/text/HtmlTokens.h"

namespace velor {

namespace {

bool IsSpace(QChar codeUnit) {
  return codeUnit == u' ' || codeUnit == u'\n' || codeUnit == u'\t' || codeUnit == u'\r' ||
         codeUnit == u'\f';
}

std::int32_t Place(qsizetype place) {
  return static_cast<std::int32_t>(place);
}

/// Reads the attribute at `at`, which is neither space nor "/" nor ">"; moves `at` behind it.
HtmlAttributeSlice ReadAttribute(QStringView html, qsizetype &at) {
  HtmlAttributeSlice slice;
  slice.name = Place(at);
  ++at;  // a leading "=" belongs to the name
  while (at < html.size() && !IsSpace(html[at]) && html[at] != u'/' && html[at] != u'>' &&
         html[at] != u'=')
    ++at;
  slice.nameLength = Place(at) - slice.name;
  slice.end = Place(at);
  qsizetype ahead = at;
  while (ahead < html.size() && IsSpace(html[ahead])) ++ahead;
  if (ahead >= html.size() || html[ahead] != u'=') return slice;
  ++ahead;
  while (ahead < html.size() && IsSpace(html[ahead])) ++ahead;
  at = ahead;
  if (at < html.size() && (html[at] == u'"' || html[at] == u'\'')) {
    slice.quote = html[at].unicode();
    const qsizetype close = html.indexOf(html[at], at + 1);
    slice.value = Place(at + 1);
    slice.valueLength = Place(close < 0 ? html.size() : close) - slice.value;
    at = close < 0 ? html.size() : close + 1;
  } else {
    slice.value = Place(at);
    while (at < html.size() && !IsSpace(html[at]) && html[at] != u'>') ++at;
    slice.valueLength = Place(at) - slice.value;
  }
  slice.end = Place(at);
  return slice;
}

}  // namespace

HtmlTagParts ReadHtmlTag(QStringView html, qsizetype offset) {
  HtmlTagParts tag;
  qsizetype at = offset + 1;
  if (at < html.size() && html[at] == u'/') ++at;
  tag.name = Place(at);
  while (at < html.size() && !IsSpace(html[at]) && html[at] != u'/' && html[at] != u'>') ++at;
  tag.nameLength = Place(at) - tag.name;
  tag.attributesEnd = Place(at);
  while (at < html.size()) {
    if (html[at] == u'>') {
      tag.isClosed = true;
      ++at;
      break;
    }
    if (html[at] == u'/') {
      tag.isSelfClosing = at + 1 < html.size() && html[at + 1] == u'>';
      ++at;
    } else if (IsSpace(html[at])) {
      ++at;
    } else {
      tag.attributes.push_back(ReadAttribute(html, at));
      tag.attributesEnd = Place(at);
    }
  }
  tag.end = Place(at);
  return tag;
}

QString HtmlAttributeValue(QStringView slice) {
  QString value;
  value.reserve(slice.size());
  for (qsizetype at = 0; at < slice.size(); ++at) {
    const QChar codeUnit = slice[at];
    if (codeUnit == u'&') {
      const auto reference = ReadReference(slice, at, ReferencePlace::AttributeValue);
      if (reference.length > 0) {
        value += QChar::fromUcs4(reference.first);
        if (reference.second != 0) value += QChar::fromUcs4(reference.second);
        at += reference.length - 1;
        continue;
      }
    }
    if (codeUnit == u'\r') {
      value += u'\n';
      if (at + 1 < slice.size() && slice[at + 1] == u'\n') ++at;
    } else {
      value += codeUnit == QChar(0) ? QChar(QChar::ReplacementCharacter) : codeUnit;
    }
  }
  return value;
}

}  // namespace velor
