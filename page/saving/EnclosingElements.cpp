// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/EnclosingElements.h"

#include "page/text/HtmlElements.h"

namespace velor {

namespace {

bool OpensElement(const HtmlToken &token) {
  return token.kind == HtmlTokenKind::StartTag &&
         !elements::IsOneOf(token.name, elements::VoidElements);
}

}  // namespace

std::int32_t EndTagOf(const TokenText &text, std::int32_t start) {
  int depth = 0;
  for (std::int32_t at = start; at < text.Count(); ++at) {
    const HtmlToken &token = text.At(at);
    if (OpensElement(token))
      ++depth;
    else if (token.kind == HtmlTokenKind::EndTag && --depth == 0)
      return at;
  }
  return -1;
}

std::vector<ElementTags> EnclosingElements(const TokenText &text, std::int32_t from,
                                           std::int32_t to) {
  std::vector<ElementTags> enclosing;
  int closed = 0;  // end tags passed on the way back whose start tags are still to come
  for (std::int32_t at = from - 1; at >= 0; --at) {
    const HtmlToken &token = text.At(at);
    if (token.kind == HtmlTokenKind::EndTag) ++closed;
    if (!OpensElement(token)) continue;
    if (closed > 0) {
      --closed;
      continue;
    }
    const std::int32_t end = EndTagOf(text, at);
    if (end >= to) enclosing.push_back({at, end});
  }
  return enclosing;
}

}  // namespace velor
