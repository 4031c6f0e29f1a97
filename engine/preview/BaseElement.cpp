// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/BaseElement.h"

#include <QRegularExpression>

namespace velor {

QString WithBase(const QString &html, const QUrl &baseUrl) {
  static const QRegularExpression marks(
      QStringLiteral("<!--.*?-->|<(?<name>!doctype|html|head|base|body)\\b[^>]*>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  qsizetype place = 0;
  for (auto found = marks.globalMatch(html); found.hasNext();) {
    const QRegularExpressionMatch mark = found.next();
    const QString name = mark.captured(QStringLiteral("name")).toLower();
    if (name == QStringLiteral("base")) return html;
    if (name == QStringLiteral("body")) break;
    if (!name.isEmpty()) place = mark.capturedEnd();
  }
  const QString address = baseUrl.toString(QUrl::FullyEncoded).toHtmlEscaped();
  return html.left(place) + QStringLiteral("<base href=\"%1\">").arg(address) + html.mid(place);
}

}  // namespace velor
