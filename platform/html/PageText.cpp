// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/PageText.h"

#include <utility>

namespace velor {

PageToWrite ComposePage(const PageOriginal &original, const QString &current) {
  const bool isUnedited = !original.baseline.isEmpty() && current == original.baseline;
  if (isUnedited) return {original.page.text, original.bytes};
  const PageEncoding &encoding = original.page.encoding;
  QString text = WithLineEnds(current, encoding.lineEnds);
  QByteArray bytes = EncodePage(text, encoding);
  return {std::move(text), std::move(bytes)};
}

}  // namespace velor
