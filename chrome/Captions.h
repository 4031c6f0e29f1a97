// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// A text as a caption that shows just it: a single "&" would mark the next letter as its key.
inline QString AsCaption(QString text) {
  return text.replace(u'&', QStringLiteral("&&"));
}

}  // namespace velor
