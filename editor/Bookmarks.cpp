// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Bookmarks.h"

#include "page/text/HtmlTokens.h"
#include "page/text/PageText.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace velor {
namespace {

bool NamesPlace(QStringView element, QStringView attribute) {
  return attribute.compare(QStringView(u"id"), Qt::CaseInsensitive) == 0 ||
         (attribute.compare(QStringView(u"name"), Qt::CaseInsensitive) == 0 &&
          element.compare(QStringView(u"a"), Qt::CaseInsensitive) == 0);
}

}  // namespace

QStringList BookmarksIn(const QString &html) {
  QStringList names;
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (token.kind != HtmlTokenKind::StartTag) continue;
    const HtmlTagParts tag = ReadHtmlTag(html, token.offset);
    const QStringView element = QStringView(html).sliced(tag.name, tag.nameLength);
    for (const HtmlAttributeSlice &attribute : tag.attributes) {
      if (!NamesPlace(element, attribute.NameIn(html))) continue;
      const QString name = HtmlAttributeValue(attribute.ValueIn(html));
      if (!name.isEmpty() && !names.contains(name)) names << name;
    }
  }
  return names;
}

QStringList BookmarksInFile(const QString &path, const Files &files) {
  try {
    if (path.isEmpty() || !files.FileExists(path)) return {};
    const QByteArray bytes = files.ReadAll(path);
    return bytes.contains('\0') ? QStringList() : BookmarksIn(DecodePage(bytes).text);
  } catch (const RuntimeError &) {
    return {};
  }
}

}  // namespace velor
