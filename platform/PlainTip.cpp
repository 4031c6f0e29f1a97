// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PlainTip.h"

namespace velor {

QString PlainTip(const QString &text) {
  if (!text.contains(u'<')) return text;
  return QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>").arg(text.toHtmlEscaped());
}

}  // namespace velor
