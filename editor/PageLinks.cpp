// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageLinks.h"

#include "editor/modGeneral.h"
#include "page/text/HtmlTokens.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <QDir>
#include <QUrl>

#include <algorithm>
#include <array>

namespace velor {

namespace {

const std::array LinkAttributes = {u"href", u"src", u"background", u"data", u"poster", u"longdesc"};
const std::array PictureAttributes = {u"src", u"background", u"poster"};
/// Elements whose src is not a picture.
const std::array NoPictures = {u"script", u"iframe", u"frame",  u"embed",
                               u"audio",  u"video",  u"source", u"track"};

template <typename Names>
bool IsOneOf(const Names &names, QStringView name) {
  return std::any_of(names.begin(), names.end(), [name](const char16_t *one) {
    return name.compare(QStringView(one), Qt::CaseInsensitive) == 0;
  });
}

/// Whether an address is relative to the page's folder: no scheme, not from the root, not a
/// fragment alone.
bool IsRelative(QStringView address) {
  if (address.isEmpty() || QStringView(u"/\\#?").contains(address.front())) return false;
  const qsizetype colon = address.indexOf(u':');
  const qsizetype slash = address.indexOf(u'/');
  return colon < 0 || (slash >= 0 && slash < colon);
}

/// An address without query and fragment.
QStringView PathPart(QStringView address) {
  const auto end =
      std::find_if(address.begin(), address.end(), [](QChar c) { return c == u'?' || c == u'#'; });
  return address.first(end - address.begin());
}

QString NativeFolderOf(const QString &file) {
  return QDir::cleanPath(ToNative(modGeneral::FolderOfPath(file)) + u'/');
}

/// The file of a relative address in a page in that native folder.
QString TargetOf(QStringView slice, const QString &nativeFolder) {
  const QString path = PathPart(HtmlAttributeValue(slice)).toString();
  const QString decoded = QUrl::fromPercentEncoding(path.toUtf8());
  return ToLogic(QDir::cleanPath(nativeFolder + u'/' + decoded));
}

QStringList Encoded(const QStringList &segments) {
  QStringList encoded;
  for (const QString &segment : segments)
    encoded << QString::fromLatin1(QUrl::toPercentEncoding(segment, "!$'()*+,;=:@"));
  return encoded;
}

/// The path from the new folder to the old one, followed by the address unchanged.
QString Adapted(QStringView slice, const QString &oldFolder, const QString &newFolder) {
  QStringList way = Encoded(QDir(newFolder).relativeFilePath(oldFolder).split(u'/'));
  way.removeAll(QStringLiteral("."));
  QStringList rest = slice.toString().split(u'/');
  while (rest.size() > 1 && (rest.front() == u"." || rest.front() == u"..")) {
    const bool isUp = rest.takeFirst() == u"..";
    if (isUp && !way.isEmpty() && way.back() != u"..") {
      way.removeLast();
    } else if (isUp) {
      way << QStringLiteral("..");
    }
  }
  return (way + rest).join(u'/');
}

}  // namespace

std::vector<BrokenLink> BrokenLinks(const QString &html, const QString &from, const QString &to,
                                    const Files &files) {
  const QString oldFolder = NativeFolderOf(from);
  const QString newFolder = NativeFolderOf(to);
  std::vector<BrokenLink> links;
  if (oldFolder == newFolder) return links;
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (token.kind != HtmlTokenKind::StartTag) continue;
    const HtmlTagParts tag = ReadHtmlTag(html, token.offset);
    const QStringView element = QStringView(html).sliced(tag.name, tag.nameLength);
    const bool isBase = IsOneOf(std::array{u"base"}, element);
    for (const HtmlAttributeSlice &attribute : tag.attributes) {
      const QStringView name = attribute.NameIn(html);
      const QStringView slice = attribute.ValueIn(html).trimmed();
      if (!IsOneOf(LinkAttributes, name) || slice.isEmpty()) continue;
      if (isBase) return {};
      if (!IsRelative(slice)) continue;
      const QString target = TargetOf(slice, oldFolder);
      const bool isThere = files.FileExists(target) || files.FolderExists(target);
      if (!isThere || files.IsSameFile(target, TargetOf(slice, newFolder))) continue;
      links.push_back({slice.data() - html.constData(), slice.size(),
                       IsOneOf(PictureAttributes, name) && !IsOneOf(NoPictures, element), target,
                       Adapted(slice, oldFolder, newFolder)});
    }
  }
  return links;
}

QString WithAdapted(const QString &html, const std::vector<BrokenLink> &links) {
  QString adapted = html;
  for (auto link = links.rbegin(); link != links.rend(); ++link)
    adapted.replace(link->offset, link->length, link->adapted);
  return adapted;
}

void TakePicturesAlong(std::vector<BrokenLink> &links, const QString &to, Files &files) {
  for (BrokenLink &link : links) {
    if (!link.isPicture || !files.FileExists(link.target)) continue;
    const QString name = modGeneral::FileNameOfPath(link.target);
    const QString copy = modGeneral::FolderOfPath(to) + u'\\' + name;
    const QByteArray picture = files.ReadAll(link.target);
    if (files.FileExists(copy) && files.ReadAll(copy) != picture) continue;
    if (!files.FileExists(copy)) files.ReplaceAll(copy, picture);
    link.adapted = Encoded({name}).constFirst();
  }
}

}  // namespace velor
