// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/CharsetRange.h"

#include "page/text/CharsetConverter.h"

#include <algorithm>

namespace velor {

std::vector<MissingCharacter> CharactersMissing(const QString &text, const QString &charset) {
  CharsetConverter converter(charset);
  std::vector<MissingCharacter> missing;
  int line = 1;
  for (qsizetype at = 0; at < text.size();) {
    const QStringView rest = QStringView(text).sliced(at);
    const qsizetype found = converter.FirstReference(rest);
    if (found < 0) break;
    line += static_cast<int>(rest.first(found).count(u'\n'));
    const qsizetype length = rest[found].isHighSurrogate() && found + 1 < rest.size() ? 2 : 1;
    const QString character = rest.sliced(found, length).toString();
    const auto known = std::find_if(missing.begin(), missing.end(),
                                    [&](const auto &one) { return one.character == character; });
    if (known == missing.end())
      missing.push_back({character, 1, line});
    else
      ++known->count;
    at += found + length;
  }
  return missing;
}

}  // namespace velor
