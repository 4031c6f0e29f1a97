// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/HtmlDocument.h"

namespace velor {

QString HtmlElement::Attribute(const QString &name) const {
  for (const auto &[key, value] : attributes) {
    if (key.compare(name, Qt::CaseInsensitive) == 0) return value;
  }
  return {};
}

}  // namespace velor
