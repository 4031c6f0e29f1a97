// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Captions.h"

#include <QRegularExpression>

namespace velor {

QString AsCaption(QString text) {
  return text.replace(u'&', QStringLiteral("&&"));
}

QString SpokenCaption(QString caption) {
  static const QRegularExpression key(QStringLiteral("\\s*\\(&.\\)$"));
  caption.remove(key).remove(u'&');
  if (caption.endsWith(QStringLiteral("..."))) caption.chop(3);
  return caption.trimmed();
}

}  // namespace velor
