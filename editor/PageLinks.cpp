// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageLinks.h"

#include "editor/PageSlots.h"
#include "editor/modGeneral.h"
#include "page/text/HtmlTokens.h"
#include "pictures/PictureEndings.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace velor {

namespace {

const std::array LinkAttributes = {u"href", u"src", u"background", u"data", u"poster", u"longdesc"};
const std::array PictureAttributes = {u"src", u"background", u"poster"};
/// These hold several addresses, each with a size.
const std::array ListAttributes = {u"srcset", u"imagesrcset"};
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
QString TargetOf(const QString &address, const QString &nativeFolder) {
  const QString path = PathPart(address).toString();
  const QString decoded = QUrl::fromPercentEncoding(path.toUtf8());
  return ToLogic(QDir::cleanPath(nativeFolder + u'/' + decoded));
}

/// Without quotes, brackets and commas, so that the address can stand in a style and in a list.
QStringList Encoded(const QStringList &segments) {
  QStringList encoded;
  for (const QString &segment : segments)
    encoded << QString::fromLatin1(QUrl::toPercentEncoding(segment, "!$*+;=:@"));
  return encoded;
}

/// The path from the new folder to the old one, followed by the address unchanged.
QString Adapted(QStringView slice, const QString &oldFolder, const QString &newFolder) {
  QStringList way =
      Encoded(QDir(newFolder).relativeFilePath(oldFolder).split(u'/', Qt::SkipEmptyParts));
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

/// The addresses of a list of pictures, without their sizes.
std::vector<QStringView> AddressesInList(QStringView list) {
  std::vector<QStringView> addresses;
  const auto isBetween = [](QChar c) { return c.isSpace() || c == u','; };
  for (qsizetype at = 0; at < list.size();) {
    while (at < list.size() && isBetween(list[at])) ++at;
    const qsizetype start = at;
    while (at < list.size() && !list[at].isSpace()) ++at;
    QStringView address = list.sliced(start, at - start);
    if (address.endsWith(u',')) {
      while (address.endsWith(u',')) address.chop(1);
    } else {
      while (at < list.size() && list[at] != u',') ++at;
    }
    if (!address.isEmpty()) addresses.push_back(address);
  }
  return addresses;
}

/// The addresses in a style sheet's text or a style attribute's source.
std::vector<QStringView> AddressesInStyle(QStringView style) {
  static const QRegularExpression named(
      QStringLiteral("(?:url\\(\\s*|@import\\s+(?=[\"']))(\"|'|&quot;|&apos;|&#39;|)(.*?)\\1\\s*"
                     "(?:\\)|;|$)"),
      QRegularExpression::CaseInsensitiveOption);
  std::vector<QStringView> addresses;
  for (auto matches = named.globalMatch(style.toString()); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    if (match.capturedLength(2) > 0)
      addresses.push_back(style.sliced(match.capturedStart(2), match.capturedLength(2)));
  }
  return addresses;
}

bool HasPictureEnding(const QString &path) {
  const PictureKind kind = KindOfPicture(path);
  return kind == PictureKind::Old || kind == PictureKind::New;
}

/// Gathers the links that break on the way from one folder to another.
class LinkSearch {
 public:
  LinkSearch(const QString &html, QString oldFolder, QString newFolder, const Files &files)
      : html_(html),
        oldFolder_(std::move(oldFolder)),
        newFolder_(std::move(newFolder)),
        files_(files) {}

  enum class Kind { Picture, Other, ByEnding };

  /// `slice` of the source, which means `address`.
  void Check(QStringView slice, const QString &address, Kind kind) {
    if (!IsRelative(slice)) return;
    const QString target = TargetOf(address, oldFolder_);
    const bool isThere = files_.FileExists(target) || files_.FolderExists(target);
    if (!isThere || files_.IsSameFile(target, TargetOf(address, newFolder_))) return;
    const bool isPicture =
        kind == Kind::Picture || (kind == Kind::ByEnding && HasPictureEnding(target));
    links.push_back({slice.data() - html_.constData(), slice.size(), isPicture, target,
                     Adapted(slice, oldFolder_, newFolder_)});
  }
  void LookAtAttribute(QStringView element, QStringView name, QStringView slice) {
    if (IsOneOf(LinkAttributes, name)) {
      const bool isPicture = IsOneOf(PictureAttributes, name) && !IsOneOf(NoPictures, element);
      Check(slice, HtmlAttributeValue(slice), isPicture ? Kind::Picture : Kind::Other);
    } else if (IsOneOf(ListAttributes, name)) {
      for (const QStringView address : AddressesInList(slice))
        Check(address, HtmlAttributeValue(address), Kind::Picture);
    } else if (IsOneOf(std::array{u"style"}, name)) {
      for (const QStringView address : AddressesInStyle(slice))
        Check(address, HtmlAttributeValue(address), Kind::ByEnding);
    }
  }
  void LookAtSheet(QStringView sheet) {
    for (const QStringView address : AddressesInStyle(sheet))
      Check(address, address.toString(), Kind::ByEnding);
  }

  std::vector<BrokenLink> links;

 private:
  const QString &html_;
  const QString oldFolder_;
  const QString newFolder_;
  const Files &files_;
};

}  // namespace

std::vector<BrokenLink> BrokenLinks(const QString &html, const QString &from, const QString &to,
                                    const Files &files) {
  const QString oldFolder = NativeFolderOf(from);
  const QString newFolder = NativeFolderOf(to);
  if (oldFolder == newFolder) return {};
  LinkSearch search(html, oldFolder, newFolder, files);
  std::optional<qsizetype> sheet;  // where the style sheet at hand begins
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (sheet && token.kind == HtmlTokenKind::EndTag) {
      search.LookAtSheet(QStringView(html).sliced(*sheet, token.offset - *sheet));
      sheet.reset();
    }
    if (token.kind != HtmlTokenKind::StartTag) continue;
    const HtmlTagParts tag = ReadHtmlTag(html, token.offset);
    const QStringView element = QStringView(html).sliced(tag.name, tag.nameLength);
    if (IsOneOf(std::array{u"style"}, element)) sheet = token.End();
    for (const HtmlAttributeSlice &attribute : tag.attributes) {
      const QStringView name = attribute.NameIn(html);
      const QStringView slice = attribute.ValueIn(html).trimmed();
      if (slice.isEmpty()) continue;
      if (IsOneOf(std::array{u"base"}, element) && IsOneOf(LinkAttributes, name)) return {};
      search.LookAtAttribute(element, name, slice);
    }
  }
  return search.links;
}

