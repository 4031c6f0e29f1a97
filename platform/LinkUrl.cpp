// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LinkUrl.h"

#include <QRegularExpression>

namespace velor {

QUrl UrlOfLink(const QString &link) {
  // QUrl would encode every "%" of a text that holds one such.
  static const QRegularExpression alone(QStringLiteral("%(?![0-9A-Fa-f]{2})"));
  return QUrl(QString(link).replace(alone, QStringLiteral("%25")));
}

}  // namespace velor