std::vector<BrokenLink> FullLinks(const QString &html, const QString &to,
                                  const std::vector<PageFullAddress> &addresses) {
  std::vector<BrokenLink> links;
  for (const HtmlToken &token : TokenizeHtml(html)) {
    if (token.kind != HtmlTokenKind::StartTag) continue;
    const HtmlTagParts tag = ReadHtmlTag(html, token.offset);
    for (const HtmlAttributeSlice &attribute : tag.attributes) {
      if (!IsOneOf(LinkAttributes, attribute.NameIn(html))) continue;
      if (IsOneOf(std::array{u"base"}, QStringView(html).sliced(tag.name, tag.nameLength)))
        return {};
      const QStringView slice = attribute.ValueIn(html);
      const auto known = std::find_if(
          addresses.begin(), addresses.end(),
          [value = HtmlAttributeValue(slice)](const auto &one) { return one.address == value; });
      if (known == addresses.end()) continue;
      QString adapted = known->fromPage(to);
      adapted.replace(u'&', QStringLiteral("&amp;"));
      links.push_back({.offset = slice.data() - html.constData(),
                       .length = slice.size(),
                       .isPicture = false,
                       .target = {},
                       .adapted = adapted});
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

void CopyPictures(std::vector<BrokenLink> &links, const QString &to, Files &files) {
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
